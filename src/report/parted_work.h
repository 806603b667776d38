// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include "base/text_in_parts.h"
#include "platform/clock.h"
#include "platform/timer.h"

namespace tarnwick {

/// Does work in parts between the events, so that neither a run nor a window waits for it. What takes no longer than
/// one part may is done at once.
class PartedWork {
 public:
  /// Where the errors of what is done later end: called with what is to be done.
  using Guard = std::function<void(const std::function<void()>& action)>;

  PartedWork(TimerMaker& timers, const Clock& clock, Guard guard);

  /// Begins, in place of what was begun and has not ended. What is raised at once is raised here, and ends the work, as
  /// it does later.
  void begin(TextInParts work);
  bool isOn() const { return work_.has_value(); }
  /// How long what was begun last has worked, without the events in between.
  std::chrono::milliseconds spent() const;

 private:
  void goOn();

  const Clock& clock_;
  std::optional<TextInParts> work_;
  std::chrono::milliseconds before_{};  ///< spent, up to the slice that goes on
  std::optional<std::chrono::milliseconds> slice_{};
  std::unique_ptr<Timer> timer_;
};

}  // namespace tarnwick
