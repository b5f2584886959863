// The graduated scale at the foot of the BMI screen.

#ifndef VELNOR_BODY_BMI_SCALE_H_
#define VELNOR_BODY_BMI_SCALE_H_

#include "base/canvas.h"
#include "users/profile.h"

namespace velnor {

// Draws the scale for the person's sex, with a marker at a BMI below 57. Of a BMI above 57 only
// men get to see the scale, labelled as left behind; at exactly 57, at nothing above 0 and for an
// unknown sex there is none. Leaves a black pen one pixel wide and black text.
void DrawBmiScale(Canvas& canvas, float bmi, const UserProfile& profile);

}  // namespace velnor

#endif  // VELNOR_BODY_BMI_SCALE_H_
