// SPDX-License-Identifier: MIT
#include "ui/controls/prompt_line_edit.h"

#include <limits>

namespace tarnwick {

PromptLineEdit::PromptLineEdit(QWidget* parent) : QLineEdit(parent) {
  // The default would cut long values off.
  setMaxLength(std::numeric_limits<int>::max());
}

void PromptLineEdit::setPrompt(const QString& prompt) {
  setPlaceholderText(prompt);
  setText(prompt);
}

void PromptLineEdit::mousePressEvent(QMouseEvent* event) {
  QLineEdit::mousePressEvent(event);
  if (text() == placeholderText()) {
    selectAll();
  }
}

}  // namespace tarnwick
