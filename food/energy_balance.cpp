#include "food/energy_balance.h"

#include <algorithm>
#include <cmath>

namespace velnor {
namespace {

constexpr double kDigestion = 0.1;  // of the basal metabolic rate
constexpr double kKcalPerPixel = 10;
constexpr double kScaleLeft = 50;

}  // namespace

float EnergyDifference(const EnergyFigures& figures) {
  const long double bmr = figures.bmr;
  return static_cast<float>((bmr + figures.burned) + bmr * kDigestion - figures.eaten);
}

double ShownEaten(const EnergyFigures& figures) { return std::max(figures.eaten, 0.0F); }

double ShownOut(const EnergyFigures& figures) {
  const long double bmr = figures.bmr;
  return static_cast<double>(std::max(figures.burned, 0.0F) + bmr + bmr * kDigestion);
}

int EnergyScaleX(double kcal) {
  return static_cast<int>(std::max(std::ceil(kcal) / kKcalPerPixel + kScaleLeft, 0.0));
}

}  // namespace velnor
