// The basal metabolic rate: what a body spends a day on staying alive.

#ifndef VELNOR_BODY_BMR_H_
#define VELNOR_BODY_BMR_H_

#include <string_view>

#include "users/profile.h"

namespace velnor {

// The last count. It belongs to the run of the program, not to a user, and is not saved.
struct BmrResult {
  float value = 0;  // kcal a day
};

// The equation of Harris and Benedict in form, with coefficients of the program's own; summed in
// double precision. Weight in kg; height (cm), age (years) and sex from the profile. Text that is
// no number counts as 0; without a known sex the rate is 0.
float ComputeBmr(std::string_view weight, const UserProfile& profile);

}  // namespace velnor

#endif  // VELNOR_BODY_BMR_H_
