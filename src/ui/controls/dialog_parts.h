#pragma once

#include <functional>
#include <QPushButton>
#include <QString>
#include <QWidget>

#include "program/fault_box.h"

namespace tarnwick {

/// Gives `control` its name, by which it is found, and the name that a screen reader speaks.
template <typename Control>
Control* named(Control* control, const char* name, const QString& accessibleName) {
  control->setObjectName(QString::fromLatin1(name));
  control->setAccessibleName(accessibleName);
  return control;
}

/// Makes a button of a dialog; `caption` may hold a mnemonic. It is not pressed by Enter unless it has the focus or is
/// the dialog's default button.
QPushButton* addButton(QWidget& parent, const char* name, const QString& caption, const QString& toolTip = {});

/// Runs `handler` when `button` is clicked; its failure ends in one box.
void onClick(QPushButton& button, FaultBox& faults, std::function<void()> handler);

}  // namespace tarnwick
