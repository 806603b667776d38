// SPDX-License-Identifier: MIT
#include "ui/controls/placement.h"

#include <algorithm>
#include <QScreen>

namespace tarnwick {
namespace {

// What the window manager puts around a window; the parent's frame tells it before the window is shown.
QSize frameOf(const QWidget& parent) { return parent.frameGeometry().size() - parent.geometry().size(); }

void place(QWidget& window, const QWidget& parent, QPoint wish) {
  const QRect screen = parent.screen()->availableGeometry();
  const QSize frame = frameOf(parent);
  window.resize(window.size().boundedTo(screen.size() - frame));
  window.move(clampedTo(screen, wish, window.size() + frame));
}

}  // namespace

void sizeToContents(QWidget& window, const QWidget& parent) {
  constexpr double kMostOfScreen = 0.95;
  window.ensurePolished();
  window.resize(window.sizeHint().boundedTo(parent.screen()->availableSize() * kMostOfScreen));
}

QPoint clampedTo(const QRect& screen, QPoint wish, QSize size) {
  const int left = std::max(screen.left(), std::min(wish.x(), screen.right() + 1 - size.width()));
  const int top = std::max(screen.top(), std::min(wish.y(), screen.bottom() + 1 - size.height()));
  return {left, top};
}

void placeAt(QWidget& window, const QWidget& parent, QPoint offset) { place(window, parent, parent.pos() + offset); }

void placeOver(QWidget& window, const QWidget& parent) {
  const QRect around = parent.frameGeometry();
  const QSize size = window.size() + frameOf(parent);
  place(window, parent, {around.center().x() - size.width() / 2, around.center().y() - size.height() / 2});
}

}  // namespace tarnwick
