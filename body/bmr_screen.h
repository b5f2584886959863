// The BMR: count it from a weight and read what the word means.

#ifndef VELNOR_BODY_BMR_SCREEN_H_
#define VELNOR_BODY_BMR_SCREEN_H_

#include "base/canvas.h"
#include "base/form.h"
#include "base/main_window.h"
#include "body/bmr.h"
#include "body/weight_text.h"
#include "users/profile.h"

namespace velnor {

class BmrScreen {
 public:
  BmrScreen(const UserProfile& profile, WeightText& weight, const Form& form, MainWindow& window);

  void Paint(Canvas& canvas) const;

  // The button: takes the weight over, counts with it and repaints at once.
  void Count();

  const BmrResult& result() const { return result_; }

 private:
  void PaintInputs(Canvas& canvas) const;

  const UserProfile& profile_;
  WeightText& weight_;
  const Form& form_;
  MainWindow& window_;
  BmrResult result_;
};

}  // namespace velnor

#endif  // VELNOR_BODY_BMR_SCREEN_H_
