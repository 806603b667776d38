// The entry point of every test executable: one application object for all cases, on the offscreen platform.
#include <gtest/gtest.h>

#include <clocale>
#include <QApplication>

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  QApplication application(argc, argv);
  // What a test compares must not depend on the tester's language.
  std::setlocale(LC_NUMERIC, "C");
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
