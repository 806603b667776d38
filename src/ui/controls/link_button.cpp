// SPDX-License-Identifier: MIT
#include "ui/controls/link_button.h"

#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace tarnwick {
namespace {

constexpr int kMargin = 2;

}  // namespace

LinkButton::LinkButton(const QString& text, QWidget* parent) : QAbstractButton(parent) {
  setText(text);
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize LinkButton::sizeHint() const {
  return fontMetrics().size(Qt::TextSingleLine, text()).grownBy({kMargin, kMargin, kMargin, kMargin});
}

void LinkButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QFont underlined = font();
  underlined.setUnderline(true);
  painter.setFont(underlined);
  painter.setPen(palette().color(isDown() ? QPalette::LinkVisited : QPalette::Link));
  painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
  if (hasFocus()) {
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.backgroundColor = palette().window().color();
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
  }
}

void LinkButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    event->accept();
    if (!event->isAutoRepeat()) {
      click();
    }
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

}  // namespace tarnwick
