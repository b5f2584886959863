#include "base/file_calls.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velnor {
namespace {

constexpr mode_t kAnyWriter = S_IWUSR | S_IWGRP | S_IWOTH;

struct FolderCloser {
  void operator()(DIR* folder) const { closedir(folder); }
};

}  // namespace

std::FILE* OpenFile(const std::string& path, const char* mode) {
  return std::fopen(path.c_str(), mode);
}

bool FlushToDisk(std::FILE* file) { return std::fflush(file) == 0 && fsync(fileno(file)) == 0; }

std::optional<std::uint64_t> SizeOf(std::FILE* file) {
  if (fseeko(file, 0, SEEK_END) != 0) return std::nullopt;
  const off_t size = ftello(file);
  if (size < 0) return std::nullopt;
  return static_cast<std::uint64_t>(size);
}

bool SeekTo(std::FILE* file, std::uint64_t place) {
  return fseeko(file, static_cast<off_t>(place), SEEK_SET) == 0;
}

bool CutTo(std::FILE* file, std::uint64_t size) {
  return std::fflush(file) == 0 && ftruncate(fileno(file), static_cast<off_t>(size)) == 0;
}

bool ReplaceByRename(const std::string& from, const std::string& to) {
  return std::rename(from.c_str(), to.c_str()) == 0;
}

bool RemoveFile(const std::string& path) { return unlink(path.c_str()) == 0 || errno == ENOENT; }

bool IsThere(const std::string& path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 || errno != ENOENT;
}

bool IsWriteProtected(const std::string& path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 && (status.st_mode & kAnyWriter) == 0;
}

bool CanBeChanged(const std::string& path) {
  struct stat status = {};
  if (stat(path.c_str(), &status) != 0) return errno == ENOENT;
  return S_ISREG(status.st_mode) && (status.st_mode & kAnyWriter) != 0;
}

bool HasFolder(const std::string& path) {
  const std::size_t separator = path.rfind('/');
  struct stat status = {};
  return separator == std::string::npos ||
         (stat(path.substr(0, separator + 1).c_str(), &status) == 0 && S_ISDIR(status.st_mode));
}

bool MakeFolder(const std::string& path) { return mkdir(path.c_str(), 0755) == 0; }

bool RemoveFolder(const std::string& path) { return rmdir(path.c_str()) == 0; }

bool RenameFolder(const std::string& from, const std::string& to) {
  // The system would put the folder in the place of an empty one.
  return !IsThere(to) && std::rename(from.c_str(), to.c_str()) == 0;
}

std::uint64_t SizeOfFile(const std::string& path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
}

std::optional<std::vector<FolderEntry>> ListFolder(const std::string& path) {
  const std::unique_ptr<DIR, FolderCloser> folder(opendir(path.c_str()));
  if (!folder) return std::nullopt;
  std::vector<FolderEntry> entries;
  errno = 0;
  while (const dirent* const entry = readdir(folder.get())) {
    std::string name = entry->d_name;
    if (name == "." || name == "..") continue;
    // Some file systems do not tell here what it is; a separator behind it asks the long way.
    const bool is_folder =
        entry->d_type == DT_UNKNOWN ? HasFolder(path + '/' + name + '/') : entry->d_type == DT_DIR;
    entries.push_back({std::move(name), is_folder});
    errno = 0;
  }
  if (errno != 0) return std::nullopt;
  return entries;
}

// The folder itself is locked: there is nothing to leave behind.
LockAnswer LockFolder(const std::string& folder, LockHandle& handle) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return LockAnswer::kRefused;
  if (flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
    handle = descriptor;
    return LockAnswer::kLocked;
  }
  const bool held = errno == EWOULDBLOCK;
  close(descriptor);
  return held ? LockAnswer::kHeldElsewhere : LockAnswer::kRefused;
}

void UnlockFolder(LockHandle handle) { close(static_cast<int>(handle)); }

unsigned long ProcessId() { return static_cast<unsigned long>(getpid()); }

void Pause(int milliseconds) { usleep(static_cast<useconds_t>(milliseconds) * 1000); }

}  // namespace velnor
