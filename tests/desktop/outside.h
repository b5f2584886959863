// What happens to the program's files from outside of it: for the tests that let the disk refuse,
// folders vanish and other programs have files open.

#ifndef VELNOR_TESTS_DESKTOP_OUTSIDE_H_
#define VELNOR_TESTS_DESKTOP_OUTSIDE_H_

#include <windows.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tests/desktop/driver.h"

namespace velnor::desktop {

// Everything in a folder and in the folders in it, by its path within the folder. A folder has the
// bytes "(folder)".
using Snapshot = std::map<std::string, std::string>;
Snapshot Look(const Folder& folder);

// In the start-up folder.
inline constexpr std::string_view kFolderOfCopies = "kopie zapasowe";

// What does not differ between two days of the same deeds: all files but the copies, and of the
// history all but its times.
Snapshot StateOf(const Folder& folder);

// The bytes of a history without the times of day in its lines.
std::string WithoutTimes(const std::string& history);

// Runs a command of the shell below Wine, which can do what no call of the platform can, and waits
// for its end; its status. -1 where there is no such shell.
int RunBelowWine(const std::string& command);

// A path as that shell has it, in quotes; and a path of the shell as the platform has it.
std::string QuotedUnixPath(const std::string& path);
std::string PathOfUnix(const std::string& unix_path);

// Has a file open, for as long as the object lives, so that others may do with it what `sharing`
// says and nothing else.
class HeldFile {
 public:
  HeldFile(const std::string& path, DWORD sharing);
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;
  ~HeldFile();

 private:
  HANDLE file_;
};

}  // namespace velnor::desktop

#endif  // VELNOR_TESTS_DESKTOP_OUTSIDE_H_
