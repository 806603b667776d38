// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace tarnwick {

/// Makes `window`, which is about to be shown, as large as its contents wish, as far as the screen of `parent` goes.
/// `QWidget::adjustSize` would not give it more than two thirds of the screen.
void sizeToContents(QWidget& window, const QWidget& parent);

/// Moves `window`, which is about to be shown, to the left and top position of `parent`, shifted by `offset`; as far
/// as needed it is moved back, and made smaller, to lie on the parent's screen as a whole.
void placeAt(QWidget& window, const QWidget& parent, QPoint offset = {});

/// The same in the middle of `parent`.
void placeOver(QWidget& window, const QWidget& parent);

/// Where a window of `size` that is wished at `wish` lies wholly on `screen`. A larger window keeps its title bar.
QPoint clampedTo(const QRect& screen, QPoint wish, QSize size);

}  // namespace tarnwick
