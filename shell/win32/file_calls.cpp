#include "base/file_calls.h"

#include <windows.h>

#include <io.h>

namespace velnor {
namespace {

constexpr int kTries = 10;
constexpr DWORD kBetweenTries = 50;  // milliseconds

// Whether the file could not be replaced because somebody, a backup or a virus scanner say, has it
// open, and not because it may not be written at all.
bool IsOpenElsewhere(const std::string& path, DWORD error) {
  if (error == ERROR_SHARING_VIOLATION) return true;
  constexpr DWORD kNeverReplaced = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
  return error == ERROR_ACCESS_DENIED && (GetFileAttributesA(path.c_str()) & kNeverReplaced) == 0;
}

}  // namespace

bool FlushToDisk(std::FILE* file) { return std::fflush(file) == 0 && _commit(_fileno(file)) == 0; }

bool ReplaceByRename(const std::string& from, const std::string& to) {
  for (int tries = 1;; ++tries) {
    if (MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) !=
        0) {
      return true;
    }
    if (tries == kTries || !IsOpenElsewhere(to, GetLastError())) return false;
    Sleep(kBetweenTries);
  }
}

bool IsWriteProtected(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

bool HasFolder(const std::string& path) {
  const std::size_t separator = path.find_last_of("\\/");
  if (separator == std::string::npos) return true;
  const DWORD attributes = GetFileAttributesA(path.substr(0, separator + 1).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool MakeFolder(const std::string& path) { return CreateDirectoryA(path.c_str(), nullptr) != 0; }

bool RemoveFolder(const std::string& path) { return RemoveDirectoryA(path.c_str()) != 0; }

}  // namespace velnor
