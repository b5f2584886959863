// The series that the figures of diary_figures.inc were worked out from, as
// tools/diary/statistics.R has it too.

#ifndef VELNOR_TESTS_UNIT_DIARY_SERIES_H_
#define VELNOR_TESTS_UNIT_DIARY_SERIES_H_

#include <vector>

#include "diary/statistics.h"

namespace velnor {

inline constexpr int kSeriesFirst = 20000;
inline constexpr int kSeriesDays = 45;

inline bool IsEatenInSeries(int i) { return i % 10 != 4 && i % 10 != 5 && i != 16; }

inline std::vector<DiaryDay> SeriesDays() {
  std::vector<DiaryDay> days;
  for (int i = 0; i < kSeriesDays; ++i) {
    DiaryDay day = {.day = kSeriesFirst + i};
    if (IsEatenInSeries(i)) {
      day.has_food = true;
      day.totals.kcal = 1800 + i * 7919 % 1000;
    }
    if (i % 3 == 0) day.burned = 150 + i * 37 % 200;
    day.weight = (80000 - 60 * i + i * 7727 % 900) / 1000.0;
    if (i == 10) day.weight = 95;
    if (i == 30) day.weight = 61;
    days.push_back(day);
  }
  return days;
}

}  // namespace velnor

#endif  // VELNOR_TESTS_UNIT_DIARY_SERIES_H_
