#include "diary/day_table.h"

#include <gtest/gtest.h>
#include <string>

namespace velnor {
namespace {

constexpr std::string_view kDay =
    "2026-11-16;08:00:00;food;bread;100;g;250;8;1;50\r\n"
    "2026-11-16;08:00:01;food;milk;250;g;160;8;9;12\r\n";

DiaryDay OnlyDay(const std::string& history) {
  const DayTable table = FoldHistory(history);
  return table.days.size() == 1 ? table.days.front() : DiaryDay();
}

TEST(DayTableTest, NothingFoldsToNothing) {
  EXPECT_TRUE(FoldHistory("").days.empty());
  EXPECT_TRUE(FoldHistory("date;time;what\r\n;;;\r\n").days.empty());
}

TEST(DayTableTest, ADayIsTheSumOfItsLines) {
  const DiaryDay day = OnlyDay(std::string(kDay) +
                               "2026-11-16;09:00:00;burned;running;30;min;300;;;\r\n"
                               "2026-11-16;09:00:01;burned;running;10;min;100;;;\r\n"
                               "2026-11-16;09:00:02;weight;;70.5;kg;;;;\r\n"
                               "2026-11-16;09:00:03;weight;;70.4;kg;;;;\r\n"
                               "2026-11-16;09:00:04;waist-hip;;0.85;;;;;\r\n");
  EXPECT_EQ(IsoDateOfDay(day.day), "2026-11-16");
  EXPECT_EQ(day.entry_count, 7U);
  EXPECT_EQ(day.eaten.size(), 2U);
  EXPECT_EQ(day.totals, (Nutrients{410, 16, 10, 62}));
  EXPECT_EQ(day.burned, 400);
  EXPECT_EQ(day.weight, 70.4);
  EXPECT_EQ(day.waist_hip, 0.85);
}

TEST(DayTableTest, WhatWasTakenOffIsNotAmongTheEaten) {
  const DiaryDay day =
      OnlyDay(std::string(kDay) + "2026-11-16;09:00:00;removed;bread;100;g;-250;-8;-1;-50\r\n");
  ASSERT_EQ(day.eaten.size(), 1U);
  EXPECT_EQ(day.eaten[0], 1U);
  EXPECT_EQ(day.totals.kcal, 160);
}

TEST(DayTableTest, WhatWasNeverAddedShowsAsTakenOff) {
  const DiaryDay day =
      OnlyDay(std::string(kDay) + "2026-11-16;09:00:00;removed;cake;100;g;-50;0;0;0\r\n");
  EXPECT_EQ(day.eaten.size(), 3U);
  EXPECT_EQ(day.totals.kcal, 360);
}

TEST(DayTableTest, AClearedListTakesTheFoodsThatItHeld) {
  const std::string cleared = "2026-11-16;09:00:00;list cleared;;;;-160;-8;-9;-12\r\n";
  DiaryDay day = OnlyDay(std::string(kDay) + cleared);
  ASSERT_EQ(day.eaten.size(), 1U);
  EXPECT_EQ(day.eaten[0], 0U);
  day = OnlyDay(std::string(kDay) + "2026-11-16;09:00:00;day cleared;;;;-410;-16;-10;-62\r\n");
  EXPECT_TRUE(day.eaten.empty());
  EXPECT_TRUE(day.has_food);
  EXPECT_FALSE(IsEatenDay(day));
}

TEST(DayTableTest, AClearingOfWhatIsNotThereShows) {
  const DiaryDay day =
      OnlyDay(std::string(kDay) + "2026-11-16;09:00:00;list cleared;;;;-100;0;0;0\r\n");
  EXPECT_EQ(day.eaten.size(), 3U);
  EXPECT_EQ(day.totals.kcal, 310);
}

TEST(DayTableTest, DaysAreSortedAndKeepTheOrderOfTheirLines) {
  const DayTable table = FoldHistory(
      "2026-11-17;08:00:00;food;c;1;g;1;0;0;0\n"
      "2026-11-16;08:00:00;food;a;1;g;1;0;0;0\n"
      "2026-11-17;07:00:00;food;d;1;g;1;0;0;0\n"
      "2026-11-16;09:00:00;food;b;1;g;1;0;0;0\n");
  ASSERT_EQ(table.days.size(), 2U);
  std::string names;
  for (const HistoryEntry& entry : table.entries) names += entry.name;
  EXPECT_EQ(names, "abcd");
  EXPECT_EQ(table.days[1].first_entry, 2U);
  EXPECT_EQ(table.Find(table.days[1].day), &table.days[1]);
  EXPECT_EQ(table.Find(table.days[1].day + 1), nullptr);
}

TEST(DayTableTest, FiguresBeyondEverythingAreHeld) {
  std::string history;
  for (int i = 0; i < 100; ++i) history += "2026-11-16;08:00:00;food;x;1;g;1e308;0;0;0\n";
  EXPECT_NEAR(OnlyDay(history).totals.kcal / (100 * kLargestFigure), 1, 1e-9);
}

TEST(DayTableTest, ADayWithoutFoodIsAGap) {
  EXPECT_FALSE(IsEatenDay(OnlyDay("2026-11-16;;weight;;70;kg;;;;\n")));
  EXPECT_FALSE(IsEatenDay(OnlyDay("2026-11-16;08:00:00;food;water;200;g;0;0;0;0\n")));
  EXPECT_TRUE(IsEatenDay(OnlyDay("2026-11-16;;imported;;;;1800;60;70;200\n")));
}

TEST(DayTableTest, SlipsOfTypingCountInNoMean) {
  EXPECT_TRUE(CountsInMeans({.totals = {.kcal = kLargestDay}, .has_food = true}));
  EXPECT_FALSE(CountsInMeans({.totals = {.kcal = kLargestDay + 1}, .has_food = true}));
  EXPECT_FALSE(CountsInMeans({.totals = {.kcal = -1, .protein = 5}, .has_food = true}));
  EXPECT_TRUE(IsBodyWeight(1000));
  EXPECT_FALSE(IsBodyWeight(1001));
  EXPECT_FALSE(IsBodyWeight(0));
}

}  // namespace
}  // namespace velnor
