// SPDX-License-Identifier: MIT
#include "ui/controls/boxes.h"

#include <utility>
#include <QApplication>
#include <QDir>
#include <QPointer>
#include <QWindow>

namespace tarnwick {

void tell(QWidget& form, Program& program, const std::string& text, std::function<void()> closed) {
  program.services().prompts.inform({.text = text, .owner = &form},
                                    [standing = QPointer<QWidget>(&form), &program, closed = std::move(closed)] {
                                      if (closed && standing != nullptr && standing->isVisible()) {
                                        program.faults().run(closed);
                                      }
                                    });
}

void ask(QWidget& form, Program& program, Message question, std::function<void(bool yes)> answered) {
  question.icon = PromptIcon::question;
  question.owner = &form;
  program.services().prompts.confirm(
      question, [standing = QPointer<QWidget>(&form), &program, answered = std::move(answered)](bool yes) {
        if (standing != nullptr && standing->isVisible()) {
          program.faults().run([&] { answered(yes); });
        }
      });
}

void putFile(Program& program, const std::string& file, const std::function<void()>& put) {
  if (!program.services().files.exists(file)) {
    put();
    return;
  }
  const QString shown = QDir::toNativeSeparators(QString::fromStdString(file));
  program.services().prompts.confirm(
      {.text = QObject::tr("Do You Want To Replace The File %1?").arg(shown).toStdString(),
       .icon = PromptIcon::question,
       .destroys = true},
      [&program, put](bool yes) {
        if (yes) {
          program.faults().run(put);
        }
      });
}

QDialog* dialogBefore(const QWidget& form) {
  for (auto* dialog : form.findChildren<QDialog*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (dialog->isVisible()) {
      return dialog;
    }
  }
  return nullptr;
}

void bringToFront(QWidget& window) {
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.raise();
  window.activateWindow();
}

QString everyUnsavedEdit() {
  QStringList all;
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    const auto* form = dynamic_cast<const UnsavedEdits*>(window);
    if (const QString edits = form != nullptr && window->isVisible() ? form->unsavedEdits() : QString();
        !edits.isEmpty()) {
      all.append(edits);
    }
  }
  all.sort();
  return all.join(QStringLiteral(", "));
}

void endModalityAt(QDialog& form) {
  form.winId();
  form.windowHandle()->setTransientParent(nullptr);
}

}  // namespace tarnwick
