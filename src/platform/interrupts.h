// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

namespace tarnwick {

/// Turns what asks a terminal program to end (SIGINT, SIGTERM and SIGHUP, or the console's own events) into a call
/// from the event loop, for this object's life. A second request while the first is being served ends the process at
/// once, as it would have without this object. One at a time; a QCoreApplication must exist.
class Interrupts {
 public:
  explicit Interrupts(std::function<void()> handler);
  ~Interrupts();
  Interrupts(const Interrupts&) = delete;
  Interrupts& operator=(const Interrupts&) = delete;

 private:
  struct Watch;
  std::unique_ptr<Watch> watch_;
};

}  // namespace tarnwick
