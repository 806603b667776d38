// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>
#include <QAccessible>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "support/http_server.h"
#include "ui/baseline/content_dialog.h"
#include "ui/site/counters_dialog.h"
#include "ui/site/new_post_var.h"
#include "ui/site/one_site_editor.h"
#include "ui/site/site_editor.h"
#include "ui/support/master_fixture.h"

namespace tarnwick::testing {

/// A main window whose dialogs are opened as a user opens them.
class DialogTest : public MasterTest {
 protected:
  ~DialogTest() override { master.reset(); }

  /// Starts the program with its site editor and shows it.
  void openProgram();
  /// Clicks the row of the main window's grid, the first one is 0.
  void clickRow(int row);
  /// Starts the program and opens the editor on the site of the grid's first row.
  SiteEditor& openEditor();

  /// The open dialog of that kind; null when there is none.
  template <typename Dialog>
  Dialog* shown() {
    for (auto* dialog : master->findChildren<Dialog*>()) {
      if (dialog->isVisible()) {
        return dialog;
      }
    }
    return nullptr;
  }
  /// The same, where there must be one.
  template <typename Dialog>
  Dialog& opened() {
    auto* dialog = shown<Dialog>();
    if (dialog == nullptr) {
      throw std::runtime_error("The dialog is not open.");
    }
    return *dialog;
  }

  template <typename Control>
  static Control& in(QWidget& form, const char* name) {
    auto* control = form.findChild<Control*>(QString::fromLatin1(name));
    if (control == nullptr) {
      throw std::runtime_error(std::string("The form has no ") + name);
    }
    return *control;
  }
  static void press(QWidget& form, const char* button) {
    auto& control = in<QPushButton>(form, button);
    if (!control.isEnabled()) {
      throw std::runtime_error(std::string("Not enabled: ") + button);
    }
    clickOn(control);
  }
  /// Scrolls to a control and clicks its middle as the desktop does: a window that waits for another one takes no
  /// click.
  static void clickOn(QWidget& control);
  /// Presses "Load From Url" and waits for the page.
  static void load(QWidget& contentDialog);
  /// Replaces the text of a text box by typing.
  static void type(QWidget& form, const char* name, const std::string& text);
  static std::string text(QWidget& form, const char* name) { return in<QLineEdit>(form, name).text().toStdString(); }
  /// The caption of a control without its mnemonic.
  template <typename Control>
  static std::string caption(QWidget& form, const char* name) {
    return in<Control>(form, name).text().remove(QLatin1Char('&')).toStdString();
  }
  /// What a screen reader tells of a control.
  static QString spoken(QWidget& control, QAccessible::Text what = QAccessible::Name) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&control);
    return spoken == nullptr ? QString() : spoken->text(what);
  }
  /// The names of a form's controls in the order of the Tab key, from the first one.
  static std::vector<std::string> tabOrder(QWidget& form, QWidget& first);
  /// The mnemonics of a form's controls.
  static std::vector<QChar> mnemonics(QWidget& form);

  /// One column of a site's row, and a site's variables as "name=value;", read as another program would.
  std::string column(int id, const std::string& name) const {
    return folder.queryText("select " + name + " from sites where idSite = " + std::to_string(id));
  }
  std::string vars(int id) const {
    return folder.queryText(
        "select group_concat(pname || '=' || pvalue, ';') from (select * from postVars where idSite = " +
        std::to_string(id) + " order by idPostVars)");
  }
  void addVar(int id, const std::string& name, const std::string& value) {
    folder.execute("insert into postVars (idSite,pname,pvalue) values (" + std::to_string(id) + ",'" + name + "','" +
                   value + "')");
  }

  HttpServer server;
};

}  // namespace tarnwick::testing
