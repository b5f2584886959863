#include "base/file_calls.h"

#include <sys/stat.h>
#include <unistd.h>

namespace velnor {

bool FlushToDisk(std::FILE* file) { return std::fflush(file) == 0 && fsync(fileno(file)) == 0; }

bool ReplaceByRename(const std::string& from, const std::string& to) {
  return std::rename(from.c_str(), to.c_str()) == 0;
}

bool IsWriteProtected(const std::string& path) {
  constexpr mode_t kAnyWriter = S_IWUSR | S_IWGRP | S_IWOTH;
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 && (status.st_mode & kAnyWriter) == 0;
}

bool HasFolder(const std::string& path) {
  const std::size_t separator = path.rfind('/');
  struct stat status = {};
  return separator == std::string::npos ||
         (stat(path.substr(0, separator + 1).c_str(), &status) == 0 && S_ISDIR(status.st_mode));
}

bool MakeFolder(const std::string& path) { return mkdir(path.c_str(), 0755) == 0; }

bool RemoveFolder(const std::string& path) { return rmdir(path.c_str()) == 0; }

}  // namespace velnor
