#include "food/balance_scale.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace velnor {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

const BalanceScale& Calories() { return BalanceScales()[0]; }
const BalanceScale& Carbohydrates() { return BalanceScales()[3]; }

constexpr DailyRequirement kRequirement = {{2100, 2300}, {60, 80}, {50, 70}, {250, 300}};

TEST(BalanceScaleTest, EveryScaleHasItsSixLabelsBeforeItsEnd) {
  ASSERT_EQ(BalanceScales().size(), 4U);
  for (const BalanceScale& scale : BalanceScales()) {
    for (int tick = 0; tick <= 7; ++tick) {
      EXPECT_EQ(ScaleX(scale, tick * scale.unit_per_tick), 50 + tick * 100);
    }
    EXPECT_FALSE(IsOutOfScale(scale, 7.0 * scale.unit_per_tick));
    EXPECT_TRUE(IsOutOfScale(scale, 7.0 * scale.unit_per_tick + 0.5));
  }
}

TEST(BalanceScaleTest, WhatLiesBeyondAnEndGivesTheEnd) {
  EXPECT_EQ(ScaleX(Calories(), -100), 50);
  EXPECT_EQ(ScaleX(Calories(), 1e300), 750);
  EXPECT_EQ(ScaleX(Calories(), kInfinity), 750);
  EXPECT_EQ(ScaleX(Calories(), 2155), 265);
}

// The tolerance belongs to the norm, its ends included.
TEST(BalanceScaleTest, TheNormReachesAsFarAsItsTolerance) {
  const auto text = [](double eaten) { return StandingText(Calories(), eaten, kRequirement); };
  EXPECT_EQ(text(1999.99), "-100.01");
  EXPECT_EQ(text(2000), "NORM");
  EXPECT_EQ(text(2200), "NORM");
  EXPECT_EQ(text(2400), "NORM");
  EXPECT_EQ(text(2400.5), "+100.5");
  EXPECT_EQ(text(0), "-2100.");
  EXPECT_EQ(text(kInfinity), "+inf");
  EXPECT_EQ(StandingOf(Calories(), 1999.99, kRequirement), Standing::kBelow);
  EXPECT_EQ(StandingOf(Calories(), 2000, kRequirement), Standing::kInside);
  EXPECT_EQ(StandingOf(Calories(), 2400, kRequirement), Standing::kInside);
  EXPECT_EQ(StandingOf(Calories(), 2400.5, kRequirement), Standing::kAbove);
}

TEST(BalanceScaleTest, EveryScaleHasItsOwnTolerance) {
  const int ranges[] = {100, 8, 8, 20};
  for (std::size_t i = 0; i < 4; ++i) {
    const BalanceScale& scale = BalanceScales()[i];
    const Range& norm = kRequirement.*scale.norm;
    EXPECT_EQ(scale.range, ranges[i]);
    EXPECT_NE(scale.range_text.find("+/- " + std::to_string(ranges[i])), std::string::npos);
    EXPECT_EQ(StandingText(scale, norm.upper + ranges[i], kRequirement), "NORM");
    EXPECT_EQ(StandingText(scale, norm.upper + ranges[i] + 1, kRequirement),
              "+" + std::to_string(ranges[i] + 1) + ".");
    EXPECT_EQ(StandingText(scale, norm.lower - ranges[i] - 1, kRequirement),
              "-" + std::to_string(ranges[i] + 1) + ".");
  }
}

TEST(BalanceScaleTest, WithoutARequirementThereIsNoBalance) {
  const DailyRequirement unknown = {{2100, 0}, {60, 80}, {50, 70}, {250, 300}};
  EXPECT_EQ(StandingText(Carbohydrates(), 100, unknown), "unavailable");
  EXPECT_EQ(StandingOf(Carbohydrates(), 100, unknown), Standing::kUnknown);
}

TEST(BalanceScaleTest, EachScaleReadsItsOwnFigures) {
  const DayTotals totals = {1, 2, 3, 4};
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(totals.*BalanceScales()[i].eaten, static_cast<double>(i) + 1);
  }
  EXPECT_EQ(kRequirement.*BalanceScales()[1].norm, (Range{60, 80}));
  EXPECT_EQ(kRequirement.*BalanceScales()[2].norm, (Range{50, 70}));
}

}  // namespace
}  // namespace velnor
