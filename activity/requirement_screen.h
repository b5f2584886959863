// The daily requirement: what the person's group needs, and limits of their own instead.

#ifndef VELNOR_ACTIVITY_REQUIREMENT_SCREEN_H_
#define VELNOR_ACTIVITY_REQUIREMENT_SCREEN_H_

#include <span>

#include "activity/day_requirement.h"
#include "base/control.h"
#include "base/form.h"
#include "base/main_window.h"
#include "base/message_boxes.h"
#include "base/screen.h"
#include "users/profile.h"

namespace velnor {

class RequirementScreen final : public Screen {
 public:
  RequirementScreen(DayRequirement& requirement, const UserProfile& profile, Form& form,
                    MainWindow& window, MessageBoxes& message_boxes);

  static std::span<const ControlRow> Controls();
  void OnChosen() override;
  void Refresh() override;
  void Paint(Canvas& canvas) const override;
  bool OnControl(int id, int notification) override;

  // The buttons.
  void Activate();
  void Clear();

 private:
  void ShowRequirement();
  void ShowLimits();

  DayRequirement& requirement_;
  const UserProfile& profile_;
  Form& form_;
  MainWindow& window_;
  MessageBoxes& message_boxes_;
};

}  // namespace velnor

#endif  // VELNOR_ACTIVITY_REQUIREMENT_SCREEN_H_
