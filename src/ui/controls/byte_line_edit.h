// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <QLineEdit>

namespace tarnwick {

/// A text box for one line of stored bytes, of any length. Bytes that are shown and not edited stay as they are, also
/// those that are no UTF-8; what is typed is UTF-8.
class ByteLineEdit final : public QLineEdit {
  Q_OBJECT

 public:
  explicit ByteLineEdit(QWidget* parent = nullptr);

  void setBytes(std::string bytes);
  std::string bytes() const;

 private:
  std::string bytes_;
  QString shown_;
};

}  // namespace tarnwick
