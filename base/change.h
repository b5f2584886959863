// One change of a file or folder within a deed that changes several. A transaction makes it. A
// program that finds the note of a deed that was cut off makes it again.

#ifndef VELNOR_BASE_CHANGE_H_
#define VELNOR_BASE_CHANGE_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace velnor {

// In the order in which the changes of a deed are made: what can still be undone comes first.
enum class ChangeKind { kMakeFolder, kAppend, kReplace, kRemove, kRemoveFolder };

// Paths are those below the start-up folder, with '/' between folders whatever the system has: a
// folder may be carried from one machine to another with a note in it.
struct Change {
  ChangeKind kind = {};
  std::string path = {};
  std::string beside = {};     // kReplace: the file with the new bytes
  std::uint64_t size = 0;      // kReplace: of the new bytes; kAppend: of the file before
  std::uint64_t checksum = 0;  // kReplace: of the new bytes
  std::string text = {};       // kAppend

  bool operator==(const Change&) const = default;
};

// Makes a change below the folder, which ends with a separator. A change that was made already
// stays as it is. A file that was to be appended to and that another program has changed since is
// left alone. So is a file whose new bytes are gone. Returns false if the system could not.
[[nodiscard]] bool CarryOut(const std::string& folder, const Change& change);

// Takes back a folder that was made or a text that was appended. Returns false if the system could
// not.
[[nodiscard]] bool TakeBack(const std::string& folder, const Change& change);

// The path of a file of the folder by its path in a note.
std::string PathOf(const std::string& folder, std::string_view noted);

}  // namespace velnor

#endif  // VELNOR_BASE_CHANGE_H_
