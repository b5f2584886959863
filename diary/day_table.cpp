#include "diary/day_table.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velnor {
namespace {

constexpr double kRestOfRounding = 0.005;
constexpr double kHeaviestBody = 1000;  // kg

double Held(const std::optional<double>& figure) {
  return std::clamp(figure.value_or(0), -kLargestFigure, kLargestFigure);
}

Nutrients FiguresOf(const HistoryEntry& entry) {
  return {.kcal = Held(entry.kcal),
          .protein = Held(entry.protein),
          .fat = Held(entry.fat),
          .carbohydrate = Held(entry.carbohydrate)};
}

void Add(Nutrients& sum, const Nutrients& figures) {
  sum.kcal += figures.kcal;
  sum.protein += figures.protein;
  sum.fat += figures.fat;
  sum.carbohydrate += figures.carbohydrate;
}

// Whether two figures cancel each other but for rounding.
bool Cancel(double a, double b) { return std::abs(a + b) <= kRestOfRounding + 1e-6 * std::abs(b); }

bool Cancel(const Nutrients& a, const Nutrients& b) {
  return Cancel(a.kcal, b.kcal) && Cancel(a.protein, b.protein) && Cancel(a.fat, b.fat) &&
         Cancel(a.carbohydrate, b.carbohydrate);
}

class DayFolder {
 public:
  DayFolder(const std::vector<HistoryEntry>& entries, DiaryDay& day)
      : entries_(entries), day_(day) {}

  void Fold(std::size_t index) {
    const HistoryEntry& entry = entries_[index];
    switch (entry.kind) {
      case HistoryKind::kFood:
      case HistoryKind::kImported:
        day_.eaten.push_back(index);
        break;
      case HistoryKind::kRemoved:
        if (!TakeOff(entry)) day_.eaten.push_back(index);
        break;
      case HistoryKind::kListCleared:
      case HistoryKind::kDayCleared:
        if (!TakeOffNewest(FiguresOf(entry))) day_.eaten.push_back(index);
        break;
      case HistoryKind::kBurned:
      case HistoryKind::kBurnedCleared:
        day_.burned = day_.burned.value_or(0) + Held(entry.kcal);
        break;
      case HistoryKind::kWeight:
        if (entry.amount) day_.weight = Held(entry.amount);
        break;
      case HistoryKind::kWaistHip:
        if (entry.amount) day_.waist_hip = Held(entry.amount);
        break;
    }
    if (CountsInDay(entry.kind)) {
      day_.has_food = true;
      Add(day_.totals, FiguresOf(entry));
    }
  }

 private:
  // The newest food that the line takes off; false when there is none.
  bool TakeOff(const HistoryEntry& removed) {
    const Nutrients figures = FiguresOf(removed);
    for (auto at = day_.eaten.rbegin(); at != day_.eaten.rend(); ++at) {
      const HistoryEntry& food = entries_[*at];
      if (food.kind == HistoryKind::kFood && food.name == removed.name &&
          Cancel(figures, FiguresOf(food))) {
        day_.eaten.erase(std::next(at).base());
        return true;
      }
    }
    return false;
  }

  // The newest lines whose figures the line takes off; false when no number of them does.
  bool TakeOffNewest(const Nutrients& cleared) {
    Nutrients sum;
    for (auto at = day_.eaten.end(); at != day_.eaten.begin();) {
      --at;
      Add(sum, FiguresOf(entries_[*at]));
      if (Cancel(cleared, sum)) {
        day_.eaten.erase(at, day_.eaten.end());
        return true;
      }
    }
    return day_.eaten.empty() && Cancel(cleared, sum);
  }

  const std::vector<HistoryEntry>& entries_;
  DiaryDay& day_;
};

struct DatedEntry {
  DayNumber day;
  HistoryEntry entry;
};

std::vector<DatedEntry> ReadByDay(std::string_view history) {
  std::vector<DatedEntry> dated;
  HistoryReader reader(history);
  while (std::optional<HistoryEntry> entry = reader.Next()) {
    const bool same_day = !dated.empty() && dated.back().entry.date == entry->date;
    const DayNumber day = same_day ? dated.back().day : DayOfIsoDate(entry->date).value_or(0);
    dated.push_back({day, std::move(*entry)});
  }
  if (!std::ranges::is_sorted(dated, {}, &DatedEntry::day)) {
    std::ranges::stable_sort(dated, {}, &DatedEntry::day);
  }
  return dated;
}

}  // namespace

const DiaryDay* DayTable::Find(DayNumber day) const {
  const auto found = std::ranges::lower_bound(days, day, {}, &DiaryDay::day);
  return found != days.end() && found->day == day ? &*found : nullptr;
}

DayTable FoldHistory(std::string_view history) {
  DayTable table;
  std::vector<DatedEntry> dated = ReadByDay(history);
  table.entries.reserve(dated.size());
  for (DatedEntry& line : dated) {
    if (table.days.empty() || table.days.back().day != line.day) {
      table.days.push_back({.day = line.day, .first_entry = table.entries.size()});
    }
    ++table.days.back().entry_count;
    table.entries.push_back(std::move(line.entry));
  }
  for (DiaryDay& day : table.days) {
    DayFolder folder(table.entries, day);
    for (std::size_t i = 0; i < day.entry_count; ++i) folder.Fold(day.first_entry + i);
  }
  return table;
}

bool IsEatenDay(const DiaryDay& day) {
  const Nutrients& totals = day.totals;
  return day.has_food &&
         std::max({totals.kcal, totals.protein, totals.fat, totals.carbohydrate}) > kRestOfRounding;
}

bool CountsInMeans(const DiaryDay& day) {
  return IsEatenDay(day) && day.totals.kcal >= 0 && day.totals.kcal <= kLargestDay;
}

bool IsBodyWeight(double kilograms) { return kilograms > 0 && kilograms <= kHeaviestBody; }

}  // namespace velnor
