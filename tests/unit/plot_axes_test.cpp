#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "diary/time_axis.h"
#include "diary/value_axis.h"

namespace velnor {
namespace {

DayNumber Day(std::string_view date) { return DayOfIsoDate(date).value(); }

DayRange Range(std::string_view first, std::string_view last) { return {Day(first), Day(last)}; }

TEST(ValueAxisTest, StandsOnRoundNumbers) {
  EXPECT_EQ(ChooseAxis(0, 2645, 5), (ValueAxis{.low = 0, .high = 3000, .step = 1000}));
  EXPECT_EQ(ChooseAxis(70.3, 72.2, 5), (ValueAxis{.low = 70, .high = 72.5, .step = 0.5}));
  EXPECT_EQ(ChooseAxis(-1, 1, 1), (ValueAxis{.low = -1, .high = 1, .step = 1}));
}

TEST(ValueAxisTest, HoldsItsValuesInFewSteps) {
  for (const double low : {-1e60, -300.0, 0.0, 0.004, 71.0, 1e30}) {
    for (const double width : {0.0, 1e-9, 0.7, 12.0, 9999.0, 1e40}) {
      const ValueAxis axis = ChooseAxis(low, low + width, 5);
      EXPECT_LE(axis.low, low + axis.step * 1e-6);
      EXPECT_GE(axis.high, low + width - axis.step * 1e-6);
      EXPECT_GT(axis.high, axis.low);
      EXPECT_LE(axis.Ticks().size(), 6U) << low << " and " << width;
    }
  }
}

TEST(ValueAxisTest, WhatIsNoNumberHasOneStep) {
  EXPECT_EQ(ChooseAxis(0, std::numeric_limits<double>::infinity(), 5), ValueAxis());
  EXPECT_EQ(ChooseAxis(std::numeric_limits<double>::quiet_NaN(), 1, 5), ValueAxis());
}

TEST(ValueAxisTest, LabelsHaveTheDecimalsOfTheStep) {
  const ValueAxis axis = ChooseAxis(70.3, 72.2, 5);
  EXPECT_EQ(axis.TickText(70), "70.0");
  EXPECT_EQ(ChooseAxis(0, 0.03, 3).TickText(0.01), "0.01");
  EXPECT_EQ(ChooseAxis(0, 3000, 3).TickText(2000), "2\u202F000");
}

TEST(TimeAxisTest, EveryDayHasAPlace) {
  const TimeAxis time = {.range = {10, 19}, .left = 50, .right = 150};
  EXPECT_EQ(time.DayWidth(), 10);
  EXPECT_EQ(time.X(10), 50);
  EXPECT_EQ(time.Middle(19), 145);
}

TEST(TimeAxisTest, DaysAreGatheredUntilTheyHaveRoom) {
  EXPECT_EQ(ChooseUnit({1, 100}, 100), BucketUnit::kDay);
  EXPECT_EQ(ChooseUnit({1, 101}, 100), BucketUnit::kWeek);
  EXPECT_EQ(ChooseUnit({1, 1000}, 100), BucketUnit::kMonth);
  EXPECT_EQ(ChooseUnit({1, 36500}, 100), BucketUnit::kYear);
}

TEST(TimeAxisTest, PiecesAreThoseOfTheCalendarCutToTheRange) {
  const DayRange range = Range("2026-11-18", "2026-12-02");
  const std::vector<DayRange> weeks = {Range("2026-11-18", "2026-11-22"),
                                       Range("2026-11-23", "2026-11-29"),
                                       Range("2026-11-30", "2026-12-02")};
  EXPECT_EQ(BucketsOf(range, BucketUnit::kWeek), weeks);
  const std::vector<DayRange> months = {Range("2026-11-18", "2026-11-30"),
                                        Range("2026-12-01", "2026-12-02")};
  EXPECT_EQ(BucketsOf(range, BucketUnit::kMonth), months);
  EXPECT_EQ(BucketsOf(range, BucketUnit::kYear), std::vector<DayRange>{range});
  EXPECT_EQ(BucketsOf(range, BucketUnit::kDay).size(), 15U);
}

TEST(TimeAxisTest, APieceWithoutAValueIsAGap) {
  const std::vector<DayValue> values = {{0, 100}, {1, 10}, {2, 20}, {9, 90}};
  const std::vector<DayRange> buckets = {{1, 3}, {4, 6}, {7, 9}};
  const std::vector<std::optional<double>> expected = {15, std::nullopt, 90};
  EXPECT_EQ(BucketMeans(values, buckets), expected);
}

std::vector<std::string> Labels(const DayRange& range, int most) {
  std::vector<std::string> labels;
  for (const DateTick& tick : DateTicks(range, most)) labels.push_back(tick.label);
  return labels;
}

TEST(TimeAxisTest, WeeksAreLabelledOnMondays) {
  using Texts = std::vector<std::string>;
  EXPECT_EQ(Labels(Range("2026-10-18", "2026-11-16"), 5),
            (Texts{"19 Oct", "26 Oct", "2 Nov", "9 Nov", "16 Nov"}));
  EXPECT_EQ(Labels(Range("2026-11-10", "2026-11-16"), 4),
            (Texts{"10 Nov", "12 Nov", "14 Nov", "16 Nov"}));
  EXPECT_EQ(Labels(Range("2025-11-17", "2026-11-16"), 5), (Texts{"2026", "Apr", "Jul", "Oct"}));
  EXPECT_EQ(Labels(Range("2016-11-17", "2026-11-16"), 6),
            (Texts{"2018", "2020", "2022", "2024", "2026"}));
}

TEST(TimeAxisTest, ThereAreNeverMoreLabelsThanRoom) {
  for (const int days : {1, 7, 30, 31, 90, 365, 400, 1100, 3652, 9000, 36500}) {
    const DayNumber last = Day("2026-11-16");
    for (const int most : {4, 5, 11}) {
      const auto ticks = DateTicks({last - days + 1, last}, most);
      EXPECT_LE(ticks.size(), static_cast<std::size_t>(most)) << days;
      EXPECT_FALSE(ticks.empty()) << days;
    }
  }
}

}  // namespace
}  // namespace velnor
