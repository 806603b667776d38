// SPDX-License-Identifier: MIT
// The entry point of a test executable that needs an event loop, and no desktop.
#include <gtest/gtest.h>

#include <QCoreApplication>

#include "platform/process/unwanted_signals.h"

int main(int argc, char** argv) {
  tarnwick::ignoreUnwantedSignals();
  const QCoreApplication application(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
