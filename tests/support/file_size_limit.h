// A disk that is full: it stands for one that files cannot grow.

#ifndef VELNOR_TESTS_SUPPORT_FILE_SIZE_LIMIT_H_
#define VELNOR_TESTS_SUPPORT_FILE_SIZE_LIMIT_H_

#include <csignal>
#include <sys/resource.h>

namespace velnor {

// Files of this process cannot grow past a size while the object lives.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : old_handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &old_);
    const rlimit limited = {bytes, old_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limited);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &old_);
    std::signal(SIGXFSZ, old_handler_);
  }

 private:
  rlimit old_ = {};
  void (*old_handler_)(int);
};

}  // namespace velnor

#endif  // VELNOR_TESTS_SUPPORT_FILE_SIZE_LIMIT_H_
