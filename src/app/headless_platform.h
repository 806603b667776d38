// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>

#include "platform/services.h"

namespace tarnwick {

/// The real machine without a desktop: clock, files, event loop, database, network, sounds and programs are real; boxes
/// are written to standard error and answered No, and nothing can be opened. A QCoreApplication must exist.
class HeadlessPlatform {
 public:
  /// `patience` is how long a statement waits for another program's lock on the database, and with it all else.
  explicit HeadlessPlatform(std::chrono::milliseconds patience = std::chrono::seconds(2));
  ~HeadlessPlatform();
  HeadlessPlatform(const HeadlessPlatform&) = delete;
  HeadlessPlatform& operator=(const HeadlessPlatform&) = delete;

  /// Valid for this object's life.
  Services services();

 private:
  struct Machine;
  std::unique_ptr<Machine> machine_;
};

}  // namespace tarnwick
