#include "diary/statistics.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/unit/diary_series.h"

namespace velnor {
namespace {

#include "tests/unit/diary_figures.inc"

constexpr double kShown = 1e-6;  // what the figures were printed to

void ExpectSame(const std::vector<DayValue>& values, std::span<const DayValue> figures) {
  ASSERT_EQ(values.size(), figures.size());
  for (std::size_t i = 0; i < values.size(); ++i) {
    EXPECT_EQ(values[i].day, figures[i].day);
    EXPECT_NEAR(values[i].value, figures[i].value, kShown);
  }
}

TEST(StatisticsTest, WeekMeansAreThoseOfR) {
  const DayRange range = {kSeriesFirst, kSeriesFirst + kSeriesDays - 1};
  ExpectSame(WeekMeans(EatenKcal(SeriesDays()), range), kWeekMeanFigures);
}

TEST(StatisticsTest, WeekMeansReachBackBeforeTheRange) {
  const std::vector<DayValue> values = {{1, 10}, {2, 20}, {3, 30}, {4, 40}, {9, 90}};
  const std::vector<DayValue> expected = {{4, 25}, {5, 25}, {6, 25}, {7, 25}};
  EXPECT_EQ(WeekMeans(values, {4, 12}), expected);
}

TEST(StatisticsTest, WeekdaysAreThoseOfR) {
  const auto means = WeekdayMeans(SeriesDays());
  for (std::size_t i = 0; i < kWeekDays; ++i) {
    EXPECT_EQ(means[i].days, kWeekdayFigures[i].days) << i;
    EXPECT_NEAR(means[i].kcal, kWeekdayFigures[i].kcal, kShown) << i;
  }
}

TEST(StatisticsTest, TheDeficitIsThatOfR) {
  ExpectSame(SumDeficit(SeriesDays(), 2200), kDeficitFigures);
}

TEST(StatisticsTest, WhatIsNoDayOfABodyIsLeftOut) {
  std::vector<DiaryDay> days(4);
  for (int i = 0; i < 4; ++i) {
    days[static_cast<std::size_t>(i)] = {.day = i, .totals = {.kcal = 2000}, .has_food = true};
  }
  days[1].totals.kcal = kLargestDay + 1;
  days[2].totals.kcal = -50;
  days[3].burned = 1e60;
  EXPECT_EQ(EatenKcal(days), (std::vector<DayValue>{{0, 2000}, {3, 2000}}));
  EXPECT_EQ(SumDeficit(days, 2000), (std::vector<DayValue>{{0, 0}, {3, kLargestDay}}));
}

std::vector<DiaryDay> DaysAt(std::initializer_list<int> numbers) {
  std::vector<DiaryDay> days;
  for (const int number : numbers) days.push_back({.day = number});
  return days;
}

TEST(StatisticsTest, TheNewestOfTheLongestStreaksCounts) {
  const Streak streak = LongestStreak(DaysAt({1, 2, 3, 5, 7, 8, 9, 20}));
  EXPECT_EQ(streak.days, 3);
  EXPECT_EQ(streak.last, 9);
  EXPECT_EQ(LongestStreak({}).days, 0);
}

TEST(StatisticsTest, AStreakGoesOnUntilTheDayIsOver) {
  const auto days = DaysAt({1, 3, 4, 5, 9});
  EXPECT_EQ(CurrentStreak(days, 5).days, 3);
  EXPECT_EQ(CurrentStreak(days, 6).days, 3);
  EXPECT_EQ(CurrentStreak(days, 7).days, 0);
  EXPECT_EQ(CurrentStreak(days, 0).days, 0);
  EXPECT_EQ(CurrentStreak({}, 0).days, 0);
}

TEST(StatisticsTest, TheMeanOfNothingIsNothing) {
  EXPECT_EQ(MeanOf({}), std::nullopt);
  const std::vector<double> values = {1, 2, 6};
  EXPECT_EQ(MeanOf(values), 3);
}

TEST(StatisticsTest, DaysOfARangeHaveBothItsEnds) {
  DayTable table;
  table.days = DaysAt({1, 3, 5, 9});
  EXPECT_EQ(DaysOf(table, {3, 5}).size(), 2U);
  EXPECT_EQ(DaysOf(table, {2, 2}).size(), 0U);
  EXPECT_EQ(DaysOf(table, {10, 2}).size(), 0U);
}

TEST(StatisticsTest, MonthsAreSummedNewestFirst) {
  const DayTable table = FoldHistory(
      "2026-10-30;;weight;;70;kg;;;;\n"
      "2026-10-31;08:00:00;food;bread;100;g;250;8;1;50\n"
      "2026-11-01;08:00:00;food;bread;200;g;500;16;2;100\n"
      "2026-11-02;08:00:00;food;bread;400;g;1000;32;4;200\n"
      "2026-11-02;09:00:00;burned;running;30;min;300;;;\n"
      "2026-11-03;;weight;;71;kg;;;;\n"
      "2026-11-04;;weight;;69;kg;;;;\n");
  const std::vector<MonthSum> months = SumMonths(table.days);
  ASSERT_EQ(months.size(), 2U);
  EXPECT_EQ(MonthWords(months[0].month), "November 2026");
  EXPECT_EQ(months[0].days, 4);
  EXPECT_EQ(months[0].eaten_days, 2);
  EXPECT_EQ(months[0].means, (Nutrients{750, 24, 3, 150}));
  EXPECT_EQ(months[0].burned, 300);
  EXPECT_EQ(months[0].first_weight, 71);
  EXPECT_EQ(months[0].last_weight, 69);
  EXPECT_EQ(months[1].days, 2);
  EXPECT_EQ(months[1].means.kcal, 250);
}

TEST(StatisticsTest, FoodsAreRankedByEnergyAndByTimes) {
  const DayTable table = FoldHistory(
      "2026-11-01;08:00:00;food;tea;1;g;1;0;0;0\n"
      "2026-11-01;08:00:01;food;tea;1;g;1;0;0;0\n"
      "2026-11-01;08:00:02;food;lard;100;g;900;0;99;0\n"
      "2026-11-01;08:00:03;food;cake;100;g;400;0;9;0\n"
      "2026-11-01;08:00:04;removed;cake;100;g;-400;0;-9;0\n"
      "2026-11-02;08:00:00;food;apple;100;g;50;0;0;9\n"
      "2026-11-03;08:00:00;food;slip;100;g;1e30;0;0;9\n"
      "2026-11-04;;imported;;;;2000;0;0;9\n");
  const auto by_energy = MostEatenByEnergy(table, 2);
  ASSERT_EQ(by_energy.size(), 2U);
  EXPECT_EQ(by_energy[0].name, "lard");
  EXPECT_EQ(by_energy[1].name, "apple");
  const auto by_times = MostEatenByTimes(table, 9);
  ASSERT_EQ(by_times.size(), 3U);
  EXPECT_EQ(by_times[0].name, "tea");
  EXPECT_EQ(by_times[0].times, 2);
  EXPECT_EQ(by_times[1].name, "apple");  // like lard once, and before it
}

}  // namespace
}  // namespace velnor
