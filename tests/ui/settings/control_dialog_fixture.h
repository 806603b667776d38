// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <QListWidget>

#include "ui/settings/control_dialog.h"
#include "ui/support/dialog_fixture.h"

namespace tarnwick::testing {

/// A main window whose settings dialog is opened as a user opens it.
class ControlDialogTest : public DialogTest {
 protected:
  /// Starts the program, unless it runs, and presses Setup.
  ControlDialog& openSettings(const char* button = "btnSetup") {
    if (master == nullptr) {
      open();
    }
    master->setEditors({.site = {}, .settings = settingsDialogOf(master->program(), *master)});
    click(button);
    auto& dialog = opened<ControlDialog>();
    if (!QTest::qWaitForWindowActive(&dialog)) {
      throw std::runtime_error("The dialog did not become the active window.");
    }
    return dialog;
  }

  /// Changes the stored settings as another program would.
  void arrange(const std::string& assignment) { folder.execute("update control set " + assignment + " where id = 1"); }
  /// All settings in the order in which they are stored.
  std::string stored() const {
    return folder.queryRows(
        "select email, smtp, audio, timeout, program, clogs, creports, cemail, caudio, cprogram from control");
  }

  static QListWidget& timeouts(QWidget& dialog) { return in<QListWidget>(dialog, "lbInterval"); }
  /// The selected time-out; empty without one.
  static std::string timeout(QWidget& dialog) {
    const auto chosen = timeouts(dialog).selectedItems();
    return chosen.isEmpty() ? "" : chosen.first()->text().toStdString();
  }
  static void chooseTimeout(QWidget& dialog, int row) {
    auto& list = timeouts(dialog);
    list.scrollToItem(list.item(row));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, list.visualItemRect(list.item(row)).center());
  }
  static bool ticked(QWidget& dialog, const char* name) { return in<QCheckBox>(dialog, name).isChecked(); }
  static void tick(QWidget& dialog, const char* name) {
    auto& flag = in<QCheckBox>(dialog, name);
    QTest::mouseClick(&flag, Qt::LeftButton, Qt::NoModifier, QPoint(8, flag.height() / 2));
  }
  static std::string label(QWidget& dialog, const char* name) { return in<QLabel>(dialog, name).text().toStdString(); }
};

}  // namespace tarnwick::testing
