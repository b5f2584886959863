// The calls on files that every system has and the C library has not in one form. The platform's
// side implements them: base/posix and shell/win32.

#ifndef VELNOR_BASE_FILE_CALLS_H_
#define VELNOR_BASE_FILE_CALLS_H_

#include <cstdio>
#include <string>

namespace velnor {

// Hands everything written to `file` so far to the disk. False when the system could not.
bool FlushToDisk(std::FILE* file);

// Gives the file `from` the name `to`; a file that had that name is replaced in one step. One that
// somebody else has open is tried again for half a second where the system does not replace such
// files. False, with both as they were, when the system could not.
bool ReplaceByRename(const std::string& from, const std::string& to);

// Whether the file is marked as one that nobody is to write. A missing file is not.
bool IsWriteProtected(const std::string& path);

// Whether the folder that `path` lies in is there. A path without a folder lies in the current one.
bool HasFolder(const std::string& path);

// Makes or removes one folder; only an empty one is removed. False when the system could not.
bool MakeFolder(const std::string& path);
bool RemoveFolder(const std::string& path);

}  // namespace velnor

#endif  // VELNOR_BASE_FILE_CALLS_H_
