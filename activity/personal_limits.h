// The limits that a person has set instead of the daily requirement of their group.

#ifndef VELNOR_ACTIVITY_PERSONAL_LIMITS_H_
#define VELNOR_ACTIVITY_PERSONAL_LIMITS_H_

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/transaction.h"

namespace velnor {

// In the order of file and screen: lower and upper limit of calories [kcal], protein, fat and
// carbohydrate [g].
enum Limit : std::size_t {
  kCaloriesLower,
  kCaloriesUpper,
  kProteinLower,
  kProteinUpper,
  kFatLower,
  kFatUpper,
  kCarbohydrateLower,
  kCarbohydrateUpper,
  kLimitCount
};

// Characters of a typed limit that count.
inline constexpr std::size_t kLimitTextLimit = 5;

using LimitTexts = std::array<std::string, kLimitCount>;

struct PersonalLimits {
  LimitTexts texts;

  float Number(std::size_t limit) const;
  // Whether they take the place of the group's requirement: the lower calories are above 4.
  bool AreInForce() const;
  // Whether they say neither that they are in force nor that they are not: exactly 4.
  bool AreUndecided() const;
  // Whether the screen shows them as active after a login: both calories are above 5.
  bool ShowAsActive() const;
};

// Reads the file. At most nine lines of at most 99 characters count; the first is a mark that is
// not used. A text has room for nine characters: a longer one goes on with the next line's text,
// or with its own where there is no next line. A missing file gives empty texts, which count as 0.
PersonalLimits ReadPersonalLimits(const std::string& path);

// What is wrong with limits that are to be put in force, as the text to show; nothing when they are
// good. The lower ones must reach 110 kcal, 10 g, 10 g and 25 g, the upper ones may not pass 6999
// kcal, 239 g, 239 g and 1399 g, and no lower one may pass its upper one.
std::optional<std::string_view> FindFault(const PersonalLimits& limits);

// Writes the limits to the file, or that there are none.
void WritePersonalLimits(Transaction& deed, const std::string& path, const PersonalLimits& limits);
void WriteNoLimits(Transaction& deed, const std::string& path);

}  // namespace velnor

#endif  // VELNOR_ACTIVITY_PERSONAL_LIMITS_H_
