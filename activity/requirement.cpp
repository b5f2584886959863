#include "activity/requirement.h"

#include <algorithm>
#include <limits>

#include "base/number_text.h"

namespace velnor {
namespace {

enum class Sex { kAny, kMen, kWomen };
// What the table asks of life style and other.
enum class Group { kAny, kLow, kMedium, kHigh, kVeryHigh, kAthlete, kSucklingMother };

struct Rule {
  int youngest, oldest;  // years, both included
  Sex sex;
  Group group;
  DailyRequirement requirement;
};

constexpr int kNoBound = std::numeric_limits<int>::max();
constexpr int kUnborn = std::numeric_limits<int>::min();

// Later rules overwrite earlier ones. The two for suckling mothers stand as they were given: the
// second always has the last word.
// clang-format off
constexpr Rule kRules[] = {
    {kUnborn, 3, Sex::kAny,   Group::kAny,            {{0, 0},       {0, 0},     {0, 0},     {0, 0}}},
    {4, 6,       Sex::kAny,   Group::kAny,            {{1400, 1700}, {50, 50},   {50, 60},   {196, 238}}},
    {7, 9,       Sex::kAny,   Group::kAny,            {{1900, 2100}, {57, 63},   {64, 75},   {275, 303}}},
    {10, 12,     Sex::kMen,   Group::kAny,            {{2500, 2600}, {75, 75},   {85, 90},   {360, 370}}},
    {10, 12,     Sex::kWomen, Group::kAny,            {{2100, 2200}, {70, 70},   {75, 100},  {285, 300}}},
    {13, 15,     Sex::kMen,   Group::kAny,            {{3300, 3300}, {95, 95},   {100, 130}, {450, 550}}},
    {13, 15,     Sex::kWomen, Group::kAny,            {{2800, 2800}, {85, 85},   {90, 120},  {435, 510}}},
    {16, 20,     Sex::kMen,   Group::kAny,            {{3700, 3700}, {100, 100}, {125, 150}, {520, 620}}},
    {16, 20,     Sex::kWomen, Group::kAny,            {{2700, 2700}, {80, 80},   {80, 110},  {395, 440}}},
    {21, 69,     Sex::kMen,   Group::kLow,            {{2400, 2600}, {75, 75},   {75, 100},  {350, 410}}},
    {21, 69,     Sex::kMen,   Group::kMedium,         {{2800, 3200}, {85, 85},   {90, 125},  {435, 510}}},
    {21, 69,     Sex::kMen,   Group::kHigh,           {{3500, 4000}, {95, 95},   {110, 155}, {550, 660}}},
    {21, 69,     Sex::kMen,   Group::kVeryHigh,       {{4000, 4500}, {100, 100}, {125, 165}, {655, 745}}},
    {21, 69,     Sex::kMen,   Group::kAthlete,        {{4500, 4500}, {100, 100}, {125, 165}, {655, 745}}},
    {21, 69,     Sex::kWomen, Group::kLow,            {{2100, 2300}, {70, 70},   {65, 90},   {300, 360}}},
    {21, 69,     Sex::kWomen, Group::kMedium,         {{2400, 2800}, {80, 80},   {80, 110},  {395, 440}}},
    {21, 69,     Sex::kWomen, Group::kHigh,           {{2900, 3200}, {90, 90},   {90, 120},  {435, 510}}},
    {21, 69,     Sex::kWomen, Group::kVeryHigh,       {{3200, 3600}, {95, 95},   {90, 120},  {435, 510}}},
    {21, 69,     Sex::kWomen, Group::kAthlete,        {{3200, 3600}, {95, 95},   {90, 120},  {435, 510}}},
    {kUnborn, kNoBound, Sex::kWomen, Group::kSucklingMother, {{2800, 2800}, {95, 95}, {80, 100}, {360, 430}}},
    {kUnborn, kNoBound, Sex::kWomen, Group::kSucklingMother, {{3400, 3400}, {110, 110}, {95, 130}, {450, 525}}},
    {70, kNoBound, Sex::kAny, Group::kAny,            {{2100, 2300}, {65, 65},   {65, 80},   {330, 365}}},
};
// clang-format on

bool Fits(Sex sex, const UserProfile& profile) {
  return sex == Sex::kAny || (sex == Sex::kMen ? profile.IsMan() : profile.IsWoman());
}

bool Fits(Group group, const UserProfile& profile) {
  switch (group) {
    case Group::kAny:
      return true;
    case Group::kLow:
      return profile.life_style.starts_with('l');
    case Group::kMedium:
      return profile.life_style.starts_with('m');
    case Group::kHigh:
      return profile.life_style.starts_with('h');
    case Group::kVeryHigh:
      return profile.life_style.starts_with('v');
    case Group::kAthlete:
      return profile.IsAthlete();
    case Group::kSucklingMother:
      return profile.IsSucklingMother();
  }
  return false;
}

bool Fits(const Rule& rule, int age, const UserProfile& profile) {
  return age >= rule.youngest && age <= rule.oldest && Fits(rule.sex, profile) &&
         Fits(rule.group, profile);
}

int ToWhole(float number) {
  // The largest float below the bound of int.
  constexpr float kLargest = 2147483520.0F;
  return static_cast<int>(std::clamp(number, -kLargest, kLargest));
}

Range RangeOf(const PersonalLimits& limits, Limit lower, Limit upper) {
  return {ToWhole(limits.Number(lower)), ToWhole(limits.Number(upper))};
}

}  // namespace

void UpdateRequirement(const UserProfile& profile, const PersonalLimits& limits,
                       DailyRequirement& requirement) {
  if (limits.AreInForce()) {
    requirement = {RangeOf(limits, kCaloriesLower, kCaloriesUpper),
                   RangeOf(limits, kProteinLower, kProteinUpper),
                   RangeOf(limits, kFatLower, kFatUpper),
                   RangeOf(limits, kCarbohydrateLower, kCarbohydrateUpper)};
    return;
  }
  requirement.calories.upper = 0;
  if (limits.AreUndecided()) return;
  const int age = ParseInteger(profile.age);
  for (const Rule& rule : kRules) {
    if (Fits(rule, age, profile)) requirement = rule.requirement;
  }
}

RequirementBounds BoundsOf(const DailyRequirement& requirement) {
  const auto& [calories, protein, fat, carbohydrate] = requirement;
  RequirementBounds bounds = {};
  bounds[kCaloriesLower] = calories.lower;
  bounds[kCaloriesUpper] = calories.upper;
  bounds[kProteinLower] = protein.lower;
  bounds[kProteinUpper] = protein.upper;
  bounds[kFatLower] = fat.lower;
  bounds[kFatUpper] = fat.upper;
  bounds[kCarbohydrateLower] = carbohydrate.lower;
  bounds[kCarbohydrateUpper] = carbohydrate.upper;
  return bounds;
}

RequirementBounds BoundsOf(const PersonalLimits& limits) {
  RequirementBounds bounds = {};
  for (std::size_t limit = 0; limit < kLimitCount; ++limit) bounds[limit] = limits.Number(limit);
  return bounds;
}

}  // namespace velnor
