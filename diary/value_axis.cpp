#include "diary/value_axis.h"

#include <algorithm>
#include <cmath>

#include "diary/markup.h"

namespace velnor {
namespace {

constexpr int kMostDecimals = 3;
constexpr double kLeastSpan = 1e-2;

int DecimalsOf(double step) {
  return std::clamp(static_cast<int>(-std::floor(std::log10(step) + 1e-9)), 0, kMostDecimals);
}

// How often the step goes into the value, downwards or upwards, but for rounding.
double Below(double value, double step) { return std::floor(value / step + 1e-9); }
double Above(double value, double step) { return std::ceil(value / step - 1e-9); }

}  // namespace

std::vector<double> ValueAxis::Ticks() const {
  std::vector<double> ticks;
  const auto count = static_cast<int>(std::lround((high - low) / step));
  for (int i = 0; i <= count; ++i) ticks.push_back(low + i * step);
  return ticks;
}

std::string ValueAxis::TickText(double tick) const { return NumberText(tick, DecimalsOf(step)); }

ValueAxis ChooseAxis(double low, double high, int most) {
  if (!std::isfinite(low) || !std::isfinite(high)) return {};
  if (high < low) std::swap(low, high);
  most = std::max(most, 2);  // what lies on both sides of 0 takes two
  const double least = std::max(kLeastSpan, 1e-9 * std::max(std::abs(low), std::abs(high)));
  if (high - low < least) high = low + least;
  double power = std::pow(10, std::floor(std::log10((high - low) / most)));
  for (;; power *= 10) {
    for (const int factor : {1, 2, 5}) {
      const double step = power * factor;
      const double first = Below(low, step);
      const double last = std::max(Above(high, step), first + 1);
      if (last - first <= most) return {.low = first * step, .high = last * step, .step = step};
    }
  }
}

}  // namespace velnor
