// SPDX-License-Identifier: MIT
// The entry point of a test executable with windows: one application object for all cases, on the offscreen platform.
#include <gtest/gtest.h>

#include <clocale>
#include <QApplication>

#include "platform/process/unwanted_signals.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  tarnwick::ignoreUnwantedSignals();
  QApplication application(argc, argv);
  // What a test compares must not depend on the tester's language.
  std::setlocale(LC_NUMERIC, "C");
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
