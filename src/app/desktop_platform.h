// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/services.h"

namespace tarnwick {

/// The real machine with its desktop. A QApplication must exist.
class DesktopPlatform {
 public:
  DesktopPlatform();
  ~DesktopPlatform();
  DesktopPlatform(const DesktopPlatform&) = delete;
  DesktopPlatform& operator=(const DesktopPlatform&) = delete;

  /// Valid for this object's life.
  Services services();

 private:
  struct Machine;
  std::unique_ptr<Machine> machine_;
};

}  // namespace tarnwick
