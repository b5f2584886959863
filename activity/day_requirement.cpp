#include "activity/day_requirement.h"

#include <optional>
#include <string>

#include "base/transaction.h"
#include "users/user_files.h"

namespace velnor {

PersonalLimits DayRequirement::ReadLimits() const {
  const std::optional<std::string> path = session_.UserFile(kLimitsFile);
  return path ? ReadPersonalLimits(*path) : PersonalLimits();
}

void DayRequirement::OnLogin() {
  limits_ = ReadLimits();
  limits_active_ = limits_.ShowAsActive();
}

void DayRequirement::Update() { UpdateRequirement(profile_, ReadLimits(), requirement_); }

void DayRequirement::Activate(const PersonalLimits& limits) {
  if (const auto path = session_.UserFile(kLimitsFile)) {
    Transaction deed(session_.base_folder);
    WritePersonalLimits(deed, *path, limits);
    deed.CommitUnreported();
  }
  limits_ = ReadLimits();
}

void DayRequirement::Clear() {
  if (const auto path = session_.UserFile(kLimitsFile)) {
    Transaction deed(session_.base_folder);
    WriteNoLimits(deed, *path);
    deed.CommitUnreported();
  }
  limits_active_ = false;
}

RequirementBounds DayRequirement::Bounds() const {
  return limits_active_ ? BoundsOf(limits_) : BoundsOf(requirement_);
}

}  // namespace velnor
