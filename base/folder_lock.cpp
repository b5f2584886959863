#include "base/folder_lock.h"

#include <chrono>

namespace velnor {
namespace {

constexpr int kBetweenTries = 1;  // milliseconds; a deed takes some ten

}  // namespace

FolderLock::FolderLock(const std::string& folder) {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point end = Clock::now() + std::chrono::milliseconds(kPatience);
  for (;;) {
    LockHandle handle = {};
    const LockAnswer answer = LockFolder(folder, handle);
    if (answer == LockAnswer::kLocked) handle_ = handle;
    if (answer != LockAnswer::kHeldElsewhere || Clock::now() >= end) return;
    Pause(kBetweenTries);
  }
}

FolderLock::~FolderLock() {
  if (handle_) UnlockFolder(*handle_);
}

}  // namespace velnor
