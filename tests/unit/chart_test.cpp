#include "charts/chart.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace velnor {
namespace {

const Chart& Weight() { return FindChart(ChartId::kWeight); }
const Chart& Calories() { return FindChart(ChartId::kCalories); }

ChartSeries SeriesOf(std::initializer_list<std::string> lines) {
  ChartSeries series;
  series.file_is_empty = lines.size() == 0;
  for (std::size_t i = 0; const std::string& line : lines) {
    series.slots[i] = line;
    if (!IsEmptySlot(line)) series.last = i;
    ++i;
  }
  return series;
}

// `count` days from the first of November on, each as many kilograms above 50 as its day.
ChartSeries Days(std::size_t count) {
  ChartSeries series;
  series.last = count - 1;
  for (std::size_t i = 0; i < count; ++i) {
    series.slots[i] = std::to_string(i + 1) + ".11.2026;" + std::to_string(51 + i) + ";20.;";
  }
  return series;
}

std::vector<int> Heights(const std::vector<ChartPoint>& points) {
  std::vector<int> heights;
  heights.reserve(points.size());
  for (const ChartPoint& point : points) heights.push_back(point.at.y);
  return heights;
}

std::vector<std::string> Labels(const std::vector<ChartPoint>& points) {
  std::vector<std::string> labels;
  labels.reserve(points.size());
  for (const ChartPoint& point : points) labels.emplace_back(point.label);
  return labels;
}

TEST(ChartTest, HeightsAreWholePixelsRoundedUpwards) {
  EXPECT_EQ(ChartY(Weight(), 0.0), 450);
  EXPECT_EQ(ChartY(Weight(), 69.0), 334);  // 115.00002 pixels
  EXPECT_EQ(ChartY(Weight(), 70.0), 333);
  EXPECT_EQ(ChartY(Weight(), 71.5), 330);
  EXPECT_EQ(ChartY(Weight(), 180.0), 149);
  EXPECT_EQ(ChartY(Weight(), -5.0), 458);
  EXPECT_EQ(ChartY(Calories(), 4800.0), 150);
  EXPECT_EQ(ChartY(Calories(), 16.0), 449);
  EXPECT_EQ(ChartY(Calories(), 16.1), 448);
  EXPECT_EQ(ChartY(Calories(), 6999.0), 12);
  EXPECT_EQ(ChartY(FindChart(ChartId::kProteins), 100.0), 325);
  EXPECT_EQ(ChartY(FindChart(ChartId::kFat), 100.0), 325);
  EXPECT_EQ(ChartY(FindChart(ChartId::kCarbohydrates), 2400.0), 150);
}

TEST(ChartTest, NoHeightIsBeyondWhatCanBeDrawn) {
  for (const double value : {1e30, std::numeric_limits<double>::infinity()}) {
    EXPECT_EQ(ChartY(Weight(), value), -19'550);
    EXPECT_EQ(ChartY(Weight(), -value), 20'450);
  }
  EXPECT_EQ(ChartY(Weight(), -9999.0), 450 + 16'665);
}

TEST(ChartTest, EveryChartReadsItsField) {
  constexpr std::string_view kLine = "16.11.2026;1850.;72.5;60.25;230.7;";
  EXPECT_EQ(ChartValue(Weight(), "16.11.2026;71.5;23.34;"), 71.5);
  EXPECT_EQ(ChartValue(Calories(), kLine), 1850.0);
  EXPECT_EQ(ChartValue(FindChart(ChartId::kProteins), kLine), 72.5);
  EXPECT_EQ(ChartValue(FindChart(ChartId::kFat), kLine), 60.25);
  EXPECT_EQ(ChartValue(FindChart(ChartId::kCarbohydrates), kLine), 230.7);
}

TEST(ChartTest, FiveCharactersOfAFieldCount) {
  EXPECT_EQ(ChartValue(Calories(), "16.11.2026;1234.56;1;1;1;"), 1234.0);
  EXPECT_EQ(ChartValue(Calories(), "16.11.2026;123.456;1;1;1;"), 123.4);
  EXPECT_EQ(ChartValue(Weight(), "16.11.2026;71.5678;20;"), 71.56);
  EXPECT_EQ(ChartValue(Weight(), "16.11.2026;7;99;"), 7.0) << "the next field was read on";
  EXPECT_EQ(ChartValue(Weight(), "16.11.2026;72"), 72.0) << "a field that the line's end closes";
}

TEST(ChartTest, ValuesAboveTheTopAreDrawnAtIt) {
  EXPECT_EQ(ChartValue(Weight(), "16.11.2026;180;20;"), 180.0);
  EXPECT_EQ(ChartValue(Weight(), "16.11.2026;180.1;20;"), 180.0);
  EXPECT_EQ(ChartValue(Weight(), "16.11.2026;1e999;20;"), 180.0);
  EXPECT_EQ(ChartY(Calories(), ChartValue(Calories(), "16.11.2026;5200;1;1;1;")), 150);
  constexpr std::string_view kMuch = "16.11.2026;99999;99999;99999;99999;";
  EXPECT_EQ(ChartValue(Calories(), kMuch), 4800.0);
  EXPECT_EQ(ChartValue(FindChart(ChartId::kProteins), kMuch), 240.0);
  EXPECT_EQ(ChartValue(FindChart(ChartId::kFat), kMuch), 240.0);
  EXPECT_EQ(ChartValue(FindChart(ChartId::kCarbohydrates), kMuch), 2400.0);
}

TEST(ChartTest, WhatIsNoNumberIsNothing) {
  const std::vector<std::string> lines = {
      "",          "1;72",           "16.11.2026",        "16.11.2026;",          "16.11.2026;;5;",
      "seventeen", "16.11.2026;abc", "16.11.2026;nan;1;", "16.11.2026;\xFF\xFE;",
  };
  for (const std::string& line : lines) EXPECT_EQ(ChartValue(Weight(), line), 0.0) << line;
  EXPECT_EQ(ChartValue(Weight(), "1;72;"), 72.0) << "five characters are enough";
  EXPECT_EQ(ChartValue(FindChart(ChartId::kCarbohydrates), "16.11.2026;1850.;72.5;60.2;"), 0.0);
  EXPECT_EQ(ChartValue(Weight(), "16.11.2026;-5;20;"), -5.0);
}

TEST(ChartTest, ADayIsNamedByDayAndMonth) {
  EXPECT_EQ(DayLabel("16.11.2026;70;22.85;"), "16.11");
  EXPECT_EQ(DayLabel("5.3.2026;70;"), "5.3");
  EXPECT_EQ(DayLabel("16.11;70.5;22;"), "16.11;70");
  EXPECT_EQ(DayLabel("16.11;70;22;"), "16.11");
  EXPECT_EQ(DayLabel("16;70;22;"), "16");
  EXPECT_EQ(DayLabel("nothing"), "nothing");
  EXPECT_EQ(DayLabel("..;70"), ".");
  EXPECT_EQ(DayLabel(""), "");
}

TEST(ChartTest, ThreeEntriesAndThenTheBaseline) {
  const ChartSeries series =
      SeriesOf({"16.11.2026;70;22.85;", "17.11.2026;71.5;23.34;", "18.11.2026;69;22.53;"});
  std::vector<ChartPoint> expected = {
      {{750, 334}, ""}, {{715, 330}, "17.11"}, {{680, 333}, "16.11"}};
  for (int x = 645; x >= 50; x -= 35) expected.push_back({{x, 450}, ""});
  ASSERT_EQ(expected.size(), 21U);
  EXPECT_EQ(ChartPoints(Weight(), series), expected);
}

TEST(ChartTest, TwentyOneEntriesReachTheLeftAxis) {
  const std::vector<ChartPoint> points = ChartPoints(Weight(), Days(21));
  ASSERT_EQ(points.size(), 21U);
  EXPECT_EQ(points.front(), (ChartPoint{{750, ChartY(Weight(), 71)}, ""}));
  EXPECT_EQ(points[1], (ChartPoint{{715, ChartY(Weight(), 70)}, "20.11"}));
  EXPECT_EQ(points.back(), (ChartPoint{{50, ChartY(Weight(), 51)}, "1.11"}));
}

TEST(ChartTest, TwentyEntriesLeaveTheLeftAxisAtNothing) {
  const std::vector<ChartPoint> points = ChartPoints(Weight(), Days(20));
  ASSERT_EQ(points.size(), 21U);
  EXPECT_EQ(points[19], (ChartPoint{{85, ChartY(Weight(), 51)}, "1.11"}));
  EXPECT_EQ(points[20], (ChartPoint{{50, 450}, ""}));
}

TEST(ChartTest, OfTwentyTwoEntriesTheOldestIsLeftOut) {
  const std::vector<ChartPoint> points = ChartPoints(Weight(), Days(22));
  ASSERT_EQ(points.size(), 21U);
  EXPECT_EQ(points.front().at, (Point{750, ChartY(Weight(), 72)}));
  EXPECT_EQ(points.back(), (ChartPoint{{50, ChartY(Weight(), 52)}, "2.11"}));
}

TEST(ChartTest, JunkBetweenEntriesKeepsItsColumn) {
  const ChartSeries series = SeriesOf({"16.11.2026;70;22;", "", "junk line", "1;72;",
                                       "17.11.2026;x;23;", "18.11.2026;69;22;", "short"});
  const std::vector<ChartPoint> points = ChartPoints(Weight(), series);
  EXPECT_EQ(Heights(points),
            (std::vector<int>{334, 450, 329, 450, 450, 333, 450, 450, 450, 450, 450,
                              450, 450, 450, 450, 450, 450, 450, 450, 450, 450}));
  std::vector<std::string> labels = {"", "17.11", "1", "junk line", "", "16.11"};
  labels.resize(21);
  EXPECT_EQ(Labels(points), labels);
}

}  // namespace
}  // namespace velnor
