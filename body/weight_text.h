// The body weight that was last counted with: typed once, it serves the BMI, the BMR and the weight
// report.

#ifndef VELNOR_BODY_WEIGHT_TEXT_H_
#define VELNOR_BODY_WEIGHT_TEXT_H_

#include <cstddef>
#include <string>

#include "base/control.h"
#include "base/form.h"

namespace velnor {

// Belongs to the run of the program, not to a user, and is not saved.
struct WeightText {
  static constexpr int kEdit = 101;  // the one edit that both screens show
  static constexpr std::size_t kLimit = 29;

  std::string text = {};  // kg, as typed, at most kLimit characters; empty until the first count

  void TakeFrom(const Form& form) { text = form.ReadText(kEdit, kLimit); }
};

// The row of that edit, in the tables of both screens.
inline constexpr ControlRow kWeightField =
    NumberField(WeightText::kEdit, {170, 90, 60, 23}, WeightText::kLimit, "Put Your weight [kg]");

}  // namespace velnor

#endif  // VELNOR_BODY_WEIGHT_TEXT_H_
