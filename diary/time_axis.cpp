#include "diary/time_axis.h"

#include <algorithm>

namespace velnor {
namespace {

constexpr int kMonthsOfYear = 12;

// The last day of the piece that `day` lies in.
DayNumber EndOf(DayNumber day, BucketUnit unit) {
  switch (unit) {
    case BucketUnit::kDay:
      return day;
    case BucketUnit::kWeek:
      return day + kWeekDays - 1 - WeekdayOfDay(day);
    case BucketUnit::kMonth:
      return FirstDayOfMonth(MonthOfDay(day) + 1) - 1;
    case BucketUnit::kYear:
      return FirstDayOfMonth((MonthOfDay(day) / kMonthsOfYear + 1) * kMonthsOfYear) - 1;
  }
  return day;
}

int CountMonths(const DayRange& range) {
  return MonthOfDay(range.last) - MonthOfDay(range.first) + 1;
}

std::vector<DateTick> DayTicks(const DayRange& range, int step) {
  std::vector<DateTick> ticks;
  // Steps of whole weeks fall on Mondays; the others count back from the last day.
  const bool by_weeks = step % kWeekDays == 0;
  DayNumber day = by_weeks ? range.last - WeekdayOfDay(range.last) : range.last;
  for (; day >= range.first; day -= step) ticks.push_back({day + 0.5, ShortDayWords(day)});
  std::ranges::reverse(ticks);
  return ticks;
}

std::vector<DateTick> MonthTicks(const DayRange& range, int step) {
  std::vector<DateTick> ticks;
  const int first = MonthOfDay(range.first);
  for (int month = (first + step - 1) / step * step; FirstDayOfMonth(month) <= range.last;
       month += step) {
    const DayNumber day = FirstDayOfMonth(month);
    if (day < range.first) continue;
    const bool is_january = month % kMonthsOfYear == 0;
    ticks.push_back({static_cast<double>(day),
                     is_january ? std::to_string(month / kMonthsOfYear)
                                : std::string(ShortMonthWord(month % kMonthsOfYear + 1))});
  }
  return ticks;
}

}  // namespace

BucketUnit ChooseUnit(const DayRange& range, int most) {
  if (range.Days() <= most) return BucketUnit::kDay;
  if (range.Days() / kWeekDays + 2 <= most) return BucketUnit::kWeek;
  return CountMonths(range) <= most ? BucketUnit::kMonth : BucketUnit::kYear;
}

std::vector<DayRange> BucketsOf(const DayRange& range, BucketUnit unit) {
  std::vector<DayRange> buckets;
  for (DayNumber day = range.first; day <= range.last; day = buckets.back().last + 1) {
    buckets.push_back({day, std::min(EndOf(day, unit), range.last)});
  }
  return buckets;
}

std::vector<std::optional<double>> BucketMeans(std::span<const DayValue> values,
                                               std::span<const DayRange> buckets) {
  std::vector<std::optional<double>> means;
  std::size_t next = 0;
  for (const DayRange& bucket : buckets) {
    while (next < values.size() && values[next].day < bucket.first) ++next;
    std::vector<double> inside;
    for (; next < values.size() && values[next].day <= bucket.last; ++next) {
      inside.push_back(values[next].value);
    }
    means.push_back(MeanOf(inside));
  }
  return means;
}

std::vector<DateTick> DateTicks(const DayRange& range, int most) {
  for (const int step : {1, 2, 7, 14}) {
    if ((range.Days() + step - 1) / step <= most) return DayTicks(range, step);
  }
  int step = 1;
  for (const int months : {1, 2, 3, 6, 12, 24, 60, 120, 240, 600, 1200}) {
    step = months;
    if (CountMonths(range) / months < most) break;
  }
  return MonthTicks(range, step);
}

}  // namespace velnor
