// SPDX-License-Identifier: MIT
#include "ui/support/dialog_fixture.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <QScrollArea>
#include <QWindow>

namespace tarnwick::testing {

void DialogTest::openProgram() {
  open();
  master->setEditors({siteEditorOf(master->program(), *master), {}});
}

void DialogTest::clickRow(int row) {
  auto& grid = find<SiteGridView>("grid1");
  const QRect cell = grid.visualRect(grid.model()->index(row, 1));
  QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
}

SiteEditor& DialogTest::openEditor() {
  openProgram();
  clickRow(0);
  auto& editor = opened<SiteEditor>();
  if (!QTest::qWaitForWindowActive(&editor)) {
    throw std::runtime_error("The editor did not become the active window.");
  }
  return editor;
}

void DialogTest::clickOn(QWidget& control) {
  for (QWidget* around = control.parentWidget(); around != nullptr; around = around->parentWidget()) {
    if (auto* page = qobject_cast<QScrollArea*>(around)) {
      page->ensureWidgetVisible(&control);
    }
  }
  QWidget& window = *control.window();
  QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, control.mapTo(&window, control.rect().center()));
}

void DialogTest::load(QWidget& contentDialog) {
  press(contentDialog, "btnLoad");
  EXPECT_TRUE(waitUntil([&] { return in<QPushButton>(contentDialog, "btnOk").isEnabled(); }));
}

void DialogTest::type(QWidget& form, const char* name, const std::string& text) {
  auto& box = in<QLineEdit>(form, name);
  box.setFocus();
  box.selectAll();
  QTest::keyClick(&box, Qt::Key_Delete);
  QTest::keyClicks(&box, QString::fromStdString(text));
}

std::vector<std::string> DialogTest::tabOrder(QWidget& form, QWidget& first) {
  std::vector<std::string> names;
  QWidget* control = &first;
  do {
    const bool reached = control->window() == &form && (control->focusPolicy() & Qt::TabFocus) != 0 &&
                         control->isVisible() && !control->objectName().startsWith(QLatin1String("qt_"));
    if (reached) {
      names.push_back(control->objectName().toStdString());
    }
    control = control->nextInFocusChain();
  } while (control != &first);
  return names;
}

std::vector<QChar> DialogTest::mnemonics(QWidget& form) {
  std::vector<QChar> keys;
  const auto add = [&](const QString& caption) {
    const qsizetype mark = caption.indexOf(QLatin1Char('&'));
    if (mark >= 0) {
      keys.push_back(caption[mark + 1].toLower());
    }
  };
  for (const auto* button : form.findChildren<QAbstractButton*>()) {
    add(button->text());
  }
  for (const auto* label : form.findChildren<QLabel*>()) {
    if (label->buddy() != nullptr) {
      add(label->text());
    }
  }
  return keys;
}

}  // namespace tarnwick::testing
