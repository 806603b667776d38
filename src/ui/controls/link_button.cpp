// SPDX-License-Identifier: MIT
#include "ui/controls/link_button.h"

#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

#include "ui/controls/colour_text.h"

namespace tarnwick {
namespace {

constexpr int kMargin = 2;
constexpr double kReadable = 4.5;

// Some desktops darken the window and leave links as dark as they were.
QColor inkOf(const QPalette& palette, QPalette::ColorRole role) {
  const QColor link = palette.color(role);
  const QColor window = palette.color(QPalette::Window);
  return contrastRatio(link, window) >= kReadable ? link : isDark(palette) ? QColor(0x7DB4F0) : QColor(0x0B57A4);
}

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
  painter.setPen(inkOf(palette(), isDown() ? QPalette::LinkVisited : QPalette::Link));
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
