// The lock of the start-up folder. A deed that reads, computes and writes holds it all the while,
// so that two programs on one folder take turns. Held by base/transaction.

#ifndef VELNOR_BASE_FOLDER_LOCK_H_
#define VELNOR_BASE_FOLDER_LOCK_H_

#include <optional>
#include <string>

#include "base/file_calls.h"

namespace velnor {

class FolderLock {
 public:
  // Waits at most this long for another program, in milliseconds.
  static constexpr int kPatience = 2000;

  // `folder` ends with a separator.
  explicit FolderLock(const std::string& folder);
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;
  ~FolderLock();

  // Returns false if another one kept it for longer than the patience lasts, or the folder is
  // missing or not to be written.
  bool held() const { return handle_.has_value(); }

 private:
  std::optional<LockHandle> handle_;
};

}  // namespace velnor

#endif  // VELNOR_BASE_FOLDER_LOCK_H_
