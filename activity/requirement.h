// The daily requirement of energy and nutrients, by the group that a person's profile puts them in
// or by the limits they have set themselves.

#ifndef VELNOR_ACTIVITY_REQUIREMENT_H_
#define VELNOR_ACTIVITY_REQUIREMENT_H_

#include <array>

#include "activity/personal_limits.h"
#include "users/profile.h"

namespace velnor {

struct Range {
  int lower = 0;
  int upper = 0;
  bool operator==(const Range&) const = default;
};

struct DailyRequirement {
  Range calories;      // kcal; an upper value of 0 means that no requirement is known
  Range protein;       // g
  Range fat;           // g
  Range carbohydrate;  // g

  bool IsKnown() const { return calories.upper != 0; }
  bool operator==(const DailyRequirement&) const = default;
};

// Brings `requirement` up to date. Limits in force give its values, cut to whole numbers (and to
// the range of int). Otherwise every rule of the table that fits the profile overwrites what was
// there, in the table's order. When none fits, or the lower calories of the limits are exactly 4,
// the values stay as they were, but the upper calories become 0. An age that is no number counts as
// 0. Source of the table: the program's own recommendations by age, sex and way of life.
void UpdateRequirement(const UserProfile& profile, const PersonalLimits& limits,
                       DailyRequirement& requirement);

// Lower and upper bounds of the four, in the order of Limit.
using RequirementBounds = std::array<double, kLimitCount>;

// The bounds of a requirement, and those that personal limits give by themselves, with their
// decimals.
RequirementBounds BoundsOf(const DailyRequirement& requirement);
RequirementBounds BoundsOf(const PersonalLimits& limits);

}  // namespace velnor

#endif  // VELNOR_ACTIVITY_REQUIREMENT_H_
