// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <vector>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QString>
#include <QTabWidget>
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

/// The same for one that shows its own text, which a screen reader speaks, also when it changes.
template <typename Control>
Control* named(Control* control, const char* name) {
  return named(control, name, QString());
}

/// Makes a frame with a caption, which is its accessible name too.
QGroupBox* addFrame(QWidget& parent, const char* name, const QString& caption);

/// Makes the caption beside `control`, whose mnemonic leads to it.
QLabel* addLabel(const QString& caption, QWidget& control);

/// Makes a text box with room for about so many characters.
template <typename LineEdit>
LineEdit* addText(QWidget& parent, const char* name, const QString& accessibleName, int characters) {
  auto* text = named(new LineEdit(&parent), name, accessibleName);
  text->setMinimumWidth(text->fontMetrics().averageCharWidth() * characters);
  return text;
}

/// A page of a dialog, under its tab.
struct Page {
  QString caption;
  QWidget* content;
};

/// Makes the pages of a dialog. Ctrl+1, Ctrl+2 and so on turn to them.
QTabWidget* addPages(QDialog& dialog, const std::vector<Page>& pages);

/// Turns to the page that `control` is on and gives it the focus.
void turnTo(QWidget& control);

/// Makes a button of a dialog; `caption` may hold a mnemonic. It is not pressed by Enter unless it has the focus or is
/// the dialog's default button.
QPushButton* addButton(QWidget& parent, const char* name, const QString& caption, const QString& toolTip = {});

/// Runs `handler` when `button` is clicked; its failure ends in one box.
void onClick(QPushButton& button, FaultBox& faults, std::function<void()> handler);

}  // namespace tarnwick
