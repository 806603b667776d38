// SPDX-License-Identifier: MIT
#pragma once

#include <sys/resource.h>
#include <unistd.h>

namespace tarnwick::testing {

/// Lowers a limit of this process, one of `RLIMIT_...` in getrlimit(2), for its own lifetime.
class ResourceLimit {
 public:
  ResourceLimit(int resource, rlim_t most) : resource_(resource) {
    getrlimit(resource_, &before_);
    rlimit lower = before_;
    lower.rlim_cur = most;
    setrlimit(resource_, &lower);
  }
  ~ResourceLimit() { setrlimit(resource_, &before_); }
  ResourceLimit(const ResourceLimit&) = delete;
  ResourceLimit& operator=(const ResourceLimit&) = delete;

 private:
  int resource_;
  rlimit before_{};
};

/// The number of files from which on this process can open nothing more.
inline rlim_t filesOpen() {
  const int lowestFree = ::dup(0);
  ::close(lowestFree);
  return static_cast<rlim_t>(lowestFree);
}

}  // namespace tarnwick::testing
