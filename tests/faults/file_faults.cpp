#include "tests/faults/file_faults.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

// The linker gives these names to the calls themselves, and ours to whoever makes them.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
std::FILE* __real_fopen(const char* path, const char* mode);
std::size_t __real_fread(void* bytes, std::size_t size, std::size_t count, std::FILE* file);
std::size_t __real_fwrite(const void* bytes, std::size_t size, std::size_t count, std::FILE* file);
int __real_ferror(std::FILE* file);
int __real_fflush(std::FILE* file);
int __real_fclose(std::FILE* file);
int __real_fseeko(std::FILE* file, off_t place, int from);
off_t __real_ftello(std::FILE* file);
int __real_ftruncate(int descriptor, off_t size);
DIR* __real_opendir(const char* path);
dirent* __real_readdir(DIR* folder);
int __real_closedir(DIR* folder);
int __real_open(const char* path, int flags, ...);
int __real_flock(int descriptor, int operation);
int __real_close(int descriptor);
int __real_rename(const char* from, const char* to);
int __real_unlink(const char* path);
int __real_mkdir(const char* path, mode_t mode);
int __real_rmdir(const char* path);
int __real_stat(const char* path, struct stat* status);
}
// NOLINTEND(bugprone-reserved-identifier)

namespace velnor {
namespace {

using enum FileCall;
using enum Fault;

struct OpenFile {
  std::string path;
  int descriptor;
  bool is_read;
  bool failed;  // to be read
};

// What the current watch knows. The linker's hooks have no other way to reach it.
struct State {
  std::string folder;  // empty: nothing is watched
  std::vector<FileCall> calls;
  std::size_t at = 0;
  std::optional<Fault> fault;
  std::map<std::FILE*, OpenFile> files;
  std::set<DIR*> folders;
  std::set<int> locks;
  std::function<void()> on_unlock;
  // How much of a file is on the disk, where no flush has brought the rest there.
  std::map<std::string, off_t> on_disk;
};

State& Watched() {
  static State state;
  return state;
}

bool IsWatched(std::string_view path) {
  const State& state = Watched();
  return !state.folder.empty() && path.starts_with(state.folder);
}

OpenFile* FindOpen(std::FILE* file) {
  State& state = Watched();
  const auto found = state.files.find(file);
  return found == state.files.end() ? nullptr : &found->second;
}

[[noreturn]] void EndProcess() { _exit(kCrashStatus); }

// What happens in the call that is being made. Counts it.
class Course {
 public:
  explicit Course(FileCall call) {
    State& state = Watched();
    const std::size_t number = state.calls.size();
    state.calls.push_back(call);
    if (!state.fault) return;
    const Fault fault = *state.fault;
    const bool applies = number == state.at || (number > state.at && GoesOn(fault, call));
    if (!applies) return;
    if (fault == kCrashBefore) EndProcess();
    fault_ = fault;
  }

  bool IsHalf() const { return fault_ == kHalf; }
  bool IsCrashAfterHalf() const { return fault_ == kCrashHalf; }
  // Whether the call returns its error; errno says which.
  bool Fails() const {
    if (!fault_ || ErrorOf(*fault_) == 0) return false;
    errno = ErrorOf(*fault_);
    return true;
  }
  // Called when the call has been made.
  void End() const {
    if (fault_ == kPowerCut) {
      for (const auto& [path, size] : Watched().on_disk) truncate(path.c_str(), size);
      EndProcess();
    }
    if (fault_ == kCrashAfter) EndProcess();
  }

 private:
  static bool GoesOn(Fault fault, FileCall call) {
    return fault == kGoneFromHere || (fault == kFullFromHere && NeedsSpace(call));
  }

  std::optional<Fault> fault_;
};

}  // namespace

FileWatch::FileWatch(const std::string& folder) {
  Watched() = {};
  Watched().folder = folder;
}

FileWatch::FileWatch(const std::string& folder, std::function<void()> on_unlock)
    : FileWatch(folder) {
  Watched().on_unlock = std::move(on_unlock);
}

FileWatch::FileWatch(const std::string& folder, std::size_t at, Fault fault) : FileWatch(folder) {
  Watched().at = at;
  Watched().fault = fault;
}

FileWatch::~FileWatch() { Watched() = {}; }

// One watch at a time: what it has seen is kept where the hooks find it.
// NOLINTNEXTLINE(readability-convert-member-functions-to-static)
const std::vector<FileCall>& FileWatch::calls() const { return Watched().calls; }

// --- the hooks

namespace {

std::FILE* Open(const char* path, const char* mode) {
  if (!IsWatched(path)) return __real_fopen(path, mode);
  const bool reads = std::string_view(mode) == "rb";
  const Course course(reads ? kOpenToRead : kOpenToWrite);
  if (course.Fails()) return nullptr;
  std::FILE* const file = __real_fopen(path, mode);
  if (file != nullptr) Watched().files[file] = {path, fileno(file), reads, false};
  course.End();
  return file;
}

std::size_t Read(void* bytes, std::size_t size, std::size_t count, std::FILE* file) {
  OpenFile* const open = FindOpen(file);
  if (open == nullptr) return __real_fread(bytes, size, count, file);
  const Course course(kRead);
  if (!course.Fails()) return __real_fread(bytes, size, count, file);
  open->failed = true;
  if (!course.IsHalf()) return 0;
  // Half of what there is: most files are shorter than what is asked for.
  return __real_fread(bytes, size, count, file) / 2;
}

// What the C library keeps back is not there yet.
off_t SizeOnDisk(int descriptor) {
  struct stat status = {};
  return fstat(descriptor, &status) == 0 ? status.st_size : 0;
}

std::size_t Write(const void* bytes, std::size_t size, std::size_t count, std::FILE* file) {
  OpenFile* const open = FindOpen(file);
  if (open == nullptr) return __real_fwrite(bytes, size, count, file);
  const Course course(kWrite);
  Watched().on_disk.try_emplace(open->path, SizeOnDisk(open->descriptor));
  const bool fails = course.Fails();
  if (fails && !course.IsHalf()) return 0;
  if (fails || course.IsCrashAfterHalf()) {
    const std::size_t written = __real_fwrite(bytes, size, count / 2, file);
    if (!fails) {
      __real_fflush(file);
      EndProcess();
    }
    course.Fails();  // the error again, which the call may have changed
    return written;
  }
  const std::size_t written = __real_fwrite(bytes, size, count, file);
  course.End();
  return written;
}

int HasFailed(std::FILE* file) {
  const OpenFile* const open = FindOpen(file);
  return open != nullptr && open->failed ? 1 : __real_ferror(file);
}

int Flush(std::FILE* file) {
  if (file == nullptr || FindOpen(file) == nullptr) return __real_fflush(file);
  const Course course(kFlush);
  if (course.Fails()) return EOF;
  const int result = __real_fflush(file);
  course.End();
  return result;
}

int Close(std::FILE* file) {
  const OpenFile* const open = FindOpen(file);
  if (open == nullptr) return __real_fclose(file);
  const Course course(open->is_read ? kCloseRead : kCloseWritten);
  Watched().files.erase(file);
  const int result = __real_fclose(file);  // closes it even when it fails
  if (course.Fails()) return EOF;
  course.End();
  return result;
}

// Never waits for the disk: the system keeps the bytes when a process ends.
int Sync(int descriptor) {
  State& state = Watched();
  const auto open = std::ranges::find_if(
      state.files, [=](const auto& file) { return file.second.descriptor == descriptor; });
  if (open == state.files.end()) return 0;
  const Course course(kSync);
  if (course.Fails()) return -1;
  state.on_disk.erase(open->second.path);
  course.End();
  return 0;
}

// Where a file is read and written, and how long it is.
off_t Seek(std::FILE* file, off_t (*seek)(std::FILE* file, off_t place, int from), off_t place,
           int from) {
  if (FindOpen(file) == nullptr) return seek(file, place, from);
  const Course course(kSeek);
  if (course.Fails()) return -1;
  return seek(file, place, from);
}

int Cut(int descriptor, off_t size) {
  const State& state = Watched();
  const auto is_it = [=](const auto& file) { return file.second.descriptor == descriptor; };
  if (std::ranges::none_of(state.files, is_it)) return __real_ftruncate(descriptor, size);
  const Course course(kCut);
  if (course.Fails()) return -1;
  const int result = __real_ftruncate(descriptor, size);
  course.End();
  return result;
}

DIR* OpenFolder(const char* path) {
  if (!IsWatched(path)) return __real_opendir(path);
  const Course course(kListFolder);
  if (course.Fails()) return nullptr;
  DIR* const folder = __real_opendir(path);
  if (folder != nullptr) Watched().folders.insert(folder);
  return folder;
}

dirent* ReadFolder(DIR* folder) {
  if (!Watched().folders.contains(folder)) return __real_readdir(folder);
  const Course course(kListFolder);
  return course.Fails() ? nullptr : __real_readdir(folder);
}

int CloseFolder(DIR* folder) {
  Watched().folders.erase(folder);
  return __real_closedir(folder);
}

// The program opens a descriptor to lock a folder, and for nothing else.
int OpenToLock(const char* path, int flags, mode_t mode) {
  if (!IsWatched(path)) return __real_open(path, flags, mode);
  const Course course(kOpenToLock);
  if (course.Fails()) return -1;
  const int descriptor = __real_open(path, flags, mode);
  if (descriptor >= 0) Watched().locks.insert(descriptor);
  return descriptor;
}

int Lock(int descriptor, int operation) {
  if (!Watched().locks.contains(descriptor)) return __real_flock(descriptor, operation);
  const Course course(kLock);
  return course.Fails() ? -1 : __real_flock(descriptor, operation);
}

int Unlock(int descriptor) {
  if (Watched().locks.erase(descriptor) == 0) return __real_close(descriptor);
  const Course course(kUnlock);
  const int result = __real_close(descriptor);  // closes it even when it fails
  if (Watched().on_unlock) Watched().on_unlock();
  return course.Fails() ? -1 : result;
}

int Replace(const char* from, const char* to) {
  if (!IsWatched(from)) return __real_rename(from, to);
  const Course course(kReplace);
  if (course.Fails()) return -1;
  const int result = __real_rename(from, to);
  if (result == 0) {
    auto& on_disk = Watched().on_disk;
    on_disk.erase(to);
    auto renamed = on_disk.extract(from);
    if (!renamed.empty()) {
      renamed.key() = to;
      on_disk.insert(std::move(renamed));
    }
  }
  course.End();
  return result;
}

// The calls that take a path and little else.
template <typename Call>
int OnPath(FileCall kind, const char* path, Call call) {
  if (!IsWatched(path)) return call();
  const Course course(kind);
  if (course.Fails()) return -1;
  const int result = call();
  course.End();
  return result;
}

}  // namespace
}  // namespace velnor

// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
std::FILE* __wrap_fopen(const char* path, const char* mode) { return velnor::Open(path, mode); }
std::size_t __wrap_fread(void* bytes, std::size_t size, std::size_t count, std::FILE* file) {
  return velnor::Read(bytes, size, count, file);
}
std::size_t __wrap_fwrite(const void* bytes, std::size_t size, std::size_t count, std::FILE* file) {
  return velnor::Write(bytes, size, count, file);
}
int __wrap_ferror(std::FILE* file) { return velnor::HasFailed(file); }
int __wrap_fflush(std::FILE* file) { return velnor::Flush(file); }
int __wrap_fclose(std::FILE* file) { return velnor::Close(file); }
int __wrap_fsync(int descriptor) { return velnor::Sync(descriptor); }
int __wrap_rename(const char* from, const char* to) { return velnor::Replace(from, to); }
int __wrap_unlink(const char* path) {
  return velnor::OnPath(velnor::FileCall::kRemove, path, [=] { return __real_unlink(path); });
}
int __wrap_fseeko(std::FILE* file, off_t place, int from) {
  const auto seek = [](std::FILE* f, off_t p, int w) -> off_t { return __real_fseeko(f, p, w); };
  return static_cast<int>(velnor::Seek(file, seek, place, from));
}
off_t __wrap_ftello(std::FILE* file) {
  const auto tell = [](std::FILE* f, off_t, int) { return __real_ftello(f); };
  return velnor::Seek(file, tell, 0, 0);
}
int __wrap_ftruncate(int descriptor, off_t size) { return velnor::Cut(descriptor, size); }
DIR* __wrap_opendir(const char* path) { return velnor::OpenFolder(path); }
dirent* __wrap_readdir(DIR* folder) { return velnor::ReadFolder(folder); }
int __wrap_closedir(DIR* folder) { return velnor::CloseFolder(folder); }
int __wrap_open(const char* path, int flags, ...) {
  mode_t mode = 0;
  if ((flags & O_CREAT) != 0) {
    va_list arguments;
    va_start(arguments, flags);
    mode = va_arg(arguments, mode_t);
    va_end(arguments);
  }
  return velnor::OpenToLock(path, flags, mode);
}
int __wrap_flock(int descriptor, int operation) { return velnor::Lock(descriptor, operation); }
int __wrap_close(int descriptor) { return velnor::Unlock(descriptor); }
int __wrap_mkdir(const char* path, mode_t mode) {
  return velnor::OnPath(velnor::FileCall::kMakeFolder, path,
                        [=] { return __real_mkdir(path, mode); });
}
int __wrap_stat(const char* path, struct stat* status) {
  return velnor::OnPath(velnor::FileCall::kLookAt, path, [=] { return __real_stat(path, status); });
}
int __wrap_rmdir(const char* path) {
  return velnor::OnPath(velnor::FileCall::kRemoveFolder, path, [=] { return __real_rmdir(path); });
}
}
// NOLINTEND(bugprone-reserved-identifier)
