// What can go wrong in the calls on files that the program makes. The linker leads those calls
// through here (file_faults.cpp); the tests of the faults watch them, count them, and let one fail
// or end the process.

#ifndef VELNOR_TESTS_FAULTS_FILE_FAULTS_H_
#define VELNOR_TESTS_FAULTS_FILE_FAULTS_H_

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace velnor {

enum class FileCall {
  kOpenToRead,
  kRead,
  kCloseRead,
  kOpenToWrite,
  kWrite,
  kFlush,
  kSync,
  kCloseWritten,
  kReplace,  // a file takes another's name
  kRemove,
  kMakeFolder,
  kRemoveFolder,
  kListFolder,
  kSeek,
  kOpenToLock,
  kLock,
  kUnlock,
  kLookAt,
  kCut,  // only after another call has failed
};

const char* NameOf(FileCall call);

enum class Fault {
  // The call returns its error, and nothing was done.
  kNoSpace,
  kInputOutput,
  kNoAccess,
  // Half of the bytes were read or written before the error.
  kHalf,
  // From this call on everything fails that needs space, or everything whatever it is.
  kFullFromHere,
  kGoneFromHere,
  // The process ends: before the call, after half of the bytes that it writes, after it.
  kCrashBefore,
  kCrashHalf,
  kCrashAfter,
  // After it, and what no flush has brought to the disk is lost.
  kPowerCut,
};

const char* NameOf(Fault fault);
bool IsCrash(Fault fault);
// What errno is after it; 0 when the process ends.
int ErrorOf(Fault fault);
// Whether a full disk refuses the call.
bool NeedsSpace(FileCall call);
// Whether clearing up after the error fails too, so that a temporary file may stay.
bool Lasts(Fault fault);

// What can go wrong in such a call. A crash behind a call that changes nothing is the crash before
// the next one, and so not told apart.
std::vector<Fault> FaultsOf(FileCall call);

// Ends the process with this status when a crash comes.
inline constexpr int kCrashStatus = 77;

// The calls on the files below a folder, from the construction on to the destruction. One watch at
// a time.
class FileWatch {
 public:
  // `folder` ends with a separator.
  explicit FileWatch(const std::string& folder);
  // The same; `on_unlock` is called whenever a lock has been given back.
  FileWatch(const std::string& folder, std::function<void()> on_unlock);
  // The same, with `fault` at the call `at`, counted from 0.
  FileWatch(const std::string& folder, std::size_t at, Fault fault);
  FileWatch(const FileWatch&) = delete;
  FileWatch& operator=(const FileWatch&) = delete;
  ~FileWatch();

  // The calls so far.
  const std::vector<FileCall>& calls() const;
};

}  // namespace velnor

#endif  // VELNOR_TESTS_FAULTS_FILE_FAULTS_H_
