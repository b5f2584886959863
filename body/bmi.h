// The body mass index: the formula, the nine classes, and where the marker of the scale stands.

#ifndef VELNOR_BODY_BMI_H_
#define VELNOR_BODY_BMI_H_

#include <optional>
#include <string_view>

#include "users/profile.h"

namespace velnor {

inline constexpr int kBmiClasses = 9;

// The last count. It belongs to the run of the program, not to a user, and is not saved.
struct BmiResult {
  float value = 0;    // kg/m2
  int bmi_class = 0;  // 1 to kBmiClasses; 0: nothing has been classified yet
};

// Weight in kg by the square of the height, which is given in cm, every step in single precision.
// Text that is no number counts as 0. Nothing is guarded: a height of 0 gives infinity, and with a
// weight of 0 no number.
float ComputeBmi(std::string_view weight, std::string_view height);

// The class of a BMI for the person's sex, 1 (far too little) to 9 (beyond all scales). Returns
// nothing if the sex is not known or `bmi` is no number: then the class stays what it was.
std::optional<int> ClassifyBmi(float bmi, const UserProfile& profile);

// Pixels from the origin of the scale to the marker of a BMI below 57.
int BmiMarkerOffset(float bmi);

}  // namespace velnor

#endif  // VELNOR_BODY_BMI_H_
