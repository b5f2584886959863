#include "food/energy_balance.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace velnor {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();

TEST(EnergyBalanceTest, DigestionIsATenthOfTheBasalRate) {
  EXPECT_EQ(EnergyDifference({1500, 300, 2000}), -50.0F);
  EXPECT_EQ(ShownOut({1500, 300, 2000}), 1950.0);
  EXPECT_EQ(ShownEaten({1500, 300, 2000}), 2000.0);
  EXPECT_EQ(EnergyDifference({}), 0.0F);
}

TEST(EnergyBalanceTest, ANegativeTotalCountsInTheDifferenceAlone) {
  EXPECT_EQ(EnergyDifference({1500, -300, 2000}), -650.0F);
  EXPECT_EQ(ShownOut({1500, -300, 2000}), 1650.0);
  EXPECT_EQ(EnergyDifference({1500, 300, -100}), 2050.0F);
  EXPECT_EQ(ShownEaten({1500, 300, -100}), 0.0);
}

// Summed in extended precision, from the rate on: single precision would lose the small ones.
TEST(EnergyBalanceTest, OnlyTheResultIsSinglePrecision) {
  EXPECT_EQ(EnergyDifference({1e8F, 1, 1.1e8F}), 1.0F);
  EXPECT_EQ(EnergyDifference({16777216, 1, 0}), 18454938.0F);
}

TEST(EnergyBalanceTest, TenKcalAreAPixel) {
  EXPECT_EQ(EnergyScaleX(0), 50);
  EXPECT_EQ(EnergyScaleX(1950), 245);
  EXPECT_EQ(EnergyScaleX(2000), 250);
  EXPECT_EQ(EnergyScaleX(2000.1), 250);
  EXPECT_EQ(EnergyScaleX(2009.1), 251) << "rounded up to 2010";
  EXPECT_EQ(EnergyScaleX(6999.5), 750);
  EXPECT_EQ(EnergyScaleX(-110), 39);
  EXPECT_EQ(EnergyScaleX(-1e30), 0);
}

TEST(EnergyBalanceTest, FiguresWithoutEndGiveOne) {
  EXPECT_EQ(EnergyDifference({kInfinity, 0, 0}), kInfinity);
  EXPECT_TRUE(std::isnan(EnergyDifference({kInfinity, 0, kInfinity})));
}

}  // namespace
}  // namespace velnor
