// The list of registered users and the folder of files that each of them has.

#ifndef VELNOR_USERS_USER_REGISTRY_H_
#define VELNOR_USERS_USER_REGISTRY_H_

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/session.h"
#include "users/user_files.h"

namespace velnor {

// The list may not grow past this many bytes.
inline constexpr std::size_t kRegistryLimit = 1000;

struct UserRegistry {
  std::vector<std::string> names;  // in the order of the file
  std::string rest;  // what stands behind the first kRegistryLimit bytes, kept as it is

  bool operator==(const UserRegistry&) const = default;
};

// What the bytes of such a list say. Lines may end with CR LF, LF or CR. What follows a NUL among
// the names is not read. Empty lines, names longer than kUserNameLimit and names that IsFolderName
// refuses are left out.
UserRegistry ParseUserRegistry(const std::string& text);

// Reads the list from its file. A missing one gives no names. Returns nothing if it cannot be read.
std::optional<UserRegistry> ReadUserRegistry(const std::string& path);

// What the file of such a list holds.
std::string RegistryBytes(const UserRegistry& registry);

// How many of the characters of `name` a user's name must not contain; 0 for a good name.
std::size_t CountForbiddenSigns(std::string_view name);

// The name that keeps `name` from being a user's: one of `registered`, or that of a folder that is
// there, which differs from it in small and capital letters alone. The platform knows one folder
// for both. Returns nothing if there is none, or when `name` itself is registered.
std::optional<std::string> FindNamesake(const SessionState& session,
                                        const std::vector<std::string>& registered,
                                        const std::string& name);

// The following take the name of a user as it was typed. A name that IsFolderName refuses does
// nothing; removing without a name means the files of the start-up folder itself.

// Makes the user's folder and the files that every user has from the start, empty; files that are
// there already become empty. What the system refuses is not reported.
void CreateUserFiles(const SessionState& session, const std::string& user);

// Deletes the files that go with a user (UserFiles), what saving the reports among them has kept
// beside them, whatever an interrupted write has left of any file of the user, and the folder when
// nothing else is in it. What the system refuses is not reported.
void DeleteUserFiles(const SessionState& session, const std::string& user);

}  // namespace velnor

#endif  // VELNOR_USERS_USER_REGISTRY_H_
