// The BMR: count it from a weight and read what the word means.

#ifndef VELNOR_BODY_BMR_SCREEN_H_
#define VELNOR_BODY_BMR_SCREEN_H_

#include <span>

#include "base/control.h"
#include "base/form.h"
#include "base/main_window.h"
#include "base/screen.h"
#include "body/bmr.h"
#include "body/weight_text.h"
#include "users/profile.h"

namespace velnor {

class BmrScreen final : public Screen {
 public:
  BmrScreen(const UserProfile& profile, WeightText& weight, const Form& form, MainWindow& window);

  static std::span<const ControlRow> Controls();
  void Paint(Canvas& canvas) const override;
  bool OnControl(int id, int notification) override;

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
