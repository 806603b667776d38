#pragma once

#include <algorithm>
#include <chrono>

namespace tarnwick {

/// How long one transfer may still take. What the program did elsewhere meanwhile is given back to it, at most once the
/// time-out again, so that a busy program makes no healthy site late and no silent one endless.
class TransferClock {
 public:
  using Moment = std::chrono::steady_clock::time_point;
  using Span = std::chrono::milliseconds;

  TransferClock(Moment start, Span timeout) : timeout_(timeout), deadline_(start + timeout) {}

  void giveBack(Span away) {
    const Span more = std::min(away, timeout_ - given_);
    given_ += more;
    deadline_ += more;
  }

  bool overdueAt(Moment now) const { return now >= deadline_; }
  Moment deadline() const { return deadline_; }
  /// The time-out together with what has been given back.
  Span allowed() const { return timeout_ + given_; }

 private:
  Span timeout_;
  Span given_{0};
  Moment deadline_;
};

}  // namespace tarnwick
