// The WHR: count it from waist and hip and read what it means.

#ifndef VELNOR_BODY_WHR_SCREEN_H_
#define VELNOR_BODY_WHR_SCREEN_H_

#include <span>

#include "base/control.h"
#include "base/form.h"
#include "base/main_window.h"
#include "base/screen.h"
#include "base/session.h"
#include "body/whr.h"
#include "users/profile.h"

namespace velnor {

class WhrScreen final : public Screen {
 public:
  WhrScreen(const SessionState& session, const UserProfile& profile, const Form& form,
            MainWindow& window);

  static std::span<const ControlRow> Controls();
  void Paint(Canvas& canvas) const override;
  bool OnControl(int id, int notification) override;

  // The buttons. Count takes both circumferences over and counts with them.
  void Count();
  void OpenRecord();

  const WhrResult& result() const { return result_; }

 private:
  void PaintInputs(Canvas& canvas) const;

  const SessionState& session_;
  const UserProfile& profile_;
  const Form& form_;
  MainWindow& window_;
  WhrResult result_;
};

}  // namespace velnor

#endif  // VELNOR_BODY_WHR_SCREEN_H_
