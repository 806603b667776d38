// SPDX-License-Identifier: MIT
#pragma once

#include "base/wording.h"

namespace tarnwick {

/// For the time in which the QApplication is made. Where the toolkit finds no display it would end the program by a
/// dump; with this it ends with status 1 and one line that says what is missing and how to go on. What the toolkit has
/// to say otherwise is said at the end; its own line is in the language of `wording`. One at a time.
class DisplayGuard {
 public:
  explicit DisplayGuard(const Wording& wording);
  ~DisplayGuard();
  DisplayGuard(const DisplayGuard&) = delete;
  DisplayGuard& operator=(const DisplayGuard&) = delete;
};

}  // namespace tarnwick
