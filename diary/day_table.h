// The history of a person folded into days: what was eaten, burned and measured on each. Everything
// else of the diary begins here.

#ifndef VELNOR_DIARY_DAY_TABLE_H_
#define VELNOR_DIARY_DAY_TABLE_H_

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "diary/calendar.h"
#include "users/history_file.h"

namespace velnor {

// Amounts of energy and of what holds it.
struct Nutrients {
  double kcal = 0;
  double protein = 0;       // g
  double fat = 0;           // g
  double carbohydrate = 0;  // g

  bool operator==(const Nutrients&) const = default;
};

struct DiaryDay {
  DayNumber day = 0;
  std::size_t first_entry = 0;  // of DayTable::entries; those of a day stand together
  std::size_t entry_count = 0;
  // Of the same: the foods and imported totals that were not taken off or cleared again, and what
  // was taken off or cleared without being among them. Their figures make the totals.
  std::vector<std::size_t> eaten = {};
  Nutrients totals = {};
  bool has_food = false;                 // a line that counts in the totals
  std::optional<double> burned = {};     // kcal
  std::optional<double> weight = {};     // kg, the last of the day
  std::optional<double> waist_hip = {};  // likewise
};

struct DayTable {
  std::vector<HistoryEntry> entries = {};  // by day, those of a day in the order of the file
  std::vector<DiaryDay> days = {};         // those with an entry, the oldest first

  // The day, or null when it has no entry.
  const DiaryDay* Find(DayNumber day) const;
};

// A figure of the history beyond this, either way, counts as this much, so that no sum becomes
// infinite.
inline constexpr double kLargestFigure = 1e60;

// The days of a history, given as the bytes of its file.
DayTable FoldHistory(std::string_view history);

// Whether something was eaten on the day: its energy or its grams are more than a rest of rounding.
// A day without is a gap in every plot and counts in no mean.
bool IsEatenDay(const DiaryDay& day);

// The energy of a day beyond this, in kcal, is taken for a slip of typing: the day is shown, but
// counts in no mean and no sum.
inline constexpr double kLargestDay = 20000;

// Whether the day counts in means and sums.
bool CountsInMeans(const DiaryDay& day);

// Whether a body can weigh that many kg; other weights are shown, but not drawn.
bool IsBodyWeight(double kilograms);

}  // namespace velnor

#endif  // VELNOR_DIARY_DAY_TABLE_H_
