// The BMI: count it from a weight, read what it means and where it stands on a scale.

#ifndef VELNOR_BODY_BMI_SCREEN_H_
#define VELNOR_BODY_BMI_SCREEN_H_

#include <span>

#include "base/control.h"
#include "base/form.h"
#include "base/main_window.h"
#include "base/screen.h"
#include "base/session.h"
#include "body/bmi.h"
#include "body/weight_text.h"
#include "users/profile.h"

namespace velnor {

class BmiScreen final : public Screen {
 public:
  BmiScreen(const SessionState& session, const UserProfile& profile, WeightText& weight,
            const Form& form, MainWindow& window);

  static std::span<const ControlRow> Controls();
  void Paint(Canvas& canvas) const override;
  bool OnControl(int id, int notification) override;

  // The buttons. Count takes the weight over and counts with it.
  void Count();
  void OpenRecord();

  const BmiResult& result() const { return result_; }

 private:
  void PaintInputs(Canvas& canvas) const;

  const SessionState& session_;
  const UserProfile& profile_;
  WeightText& weight_;
  const Form& form_;
  MainWindow& window_;
  BmiResult result_;
};

}  // namespace velnor

#endif  // VELNOR_BODY_BMI_SCREEN_H_
