// SPDX-License-Identifier: MIT
#include "ui/settings/window_frame.h"

#include <QHBoxLayout>

#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"

namespace tarnwick {

WindowFrame::WindowFrame(UserHabits& habits, QWidget* parent)
    : QGroupBox(tr("Window"), parent),
      habits_(habits),
      closeToTray_(named(new QCheckBox(tr("Close to the tray"), this), "closeToTray")),
      startWithDesktop_(named(new QCheckBox(tr("Start with the desktop"), this), "startWithDesktop")) {
  setObjectName(QStringLiteral("windowFrame"));
  closeToTray_->setChecked(habits.closesToTray());
  closeToTray_->setEnabled(habits.hasTray());
  explain(*closeToTray_, habits.hasTray()
                             ? tr("Closing the window leaves the program in the tray, as long as there is one")
                             : tr("This desktop has no tray: closing the window ends the program"));
  startWithDesktop_->setChecked(habits.startsWithDesktop());
  explain(*startWithDesktop_, tr("The window opens when you log in to this desktop"));
  auto* line = new QHBoxLayout(this);
  line->addWidget(closeToTray_);
  line->addSpacing(2 * line->spacing());
  line->addWidget(startWithDesktop_);
  line->addStretch();
}

bool WindowFrame::isChanged() const {
  return closeToTray_->isChecked() != habits_.closesToTray() ||
         startWithDesktop_->isChecked() != habits_.startsWithDesktop();
}

void WindowFrame::store() {
  try {
    if (startWithDesktop_->isChecked() != habits_.startsWithDesktop()) {
      habits_.setStartsWithDesktop(startWithDesktop_->isChecked());
    }
  } catch (...) {
    turnTo(*startWithDesktop_);
    throw;
  }
  if (closeToTray_->isChecked() != habits_.closesToTray()) {
    habits_.setClosesToTray(closeToTray_->isChecked());
  }
}

}  // namespace tarnwick
