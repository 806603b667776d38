// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <utility>

namespace tarnwick {

/// How long one transfer may still take. What the program did elsewhere meanwhile is given back to it, at most once the
/// time-out again, so that a busy program makes no healthy site late and no silent one endless. After an absence of any
/// length there is still time to read what has come meanwhile.
class TransferClock {
 public:
  using Moment = std::chrono::steady_clock::time_point;
  using Span = std::chrono::milliseconds;

  TransferClock(Moment start, Span timeout) : timeout_(timeout), deadline_(start + timeout) {}

  /// The program has been `away` until `now`.
  void extend(Span away, Moment now) {
    constexpr Span kToReadWhatHasCome{300};
    const Span more = std::clamp(timeout_ - given_, Span{0}, away);
    const Moment before = std::exchange(deadline_, std::max(deadline_ + more, now + kToReadWhatHasCome));
    given_ += std::chrono::ceil<Span>(deadline_ - before);
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
