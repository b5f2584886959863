// What the BMI screen says: a verdict for each class, and notes for those whom a BMI tells little.

#ifndef VELNOR_BODY_BMI_VERDICTS_H_
#define VELNOR_BODY_BMI_VERDICTS_H_

#include <span>

#include "base/canvas.h"
#include "body/verdict.h"
#include "users/profile.h"

namespace velnor {

// The lines for a class of BmiResult, in the order of drawing. No lines for class 0 or any number
// that is no class.
std::span<const VerdictLine> BmiVerdict(int bmi_class);

// For people below 20; an age that is no number counts as 0.
std::span<const PlacedText> BmiAgeNote(const UserProfile& profile);

// For pregnant women and for athletes.
std::span<const PlacedText> BmiBodyNote(const UserProfile& profile);

}  // namespace velnor

#endif  // VELNOR_BODY_BMI_VERDICTS_H_
