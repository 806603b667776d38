// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QString>

namespace tarnwick {

/// A share from 0 to 1 in per cent, never more than it is: "99.2 %", "61 %", "100 %".
QString shareWords(double share);

/// A line of plain text that asks to be looked at.
class AmberLine final : public QLabel {
  Q_OBJECT

 public:
  explicit AmberLine(QWidget* parent = nullptr);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void paintAmber();
};

}  // namespace tarnwick
