// The profile of a user: what the calculators and the daily requirement know of the person.

#ifndef VELNOR_USERS_PROFILE_H_
#define VELNOR_USERS_PROFILE_H_

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/transaction.h"

namespace velnor {

// Texts as they were typed or chosen, at most kLimit characters each. Readers test sex and other by
// their first letter. Empty or "0": not given.
struct UserProfile {
  static constexpr std::size_t kLimit = 29;

  std::string age = {};         // years
  std::string height = {};      // cm
  std::string sex = {};         // "women" or "men"
  std::string life_style = {};  // "low", "medium", "high" or "very high"
  std::string other = {};       // "pregnant", "suckling mother", "athlete" or "none"

  bool IsMan() const { return sex.starts_with('m'); }
  bool IsWoman() const { return sex.starts_with('w'); }
  bool IsPregnant() const { return other.starts_with('p'); }
  bool IsSucklingMother() const { return other.size() > 3 && other[3] == 'k'; }
  bool IsAthlete() const { return other.starts_with('a'); }
};

// The five lines of a profile file, in the order of UserProfile.
using ProfileLines = std::array<std::string, 5>;

// At most 99 characters of each line; missing lines, and those of a missing file, are empty.
ProfileLines ReadProfileLines(const std::string& path);

// The lines of a profile that is read in order to be rewritten. Returns nothing if there is a file
// that cannot be read.
std::optional<ProfileLines> ReadProfileLinesToRewrite(const std::string& path);

// The profile that a login takes from the lines: age and height only when they read as a whole
// number other than 0, the others when they are not empty.
UserProfile ProfileOf(const ProfileLines& lines);

// Whether age and height are known and sex and life style have three characters or more.
bool IsComplete(const UserProfile& profile);

// Writes the lines, "0" for each empty one, without a line end behind the last.
void WriteProfileLines(Transaction& deed, const std::string& path, const ProfileLines& lines);

}  // namespace velnor

#endif  // VELNOR_USERS_PROFILE_H_
