// SPDX-License-Identifier: MIT
#include "ui/main_window/sort_chip.h"

#include <algorithm>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace tarnwick {
namespace {

constexpr int kFewestCharacters = 10;

}  // namespace

QSize SortChip::minimumSizeHint() const {
  const QSize whole = sizeHint();
  const int cut = fontMetrics().horizontalAdvance(text()) - fontMetrics().averageCharWidth() * kFewestCharacters;
  return {whole.width() - std::max(cut, 0), whole.height()};
}

void SortChip::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  const int frame = sizeHint().width() - fontMetrics().horizontalAdvance(text());
  option.text = fontMetrics().elidedText(text(), Qt::ElideMiddle, std::max(width() - frame, 0));
  painter.drawControl(QStyle::CE_PushButton, option);
}

}  // namespace tarnwick
