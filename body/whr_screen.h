// The WHR: count it from waist and hip and read what it means.

#ifndef VELNOR_BODY_WHR_SCREEN_H_
#define VELNOR_BODY_WHR_SCREEN_H_

#include "base/canvas.h"
#include "base/form.h"
#include "base/main_window.h"
#include "body/whr.h"
#include "users/profile.h"

namespace velnor {

class WhrScreen {
 public:
  WhrScreen(const UserProfile& profile, const Form& form, MainWindow& window);

  void Paint(Canvas& canvas) const;

  // The button: takes both circumferences over and counts with them.
  void Count();

  const WhrResult& result() const { return result_; }

 private:
  void PaintInputs(Canvas& canvas) const;

  const UserProfile& profile_;
  const Form& form_;
  MainWindow& window_;
  WhrResult result_;
};

}  // namespace velnor

#endif  // VELNOR_BODY_WHR_SCREEN_H_
