#include "diary/statistics.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <unordered_map>

namespace velnor {
namespace {

constexpr int kLeastOfWeek = 4;  // values of seven that make a mean

std::vector<EatenFood> EatenFoods(const DayTable& table) {
  std::vector<EatenFood> foods;
  std::unordered_map<std::string_view, std::size_t> places;
  for (const DiaryDay& day : table.days) {
    if (!CountsInMeans(day)) continue;
    for (const std::size_t index : day.eaten) {
      const HistoryEntry& entry = table.entries[index];
      if (entry.kind != HistoryKind::kFood) continue;
      const auto [place, is_new] = places.try_emplace(entry.name, foods.size());
      if (is_new) foods.push_back({.name = entry.name});
      EatenFood& food = foods[place->second];
      ++food.times;
      food.kcal += std::clamp(entry.kcal.value_or(0), -kLargestFigure, kLargestFigure);
    }
  }
  return foods;
}

// The first `count` foods of an order.
std::vector<EatenFood> FirstFoods(std::vector<EatenFood> foods, std::size_t count, auto before) {
  const auto middle = foods.begin() + static_cast<std::ptrdiff_t>(std::min(count, foods.size()));
  std::ranges::partial_sort(foods, middle, before);
  foods.erase(middle, foods.end());
  return foods;
}

}  // namespace

std::span<const DiaryDay> DaysOf(const DayTable& table, const DayRange& range) {
  const auto first = std::ranges::lower_bound(table.days, range.first, {}, &DiaryDay::day);
  const auto last = std::ranges::upper_bound(table.days, range.last, {}, &DiaryDay::day);
  return first < last ? std::span(first, last) : std::span<const DiaryDay>();
}

std::optional<double> MeanOf(std::span<const double> values) {
  if (values.empty()) return std::nullopt;
  return std::reduce(values.begin(), values.end()) / static_cast<double>(values.size());
}

std::vector<DayValue> EatenKcal(std::span<const DiaryDay> days) {
  std::vector<DayValue> values;
  for (const DiaryDay& day : days) {
    if (CountsInMeans(day)) values.push_back({day.day, day.totals.kcal});
  }
  return values;
}

std::vector<DayValue> WeekMeans(std::span<const DayValue> values, const DayRange& range) {
  std::vector<DayValue> means;
  std::size_t begin = 0;  // of the values of the week that ends with the day
  std::size_t end = 0;
  for (DayNumber day = range.first; day <= range.last; ++day) {
    while (end < values.size() && values[end].day <= day) ++end;
    while (begin < end && values[begin].day <= day - kWeekDays) ++begin;
    const std::size_t count = end - begin;
    // cppcheck-suppress knownConditionTrueFalse  // it thinks of the first day alone
    if (count < kLeastOfWeek) continue;
    double sum = 0;
    for (std::size_t i = begin; i < end; ++i) sum += values[i].value;
    means.push_back({day, sum / static_cast<double>(count)});
  }
  return means;
}

Streak LongestStreak(std::span<const DiaryDay> days) {
  Streak longest;
  Streak current;
  for (const DiaryDay& day : days) {
    const bool goes_on = current.days > 0 && day.day == current.last + 1;
    current = {.days = goes_on ? current.days + 1 : 1, .last = day.day};
    if (current.days >= longest.days) longest = current;
  }
  return longest;
}

Streak CurrentStreak(std::span<const DiaryDay> days, DayNumber today) {
  Streak streak;
  for (std::size_t i = days.size(); i > 0; --i) {
    const DayNumber day = days[i - 1].day;
    if (day > today) continue;
    const DayNumber newest_allowed = streak.days == 0 ? today - 1 : streak.last - streak.days;
    if (day < newest_allowed) break;
    if (streak.days == 0) streak.last = day;
    ++streak.days;
  }
  return streak;
}

std::array<WeekdayMean, kWeekDays> WeekdayMeans(std::span<const DiaryDay> days) {
  std::array<WeekdayMean, kWeekDays> means;
  for (const DayValue& eaten : EatenKcal(days)) {
    WeekdayMean& mean = means[static_cast<std::size_t>(WeekdayOfDay(eaten.day))];
    ++mean.days;
    mean.kcal += eaten.value;
  }
  for (WeekdayMean& mean : means) {
    if (mean.days > 0) mean.kcal /= mean.days;
  }
  return means;
}

std::vector<MonthSum> SumMonths(std::span<const DiaryDay> days) {
  std::vector<MonthSum> months;
  for (const DiaryDay& day : days) {
    const int month = MonthOfDay(day.day);
    if (months.empty() || months.back().month != month) months.push_back({.month = month});
    MonthSum& sum = months.back();
    ++sum.days;
    sum.burned += day.burned.value_or(0);
    if (day.weight) {
      if (!sum.first_weight) sum.first_weight = day.weight;
      sum.last_weight = day.weight;
    }
    if (!CountsInMeans(day)) continue;
    ++sum.eaten_days;
    sum.means.kcal += day.totals.kcal;
    sum.means.protein += day.totals.protein;
    sum.means.fat += day.totals.fat;
    sum.means.carbohydrate += day.totals.carbohydrate;
  }
  for (MonthSum& sum : months) {
    const double count = std::max(sum.eaten_days, 1);
    sum.means = {.kcal = sum.means.kcal / count,
                 .protein = sum.means.protein / count,
                 .fat = sum.means.fat / count,
                 .carbohydrate = sum.means.carbohydrate / count};
  }
  std::ranges::reverse(months);
  return months;
}

std::vector<EatenFood> MostEatenByEnergy(const DayTable& table, std::size_t count) {
  return FirstFoods(EatenFoods(table), count, [](const EatenFood& a, const EatenFood& b) {
    return a.kcal != b.kcal ? a.kcal > b.kcal : a.name < b.name;
  });
}

std::vector<EatenFood> MostEatenByTimes(const DayTable& table, std::size_t count) {
  return FirstFoods(EatenFoods(table), count, [](const EatenFood& a, const EatenFood& b) {
    return a.times != b.times ? a.times > b.times : a.name < b.name;
  });
}

std::vector<DayValue> SumDeficit(std::span<const DiaryDay> days, double needed) {
  std::vector<DayValue> sums;
  double sum = 0;
  for (const DiaryDay& day : days) {
    if (!CountsInMeans(day)) continue;
    sum += needed - day.totals.kcal + std::clamp(day.burned.value_or(0), 0.0, kLargestDay);
    sums.push_back({day.day, sum});
  }
  return sums;
}

std::vector<DayValue> BodyWeights(std::span<const DiaryDay> days) {
  std::vector<DayValue> weights;
  for (const DiaryDay& day : days) {
    if (day.weight && IsBodyWeight(*day.weight)) weights.push_back({day.day, *day.weight});
  }
  return weights;
}

}  // namespace velnor
