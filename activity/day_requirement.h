// What the day of the user who is logged in is measured by: the requirement of the person's group,
// or limits of their own. The requirement screen shows and changes it; the balance, the charts and
// the diary read it.

#ifndef VELNOR_ACTIVITY_DAY_REQUIREMENT_H_
#define VELNOR_ACTIVITY_DAY_REQUIREMENT_H_

#include "activity/personal_limits.h"
#include "activity/requirement.h"
#include "base/session.h"
#include "users/profile.h"

namespace velnor {

class DayRequirement {
 public:
  DayRequirement(const SessionState& session, const UserProfile& profile)
      : session_(session), profile_(profile) {}

  // Takes the limits of the user who has just logged in.
  void OnLogin();

  // Brings the requirement up to date with profile and limits. Every screen that measures by it
  // does so when it is chosen, so that it is never that of the user before.
  void Update();

  // Puts limits in force, or takes them out of force, from the next login and the next Update on.
  // What cannot be written is not reported.
  void Activate(const PersonalLimits& limits);
  void Clear();

  const DailyRequirement& requirement() const { return requirement_; }
  const PersonalLimits& limits() const { return limits_; }
  // Whether the limits are shown as active: this follows a login, not Activate.
  bool limits_active() const { return limits_active_; }

  // The limits while they are shown as active, otherwise the requirement as it was last brought up
  // to date.
  RequirementBounds Bounds() const;

 private:
  PersonalLimits ReadLimits() const;

  const SessionState& session_;
  const UserProfile& profile_;
  PersonalLimits limits_;
  bool limits_active_ = false;
  DailyRequirement requirement_;
};

}  // namespace velnor

#endif  // VELNOR_ACTIVITY_DAY_REQUIREMENT_H_
