// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace tarnwick::testing {

/// The longest time that a user is made to wait for something, as a test measures it: a build that is made to find
/// mistakes is slower than the one that users run, and so is one for Windows, which is tried under Wine.
constexpr std::chrono::milliseconds patience(std::chrono::milliseconds time) {
#if defined(__SANITIZE_ADDRESS__) || !defined(NDEBUG) || defined(_WIN32)
  return time * 12;
#else
  return time;
#endif
}

}  // namespace tarnwick::testing
