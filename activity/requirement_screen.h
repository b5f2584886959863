// The daily requirement: what the person's group needs, and limits of their own instead.

#ifndef VELNOR_ACTIVITY_REQUIREMENT_SCREEN_H_
#define VELNOR_ACTIVITY_REQUIREMENT_SCREEN_H_

#include "activity/personal_limits.h"
#include "activity/requirement.h"
#include "base/canvas.h"
#include "base/form.h"
#include "base/main_window.h"
#include "base/message_boxes.h"
#include "base/session.h"
#include "users/profile.h"

namespace velnor {

class RequirementScreen {
 public:
  RequirementScreen(const SessionState& session, const UserProfile& profile, Form& form,
                    MainWindow& window, MessageBoxes& message_boxes);

  // Takes the limits of the user who has just logged in.
  void OnLogin();
  // Brings the requirement up to date with profile and limits.
  void Update();

  void Paint(Canvas& canvas);

  // The buttons.
  void Activate();
  void Clear();

  const DailyRequirement& requirement() const { return requirement_; }
  // The bounds that the day is measured by elsewhere: the limits while they are shown as active,
  // otherwise the requirement as it was last brought up to date.
  RequirementBounds DayBounds() const;

 private:
  PersonalLimits ReadLimits() const;
  void ShowRequirement();
  void ShowLimits();

  const SessionState& session_;
  const UserProfile& profile_;
  Form& form_;
  MainWindow& window_;
  MessageBoxes& message_boxes_;
  PersonalLimits limits_;
  bool limits_active_ = false;  // shown as active; follows a login, not the button
  DailyRequirement requirement_;
};

}  // namespace velnor

#endif  // VELNOR_ACTIVITY_REQUIREMENT_SCREEN_H_
