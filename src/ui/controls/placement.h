// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace tarnwick {

/// Moves `window`, which is about to be shown, to the left and top position of `parent`, shifted by `offset`; as far
/// as needed it is moved back, and made smaller, to lie on the parent's screen as a whole.
void placeAt(QWidget& window, const QWidget& parent, QPoint offset = {});

/// The same in the middle of `parent`.
void placeOver(QWidget& window, const QWidget& parent);

/// Where a window of `size` that is wished at `wish` lies wholly on `screen`. A larger window keeps its title bar.
QPoint clampedTo(const QRect& screen, QPoint wish, QSize size);

}  // namespace tarnwick
