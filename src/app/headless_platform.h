// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/services.h"

namespace tarnwick {

/// The real machine without a desktop: clock, files, event loop, database, network, sounds and programs are real; boxes
/// are written to standard error and answered No, and nothing can be opened. A QCoreApplication must exist.
class HeadlessPlatform {
 public:
  HeadlessPlatform();
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
