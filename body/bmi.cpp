#include "body/bmi.h"

#include <array>
#include <cmath>
#include <limits>

#include "base/number_text.h"

namespace velnor {
namespace {

using Bounds = std::array<double, kBmiClasses>;

constexpr double kUnbounded = std::numeric_limits<double>::infinity();

// The highest BMI of each class. They are doubles and the BMI is a float: a BMI typed to land on a
// bound belongs where its rounding puts it, 20.7 above the bound and 26.4 below it.
constexpr Bounds kMen = {17.5, 20.7, 26.4, 27.8, 31.1, 35.0, 40.0, 50.0, kUnbounded};
constexpr Bounds kWomen = {17.5, 19.1, 25.8, 27.3, 32.3, 35.0, 40.0, 50.0, kUnbounded};

constexpr float kPixelsPerUnit = 12.0F;

const Bounds* BoundsFor(const UserProfile& profile) {
  if (profile.IsMan()) return &kMen;
  return profile.IsWoman() ? &kWomen : nullptr;
}

}  // namespace

float ComputeBmi(std::string_view weight, std::string_view height) {
  const auto kilograms = static_cast<float>(ParseNumber(weight));
  const auto metres = static_cast<float>(ParseNumber(height) / 100.0);
  const float square = metres * metres;
  return kilograms / square;
}

std::optional<int> ClassifyBmi(float bmi, const UserProfile& profile) {
  const Bounds* const bounds = BoundsFor(profile);
  if (bounds == nullptr) return std::nullopt;
  int bmi_class = 1;
  for (const double upper : *bounds) {
    if (double{bmi} <= upper) return bmi_class;
    ++bmi_class;
  }
  return std::nullopt;
}

int BmiMarkerOffset(float bmi) { return static_cast<int>(std::ceil(bmi * kPixelsPerUnit)); }

}  // namespace velnor
