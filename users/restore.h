// Brings a copy back: reads all of it first, then replaces the files it is of in one deed.

#ifndef VELNOR_USERS_RESTORE_H_
#define VELNOR_USERS_RESTORE_H_

#include <optional>
#include <string>
#include <vector>

#include "base/session.h"

namespace velnor {

// All that a copy holds, in memory.
struct ReadCopy {
  struct File {
    std::string name;
    std::string bytes;
  };
  struct Person {
    std::string name;
    std::vector<File> files;
  };
  std::vector<File> shared;  // the list of users, the products; none in the copy of one person
  std::vector<Person> people;
};

// Reads the copy in `folder` (a path with a separator at its end). Returns nothing if there is
// none, or when something of it cannot be read.
std::optional<ReadCopy> ReadCopyIn(const std::string& folder);

// The names of its people, parted by ", ".
std::string PeopleOf(const ReadCopy& copy);

enum class RestoreAnswer {
  kRestored,
  kNotCopied,    // the present state could not be copied, so that this could not be undone
  kListTooLong,  // the list of users would grow past kRegistryLimit
  kNotWritten,
};

// Copies the present state as a press's copy (users/backup), then gives every file the bytes that
// it has in the copy. Of the people in the copy, the files of ours that it lacks go; files of
// others stay. People who are not in the copy, and their places on the list of users, stay as they
// are. Nothing has changed but that copy unless the answer is kRestored.
RestoreAnswer Restore(const SessionState& session, const ReadCopy& copy);

}  // namespace velnor

#endif  // VELNOR_USERS_RESTORE_H_
