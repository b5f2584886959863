// What the days of a diary say together: means, days in a row, weekdays, months, the foods eaten
// most, the sum of the deficit. Used by the page and its plots.

#ifndef VELNOR_DIARY_STATISTICS_H_
#define VELNOR_DIARY_STATISTICS_H_

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "diary/calendar.h"
#include "diary/day_table.h"

namespace velnor {

// A figure of a day; days without one are left out.
struct DayValue {
  DayNumber day = 0;
  double value = 0;
  bool operator==(const DayValue&) const = default;
};

// Both days included.
struct DayRange {
  DayNumber first = 0;
  DayNumber last = 0;

  int Days() const { return last - first + 1; }
  bool Has(DayNumber day) const { return day >= first && day <= last; }
  bool operator==(const DayRange&) const = default;
};

// The days of the range that have an entry.
std::span<const DiaryDay> DaysOf(const DayTable& table, const DayRange& range);

// The mean of the values; nothing of none.
std::optional<double> MeanOf(std::span<const double> values);

// Energy of the days that count in means, kcal.
std::vector<DayValue> EatenKcal(std::span<const DiaryDay> days);

// The mean of each day of the range and the six before it. `values` go by day, the oldest first. A
// day is left out when fewer than four of the seven have a value.
std::vector<DayValue> WeekMeans(std::span<const DayValue> values, const DayRange& range);

struct Streak {
  int days = 0;
  DayNumber last = 0;
};

// The most days in a row with an entry, the newest of several as long, and those in a row up to
// today, or to yesterday when today has none yet. `days` go by day.
Streak LongestStreak(std::span<const DiaryDay> days);
Streak CurrentStreak(std::span<const DiaryDay> days, DayNumber today);

struct WeekdayMean {
  int days = 0;     // that count
  double kcal = 0;  // their mean
};

// From Monday to Sunday.
std::array<WeekdayMean, kWeekDays> WeekdayMeans(std::span<const DiaryDay> days);

struct MonthSum {
  int month = 0;                            // since year 0
  int days = 0;                             // with an entry
  int eaten_days = 0;                       // that count in the means
  Nutrients means = {};                     // a day
  double burned = 0;                        // kcal, all of the month
  std::optional<double> first_weight = {};  // kg
  std::optional<double> last_weight = {};
};

// The months with an entry, the newest first.
std::vector<MonthSum> SumMonths(std::span<const DiaryDay> days);

struct EatenFood {
  std::string_view name;  // of the table's entries
  int times = 0;
  double kcal = 0;
};

// At most `count` foods by energy, then by number of times; what is alike goes by name. Days that
// do not count in means are left out.
std::vector<EatenFood> MostEatenByEnergy(const DayTable& table, std::size_t count);
std::vector<EatenFood> MostEatenByTimes(const DayTable& table, std::size_t count);

// What was needed and burned but not eaten, in kcal, summed from the first day on: `needed` and the
// day's burned calories less the eaten ones of every day that counts in means. Above zero: less was
// eaten than used.
std::vector<DayValue> SumDeficit(std::span<const DiaryDay> days, double needed);

// Body weights, kg, that can be drawn.
std::vector<DayValue> BodyWeights(std::span<const DiaryDay> days);

}  // namespace velnor

#endif  // VELNOR_DIARY_STATISTICS_H_
