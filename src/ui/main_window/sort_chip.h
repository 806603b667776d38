// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

namespace tarnwick {

/// A button whose text gives way where there is no room for it: shortened in its middle, and told by the tooltip.
class SortChip final : public QPushButton {
  Q_OBJECT

 public:
  using QPushButton::QPushButton;

  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tarnwick
