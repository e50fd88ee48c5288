#pragma once

// A disk that becomes full, for tests: from some moment on files may not grow.

#include <sys/resource.h>

#include <csignal>
#include <cstdint>
#include <stdexcept>

namespace algo::terminal::tests {

/// As long as it lives, no file of this process grows beyond that size.
class TFileSizeLimit {
 public:
  explicit TFileSizeLimit(std::uintmax_t bytes) : FHandler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &FBefore);
    rlimit limit = FBefore;
    limit.rlim_cur = bytes;
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) throw std::runtime_error("setrlimit");
  }
  ~TFileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &FBefore);
    std::signal(SIGXFSZ, FHandler);
  }
  TFileSizeLimit(const TFileSizeLimit&) = delete;
  TFileSizeLimit& operator=(const TFileSizeLimit&) = delete;

 private:
  void (*FHandler)(int);
  rlimit FBefore{};
};

}  // namespace algo::terminal::tests
