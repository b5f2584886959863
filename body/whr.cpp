#include "body/whr.h"

#include <limits>
#include <span>

#include "base/number_text.h"

namespace velnor {
namespace {

constexpr double kUnbounded = std::numeric_limits<double>::infinity();

struct ShapeRow {
  double upper;
  bool inclusive;  // whether the bound itself still belongs to the row
  int whr_class;
};

// Bounds that are doubles meet a ratio that is a float: 70 by 100 is a float a little below 0.7 and
// thus a pear. The float of 80 by 100 lies a little above 0.8, but a woman of 0.8 is a pear: her
// bound is that float.
constexpr ShapeRow kMen[] = {
    {0.7, false, kPearType}, {1.0, false, kNormType}, {kUnbounded, true, kAppleType}};
constexpr ShapeRow kWomen[] = {{0.8F, true, kPearType}, {kUnbounded, true, kAppleType}};

std::span<const ShapeRow> RowsFor(const UserProfile& profile) {
  if (profile.IsMan()) return kMen;
  if (profile.IsWoman()) return kWomen;
  return {};
}

}  // namespace

float ComputeWhr(std::string_view waist, std::string_view hip) {
  return static_cast<float>(ParseNumber(waist)) / static_cast<float>(ParseNumber(hip));
}

std::optional<int> ClassifyWhr(float whr, const UserProfile& profile) {
  for (const ShapeRow& row : RowsFor(profile)) {
    const double ratio{whr};
    if (row.inclusive ? ratio <= row.upper : ratio < row.upper) return row.whr_class;
  }
  return std::nullopt;
}

}  // namespace velnor
