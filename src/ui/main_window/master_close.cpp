// SPDX-License-Identifier: MIT
#include <utility>
#include <QApplication>
#include <QCloseEvent>
#include <QDialog>

#include "base/product.h"
#include "ui/controls/boxes.h"
#include "ui/main_window/master.h"

namespace tarnwick {

void Master::useTray(std::unique_ptr<TrayIcon> icon, std::function<bool()> closesTo) {
  closesToTray_ = std::move(closesTo);
  tray_ = new Tray(program_, *controls_.grid1, sites_, std::move(icon),
                   {.outbox = [this] { controls_.outbox->trigger(); }, .quit = [this] { quit(); }}, this);
  connect(marks_, &AlarmMarks::pauseRead, tray_, &Tray::tellPaused);
}

void Master::quit() {
  quits_ = true;
  if (!everyUnsavedEdit().isEmpty()) {
    show();
  }
  close();
}

void Master::closeEvent(QCloseEvent* event) {
  if (!quits_ && !qApp->isSavingSession() && tray_ != nullptr && tray_->isThere() && closesToTray_()) {
    event->ignore();
    tray_->hideWindow();
    return;
  }
  const QString unsaved = std::exchange(mayLose_, true) ? QString() : everyUnsavedEdit();
  if (!unsaved.isEmpty()) {
    event->ignore();
    const QString question = tr("These changes are not stored: %1.\n\nDo You Want To Discard Them And Close %2?")
                                 .arg(unsaved, QString::fromLatin1(kProductName));
    program_.services().prompts.confirm(
        {.text = question.toStdString(), .icon = PromptIcon::question, .destroys = true}, [this](bool yes) {
          mayLose_ = yes;
          quits_ = quits_ && yes;
          if (yes) {
            // Not from within the event that asked.
            QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
          }
        });
    return;
  }
  program_.close();
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* dialog = qobject_cast<QDialog*>(window); dialog != nullptr && dialog->isVisible()) {
      dialog->reject();
    }
  }
  event->accept();
  if (!isVisible()) {
    QCoreApplication::exit();  // there is no window whose closing would end the program
  }
}

}  // namespace tarnwick
