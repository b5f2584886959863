// The trend of a series of body weights: a line through them that no single day can bend.

#ifndef VELNOR_DIARY_WEIGHT_TREND_H_
#define VELNOR_DIARY_WEIGHT_TREND_H_

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "diary/statistics.h"

namespace velnor {

// How many of the nearest weights decide on the trend of a day; fewer than the least make none.
inline constexpr std::size_t kTrendPoints = 21;
inline constexpr std::size_t kLeastTrendPoints = 5;

// The trend on the days of the weights, which go by day, one each. Returns nothing if there are too
// few. Locally weighted linear regression with tricube weights over the nearest points, the line
// found anew three times with bisquare weights, which take what lies six times the median distance
// away out of it. Source: W. S. Cleveland, "Robust Locally Weighted Regression and Smoothing
// Scatterplots", Journal of the American Statistical Association 74 (1979), 829-836.
std::vector<DayValue> WeightTrend(std::span<const DayValue> weights);

// By how many kg the trend changes within the range, and the same a week; nothing when fewer than
// seven days of it lie there.
struct TrendChange {
  double kilograms = 0;
  double kilograms_a_week = 0;
};
std::optional<TrendChange> ChangeWithin(std::span<const DayValue> trend, const DayRange& range);

}  // namespace velnor

#endif  // VELNOR_DIARY_WEIGHT_TREND_H_
