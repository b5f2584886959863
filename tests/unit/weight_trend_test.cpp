#include "diary/weight_trend.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "tests/unit/diary_series.h"

namespace velnor {
namespace {

#include "tests/unit/diary_figures.inc"

// R leaves out what is within a thousandth of the reach, which the paper does not; a gram is what
// that makes at the most.
constexpr double kGram = 0.001;

void ExpectNear(const std::vector<DayValue>& values, std::span<const DayValue> figures) {
  ASSERT_EQ(values.size(), figures.size());
  for (std::size_t i = 0; i < values.size(); ++i) {
    EXPECT_EQ(values[i].day, figures[i].day);
    EXPECT_NEAR(values[i].value, figures[i].value, kGram) << i;
  }
}

TEST(WeightTrendTest, IsThatOfR) {
  std::vector<DayValue> weights = BodyWeights(SeriesDays());
  ExpectNear(WeightTrend(weights), kDailyTrendFigures);
  std::erase_if(weights,
                [](const DayValue& weight) { return (weight.day - kSeriesFirst) % 3 == 2; });
  ExpectNear(WeightTrend(weights), kSparseTrendFigures);
}

// A day's weight that goes up and down as bodies do.
double Weight(int day) { return 80 - 0.05 * day + 0.4 * std::sin(day * 2.1); }

TEST(WeightTrendTest, NoSingleDayBendsIt) {
  std::vector<DayValue> weights;
  weights.reserve(60);
  for (int day = 0; day < 60; ++day) weights.push_back({day, Weight(day)});
  const std::vector<DayValue> plain = WeightTrend(weights);
  for (const std::size_t bad : {0U, 1U, 30U, 58U, 59U}) {
    std::vector<DayValue> spoiled = weights;
    spoiled[bad].value += 20;
    const std::vector<DayValue> trend = WeightTrend(spoiled);
    for (std::size_t i = 0; i < trend.size(); ++i) {
      EXPECT_NEAR(trend[i].value, plain[i].value, 0.25) << bad << " bends " << i;
    }
  }
}

TEST(WeightTrendTest, AStraightLineStays) {
  std::vector<DayValue> weights;
  for (int day = 0; day < 40; day += 2) weights.push_back({day, 80 - day * 0.1});
  const std::vector<DayValue> trend = WeightTrend(weights);
  for (std::size_t i = 0; i < weights.size(); ++i) {
    EXPECT_NEAR(trend[i].value, weights[i].value, 1e-9);
  }
}

TEST(WeightTrendTest, FourWeightsAreNoTrend) {
  std::vector<DayValue> weights = {{1, 70}, {2, 70}, {3, 70}, {4, 70}};
  EXPECT_TRUE(WeightTrend(weights).empty());
  weights.push_back({5, 70});
  EXPECT_EQ(WeightTrend(weights).size(), 5U);
}

TEST(WeightTrendTest, ItsChangeIsTakenWithinTheRange) {
  std::vector<DayValue> trend;
  for (int day = 0; day <= 28; ++day) trend.push_back({day, 80 - day * 0.1});
  const auto change = ChangeWithin(trend, {7, 100});
  ASSERT_TRUE(change);
  EXPECT_NEAR(change->kilograms, -2.1, 1e-9);
  EXPECT_NEAR(change->kilograms_a_week, -0.7, 1e-9);
  EXPECT_FALSE(ChangeWithin(trend, {22, 28}));
  EXPECT_TRUE(ChangeWithin(trend, {21, 28}));
  EXPECT_FALSE(ChangeWithin(trend, {50, 90}));
  EXPECT_FALSE(ChangeWithin({}, {50, 90}));
}

}  // namespace
}  // namespace velnor
