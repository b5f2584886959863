#include "tests/faults/file_faults.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <map>
#include <optional>
#include <set>
#include <string_view>
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
int __real_rename(const char* from, const char* to);
int __real_remove(const char* path);
int __real_mkdir(const char* path, mode_t mode);
int __real_rmdir(const char* path);
int __real_stat(const char* path, struct stat* status);
}
// NOLINTEND(bugprone-reserved-identifier)

namespace velnor {
namespace {

using enum FileCall;
using enum Fault;

struct FaultRow {
  Fault fault;
  const char* name;
  int error;  // 0: the process ends
};

constexpr FaultRow kFaults[] = {
    {kNoSpace, "no space", ENOSPC},
    {kInputOutput, "an input or output error", EIO},
    {kNoAccess, "no access", EACCES},
    {kHalf, "no space or a bad sector after half of the bytes", EIO},
    {kFullFromHere, "a full disk from here on", ENOSPC},
    {kGoneFromHere, "a lost disk from here on", EIO},
    {kCrashBefore, "a crash before the call", 0},
    {kCrashHalf, "a crash after half of the bytes", 0},
    {kCrashAfter, "a crash after the call", 0},
    {kPowerCut, "a power cut after the call", 0},
};

struct CallRow {
  FileCall call;
  const char* name;
  bool needs_space;
  std::vector<Fault> faults;
};

const CallRow& RowOf(FileCall call) {
  static const CallRow kRows[] = {
      {kOpenToRead, "open to read", false, {kInputOutput, kNoAccess, kGoneFromHere, kCrashBefore}},
      {kRead, "read", false, {kInputOutput, kHalf, kGoneFromHere, kCrashBefore}},
      {kCloseRead, "close what was read", false, {kInputOutput, kGoneFromHere, kCrashBefore}},
      {kOpenToWrite,
       "open to write",
       true,
       {kNoSpace, kInputOutput, kNoAccess, kFullFromHere, kGoneFromHere, kCrashBefore, kCrashAfter,
        kPowerCut}},
      {kWrite,
       "write",
       true,
       {kNoSpace, kInputOutput, kHalf, kFullFromHere, kGoneFromHere, kCrashBefore, kCrashHalf,
        kCrashAfter, kPowerCut}},
      {kFlush,
       "flush",
       true,
       {kNoSpace, kInputOutput, kFullFromHere, kGoneFromHere, kCrashBefore, kCrashAfter,
        kPowerCut}},
      {kSync,
       "sync",
       true,
       {kNoSpace, kInputOutput, kFullFromHere, kGoneFromHere, kCrashBefore, kCrashAfter,
        kPowerCut}},
      {kCloseWritten,
       "close what was written",
       true,
       {kNoSpace, kInputOutput, kFullFromHere, kGoneFromHere, kCrashBefore, kCrashAfter,
        kPowerCut}},
      {kReplace,
       "rename",
       true,
       {kNoSpace, kInputOutput, kNoAccess, kFullFromHere, kGoneFromHere, kCrashBefore, kCrashAfter,
        kPowerCut}},
      {kRemove,
       "remove",
       false,
       {kInputOutput, kNoAccess, kGoneFromHere, kCrashBefore, kCrashAfter, kPowerCut}},
      {kMakeFolder,
       "make a folder",
       true,
       {kNoSpace, kInputOutput, kNoAccess, kFullFromHere, kGoneFromHere, kCrashBefore, kCrashAfter,
        kPowerCut}},
      {kRemoveFolder,
       "remove a folder",
       false,
       {kInputOutput, kNoAccess, kGoneFromHere, kCrashBefore, kCrashAfter, kPowerCut}},
      {kLookAt, "look at", false, {kInputOutput, kNoAccess, kGoneFromHere, kCrashBefore}},
  };
  return *std::ranges::find(kRows, call, &CallRow::call);
}

const FaultRow& RowOf(Fault fault) { return *std::ranges::find(kFaults, fault, &FaultRow::fault); }

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
  std::set<std::string> not_on_disk;  // paths whose bytes no flush has brought there
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
    if (!fault_ || RowOf(*fault_).error == 0) return false;
    errno = RowOf(*fault_).error;
    return true;
  }
  // Called when the call has been made.
  void End() const {
    if (fault_ == kPowerCut) {
      for (const std::string& path : Watched().not_on_disk) truncate(path.c_str(), 0);
      EndProcess();
    }
    if (fault_ == kCrashAfter) EndProcess();
  }

 private:
  static bool GoesOn(Fault fault, FileCall call) {
    return fault == kGoneFromHere || (fault == kFullFromHere && RowOf(call).needs_space);
  }

  std::optional<Fault> fault_;
};

}  // namespace

const char* NameOf(FileCall call) { return RowOf(call).name; }

const char* NameOf(Fault fault) { return RowOf(fault).name; }

bool IsCrash(Fault fault) { return RowOf(fault).error == 0; }

bool Lasts(Fault fault) { return fault == kFullFromHere || fault == kGoneFromHere; }

std::vector<Fault> FaultsOf(FileCall call) { return RowOf(call).faults; }

FileWatch::FileWatch(const std::string& folder) {
  Watched() = {};
  Watched().folder = folder;
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
  const bool reads = mode[0] == 'r';
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

std::size_t Write(const void* bytes, std::size_t size, std::size_t count, std::FILE* file) {
  OpenFile* const open = FindOpen(file);
  if (open == nullptr) return __real_fwrite(bytes, size, count, file);
  const Course course(kWrite);
  Watched().not_on_disk.insert(open->path);
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
  state.not_on_disk.erase(open->second.path);
  course.End();
  return 0;
}

int Replace(const char* from, const char* to) {
  if (!IsWatched(from)) return __real_rename(from, to);
  const Course course(kReplace);
  if (course.Fails()) return -1;
  const int result = __real_rename(from, to);
  if (result == 0) {
    auto& not_on_disk = Watched().not_on_disk;
    not_on_disk.erase(to);
    if (not_on_disk.erase(from) > 0) not_on_disk.insert(to);
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
int __wrap_remove(const char* path) {
  return velnor::OnPath(velnor::FileCall::kRemove, path, [=] { return __real_remove(path); });
}
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
