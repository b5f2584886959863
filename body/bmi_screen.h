// The BMI: count it from a weight, read what it means and where it stands on a scale.

#ifndef VELNOR_BODY_BMI_SCREEN_H_
#define VELNOR_BODY_BMI_SCREEN_H_

#include "base/canvas.h"
#include "base/form.h"
#include "base/main_window.h"
#include "body/bmi.h"
#include "body/weight_text.h"
#include "users/profile.h"

namespace velnor {

class BmiScreen {
 public:
  BmiScreen(const UserProfile& profile, WeightText& weight, const Form& form, MainWindow& window);

  void Paint(Canvas& canvas) const;

  // The button: takes the weight over and counts with it.
  void Count();

  const BmiResult& result() const { return result_; }

 private:
  void PaintInputs(Canvas& canvas) const;

  const UserProfile& profile_;
  WeightText& weight_;
  const Form& form_;
  MainWindow& window_;
  BmiResult result_;
};

}  // namespace velnor

#endif  // VELNOR_BODY_BMI_SCREEN_H_
