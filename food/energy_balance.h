// The energy balance: what a body gives out in a day against what was eaten. Used by its screen.

#ifndef VELNOR_FOOD_ENERGY_BALANCE_H_
#define VELNOR_FOOD_ENERGY_BALANCE_H_

#include <cstddef>

namespace velnor {

// Characters of the typed basal metabolic rate that count.
inline constexpr std::size_t kBmrTextLimit = 10;

// All in kcal, single precision.
struct EnergyFigures {
  float bmr = 0;     // basal metabolic rate, per day
  float burned = 0;  // by activities
  float eaten = 0;
};

// Burned energy, basal metabolic rate and digestion, which is taken as a tenth of the latter, less
// what was eaten. Infinite figures give an infinite difference or none (nan).
float EnergyDifference(const EnergyFigures& figures);

// What the scales show: below 0 burned and eaten energy count as 0.
double ShownEaten(const EnergyFigures& figures);
double ShownOut(const EnergyFigures& figures);  // burned, basal metabolic rate and digestion

// The scales reach from 0 to, but not including, this.
inline constexpr double kEnergyScaleEnd = 7000;

// Where an amount below the end of the scale lies: 10 kcal to the pixel, 0 at x 50. Negative ones
// lie left of it, at the farthest on the edge of the window.
int EnergyScaleX(double kcal);

}  // namespace velnor

#endif  // VELNOR_FOOD_ENERGY_BALANCE_H_
