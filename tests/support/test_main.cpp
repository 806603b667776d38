// SPDX-License-Identifier: MIT
// The entry point of a test executable of a room that knows no Qt.
#include <gtest/gtest.h>

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
