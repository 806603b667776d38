// SPDX-License-Identifier: MIT
#include "platform/desktop/exclusive_dialog.h"

#include <QEventLoop>
#include <QPointer>

#include "platform/desktop/input_block.h"

namespace tarnwick {

int runExclusively(QDialog& dialog) {
  const InputBlock block(dialog, [&dialog](QWidget& widget) {
    // Menus and lists that drop down from the dialog are windows of their own, but its children.
    const QObject* owner = &widget;
    while (owner != nullptr && owner != &dialog) {
      owner = owner->parent();
    }
    return owner == nullptr;
  });
  const QPointer<QDialog> standing(&dialog);
  int answer = QDialog::Rejected;
  QEventLoop loop;
  QObject::connect(&dialog, &QDialog::finished, &loop, [&](int result) {
    answer = result;
    loop.quit();
  });
  QObject::connect(&dialog, &QObject::destroyed, &loop, &QEventLoop::quit);
  dialog.setWindowModality(Qt::NonModal);
  dialog.show();
  dialog.activateWindow();
  loop.exec(QEventLoop::DialogExec);
  // The loop also ends with the program, the dialog still standing.
  if (standing != nullptr && standing->isVisible()) {
    standing->reject();
  }
  return answer;
}

}  // namespace tarnwick
