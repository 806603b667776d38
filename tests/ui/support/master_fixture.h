// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <QTest>

#include "support/http_server.h"
#include "support/program_folder.h"
#include "support/test_services.h"
#include "support/wait_until.h"
#include "ui/main_window/master.h"

namespace tarnwick::testing {

/// A main window on a program folder of its own, whose desktop only records.
class MasterTest : public ::testing::Test {
 protected:
  MasterTest();
  ~MasterTest() override;

  /// Adds a site to the database as another program would.
  void addSite(int id, const std::string& url, const std::string& more = "", const std::string& values = "");
  /// Puts the product's bitmaps into the program folder.
  void layImages();
  /// Makes the window, starts the program and shows it; fails the test when it does not start.
  void open();

  template <typename Control>
  Control& find(const char* name) {
    auto* control = master->findChild<Control*>(QString::fromLatin1(name));
    if (control == nullptr) {
      throw std::runtime_error(std::string("The window has no ") + name);
    }
    return *control;
  }
  QString status() { return find<QLabel>("lStatus").text(); }
  QString cell(int row, int column);
  QColor colour(int row, int column);
  int rows();
  void click(const char* button) { QTest::mouseClick(&find<QWidget>(button), Qt::LeftButton); }

  ProgramFolder folder;
  TestServices machine;
  /// What can be set; to be chosen before the window is opened.
  const Fields* fields = &programFields();
  std::unique_ptr<Master> master;
};

}  // namespace tarnwick::testing
