#include "base/file_calls.h"

#include <windows.h>

#include <io.h>

namespace velnor {

bool FlushToDisk(std::FILE* file) { return std::fflush(file) == 0 && _commit(_fileno(file)) == 0; }

bool ReplaceByRename(const std::string& from, const std::string& to) {
  return MoveFileExA(from.c_str(), to.c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

bool IsWriteProtected(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

bool CutBack(std::FILE* file, std::int64_t size) { return _chsize_s(_fileno(file), size) == 0; }

bool MakeFolder(const std::string& path) { return CreateDirectoryA(path.c_str(), nullptr) != 0; }

bool RemoveFolder(const std::string& path) { return RemoveDirectoryA(path.c_str()) != 0; }

}  // namespace velnor
