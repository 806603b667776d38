#include "platform/os/heap.h"

#include <cstdlib>  // tells which library this is

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace tarnwick {

#ifdef __GLIBC__

// See mallopt(3). Once one of the two is set the library no longer fits them to what is asked for, so both are.
namespace {

constexpr int kMiB = 1024 * 1024;
constexpr int kKeptAtMost = 256 * kMiB;
constexpr int kUsuallyKept = 2 * kMiB;
/// The largest that the library takes: what is larger comes from the system each time.
constexpr int kLargestKept = 32 * kMiB;
constexpr int kUsuallyLargest = kMiB;

bool keeps = false;

}  // namespace

void keepFreedMemory() noexcept {
  if (!keeps) {
    keeps = true;
    mallopt(M_TRIM_THRESHOLD, kKeptAtMost);
    mallopt(M_MMAP_THRESHOLD, kLargestKept);
  }
}

void giveBackFreedMemory() noexcept {
  if (keeps) {
    keeps = false;
    mallopt(M_TRIM_THRESHOLD, kUsuallyKept);
    mallopt(M_MMAP_THRESHOLD, kUsuallyLargest);
    malloc_trim(0);
  }
}

#else

void keepFreedMemory() noexcept {}

void giveBackFreedMemory() noexcept {}

#endif

}  // namespace tarnwick
