#include "diary/weight_trend.h"

#include <algorithm>
#include <cmath>

namespace velnor {
namespace {

constexpr int kRobustSteps = 3;
constexpr double kBisquareReach = 6;  // times the median distance
constexpr double kNoDistance = 1e-7;  // of the median, beside the mean: the line fits

double Cube(double x) { return x * x * x; }

double Square(double x) { return x * x; }

struct Window {
  std::size_t first;
  std::size_t last;  // included
};

// The window of `count` points nearest to point `i`, given that of the point before it.
Window Slide(std::span<const DayValue> points, std::size_t i, Window window) {
  while (window.last + 1 < points.size() &&
         points[i].day - points[window.first].day > points[window.last + 1].day - points[i].day) {
    ++window.first;
    ++window.last;
  }
  return window;
}

// The value of the local line at point `i`. A neighbourhood without weight keeps its mean.
double FitAt(std::span<const DayValue> points, std::span<const double> robustness, std::size_t i,
             const Window& window) {
  const double x = points[i].day;
  const double reach = std::max(x - points[window.first].day, points[window.last].day - x);
  double sum = 0;
  double sum_x = 0;
  double sum_y = 0;
  double plain_y = 0;
  const auto weight_of = [&](std::size_t j) {
    const double distance = std::abs(points[j].day - x) / reach;
    return robustness[j] * Cube(1 - std::min(1.0, Cube(distance)));
  };
  for (std::size_t j = window.first; j <= window.last; ++j) {
    const double weight = weight_of(j);
    sum += weight;
    sum_x += weight * points[j].day;
    sum_y += weight * points[j].value;
    plain_y += points[j].value;
  }
  if (sum <= 0) return plain_y / static_cast<double>(window.last - window.first + 1);
  const double mean_x = sum_x / sum;
  const double mean_y = sum_y / sum;
  double spread = 0;
  double slope = 0;
  for (std::size_t j = window.first; j <= window.last; ++j) {
    const double weight = weight_of(j);
    spread += weight * Square(points[j].day - mean_x);
    slope += weight * (points[j].day - mean_x) * (points[j].value - mean_y);
  }
  // Points that stand in one place carry no slope.
  const bool has_slope = std::sqrt(spread / sum) > 0.001 * reach;
  return has_slope ? mean_y + slope / spread * (x - mean_x) : mean_y;
}

double MedianOf(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::ranges::nth_element(values, middle);
  if (values.size() % 2 != 0) return *middle;
  return (*middle + *std::max_element(values.begin(), middle)) / 2;
}

}  // namespace

std::vector<DayValue> WeightTrend(std::span<const DayValue> weights) {
  if (weights.size() < kLeastTrendPoints) return {};
  std::vector<DayValue> trend(weights.begin(), weights.end());
  std::vector<double> robustness(weights.size(), 1.0);
  for (int step = 0; step <= kRobustSteps; ++step) {
    Window window = {.first = 0, .last = std::min(kTrendPoints, weights.size()) - 1};
    std::vector<double> distances;
    double sum = 0;
    for (std::size_t i = 0; i < weights.size(); ++i) {
      window = Slide(weights, i, window);
      trend[i].value = FitAt(weights, robustness, i, window);
      distances.push_back(std::abs(weights[i].value - trend[i].value));
      sum += distances.back();
    }
    const double reach = kBisquareReach * MedianOf(distances);
    if (reach <= kNoDistance * sum / static_cast<double>(weights.size())) break;
    for (std::size_t i = 0; i < weights.size(); ++i) {
      robustness[i] = Square(1 - std::min(1.0, Square(distances[i] / reach)));
    }
  }
  return trend;
}

std::optional<TrendChange> ChangeWithin(std::span<const DayValue> trend, const DayRange& range) {
  const auto first = std::ranges::lower_bound(trend, range.first, {}, &DayValue::day);
  const auto end = std::ranges::upper_bound(trend, range.last, {}, &DayValue::day);
  if (first >= end || std::prev(end)->day - first->day < kWeekDays) return std::nullopt;
  const double change = std::prev(end)->value - first->value;
  const int days = std::prev(end)->day - first->day;
  return TrendChange{.kilograms = change, .kilograms_a_week = change / days * kWeekDays};
}

}  // namespace velnor
