// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <ctime>
#include <QTimer>

namespace tarnwick::testing {

/// For how long the window did nothing but compute, from this object's beginning on: by the time that it had the
/// processor for, so that a machine that has other things to do is not taken for a window that is held up.
class LongestGap {
 public:
  LongestGap() {
    QObject::connect(&timer_, &QTimer::timeout, [this] { look(); });
    timer_.start(std::chrono::milliseconds(1));
  }

  std::chrono::milliseconds longest() {
    look();
    return std::chrono::duration_cast<std::chrono::milliseconds>(longest_);
  }

 private:
  static std::chrono::nanoseconds now() {
#ifdef _WIN32
    return std::chrono::steady_clock::now().time_since_epoch();
#else
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
#endif
  }
  void look() {
    const std::chrono::nanoseconds time = now();
    longest_ = std::max(longest_, time - last_);
    last_ = time;
  }

  QTimer timer_;
  std::chrono::nanoseconds last_ = now();
  std::chrono::nanoseconds longest_{};
};

}  // namespace tarnwick::testing
