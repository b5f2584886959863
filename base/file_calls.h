// The calls on files that every system has and the C library has not in one form. The platform's
// side implements them: base/posix and shell/win32.

#ifndef VELNOR_BASE_FILE_CALLS_H_
#define VELNOR_BASE_FILE_CALLS_H_

#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

namespace velnor {

// Opens a file as the C library does, in one of its binary modes. On a system that asks for it, the
// file stays free to be renamed and removed by others meanwhile. Returns null if the system could
// not; errno is ENOENT then if the file or its folder is missing.
std::FILE* OpenFile(const std::string& path, const char* mode);

// Hands everything written to `file` so far to the disk. Returns false if the system could not.
[[nodiscard]] bool FlushToDisk(std::FILE* file);

// Returns the size of an open file in bytes, or nothing if it cannot be told. Moves the place at
// which the file is read and written.
std::optional<std::uint64_t> SizeOf(std::FILE* file);

// What is read or written next begins at this byte. Returns false if the system could not.
[[nodiscard]] bool SeekTo(std::FILE* file, std::uint64_t place);

// Takes everything behind this byte off a file that is open to be written. Returns false if the
// system could not.
[[nodiscard]] bool CutTo(std::FILE* file, std::uint64_t size);

// Gives the file `from` the name `to`; a file that had that name is replaced in one step. One that
// somebody else has open is tried again for half a second where the system does not replace such
// files. Returns false if the system could not; then both are as they were.
[[nodiscard]] bool ReplaceByRename(const std::string& from, const std::string& to);

// Removes a file. Returns true if there is no file of that name now, also if there was none before.
// One that somebody else has open is tried again like one that is to be replaced.
[[nodiscard]] bool RemoveFile(const std::string& path);

// Whether there is a file or a folder of that name. Also true if the system does not let it be
// looked at.
bool IsThere(const std::string& path);

// Whether the file is write-protected. A missing file is not.
bool IsWriteProtected(const std::string& path);

// Whether the file could be replaced, written and removed now, as far as that is known without
// doing it. True if it is missing, or an ordinary file that is not write-protected and that no
// program has open. One that somebody else has open is tried again like one that is to be replaced.
bool CanBeChanged(const std::string& path);

// Whether the folder that `path` lies in is there. A path without a folder lies in the current one.
bool HasFolder(const std::string& path);

// Makes or removes one folder; only an empty one is removed. Returns false if the system could not.
[[nodiscard]] bool MakeFolder(const std::string& path);
[[nodiscard]] bool RemoveFolder(const std::string& path);

// Gives a folder, with all that is in it, another name in the same folder. Returns false if the
// system could not, as when something has that name.
[[nodiscard]] bool RenameFolder(const std::string& from, const std::string& to);

// Returns the size of a file in bytes, or 0 if it cannot be told.
std::uint64_t SizeOfFile(const std::string& path);

struct FolderEntry {
  std::string name;
  bool is_folder;
};

// Returns what lies in a folder, or nothing if it cannot be listed.
std::optional<std::vector<FolderEntry>> ListFolder(const std::string& path);

// A folder (its path with a separator at the end) that is locked against other programs. The lock
// goes with the process that holds it, however that ends.
using LockHandle = std::intptr_t;
enum class LockAnswer { kLocked, kHeldElsewhere, kRefused };
LockAnswer LockFolder(const std::string& folder, LockHandle& handle);
void UnlockFolder(LockHandle handle);

// The number of the running process. No other process has it now.
std::uint64_t ProcessId();

void Pause(int milliseconds);

}  // namespace velnor

#endif  // VELNOR_BASE_FILE_CALLS_H_
