// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

namespace tarnwick::testing {

#ifdef _WIN32
constexpr bool kOnWindows = true;
#else
constexpr bool kOnWindows = false;
#endif

/// The processor time that this process has used, in seconds.
double processorSeconds();

}  // namespace tarnwick::testing

/// For a test of what there is no such thing as on Windows; the reason says what that is.
#define SKIP_ON_WINDOWS(reason)        \
  if (tarnwick::testing::kOnWindows) { \
    GTEST_SKIP() << (reason);          \
  }                                    \
  static_assert(true)
