// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <QDialog>
#include <QString>

#include "program/program.h"

namespace tarnwick {

/// Shows `text` in a box that `form` waits for; `closed` follows, if the form still stands. Its failure ends in a box.
void tell(QWidget& form, Program& program, const std::string& text, std::function<void()> closed = {});

/// Asks in the same way. `question` needs no owner and no icon.
void ask(QWidget& form, Program& program, Message question, std::function<void(bool yes)> answered);

/// Has the file written by `put`, a copy of which may outlive the caller; one that is there only when the user wants it
/// replaced. Its failure ends in a box then.
void putFile(Program& program, const std::string& file, const std::function<void()>& put);

/// The box, file chooser or dialog that `form` waits for; null when there is none.
QDialog* dialogBefore(const QWidget& form);

/// Puts a window before the others, out of the task bar too.
void bringToFront(QWidget& window);

/// Leaves the windows above `form` to the user while a box stands before the form: the toolkit's modality, which
/// follows the chain of owners, would block them all, and with the main window the end of the program. To be called
/// before the form is shown. It still goes with its parent.
void endModalityAt(QDialog& form);

/// A form that may hold what is not stored yet.
class UnsavedEdits {
 public:
  virtual ~UnsavedEdits() = default;
  /// What would be lost, in words; empty for nothing.
  virtual QString unsavedEdits() const = 0;
};

/// What all forms that are open would lose if the program ended now.
QString everyUnsavedEdit();

}  // namespace tarnwick
