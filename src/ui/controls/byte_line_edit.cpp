// SPDX-License-Identifier: MIT
#include "ui/controls/byte_line_edit.h"

#include <limits>
#include <utility>

#include "ui/controls/display_text.h"

namespace tarnwick {

ByteLineEdit::ByteLineEdit(QWidget* parent) : QLineEdit(parent) {
  // The default would cut long values off.
  setMaxLength(std::numeric_limits<int>::max());
}

void ByteLineEdit::setBytes(std::string bytes) {
  bytes_ = std::move(bytes);
  shown_ = tarnwick::displayText(bytes_);
  setText(shown_);
  setCursorPosition(0);
}

std::string ByteLineEdit::bytes() const { return text() == shown_ ? bytes_ : text().toStdString(); }

}  // namespace tarnwick
