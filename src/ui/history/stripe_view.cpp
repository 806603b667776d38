// SPDX-License-Identifier: MIT
#include "ui/history/stripe_view.h"

#include <algorithm>
#include <utility>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "ui/controls/colour_text.h"
#include "ui/controls/display_text.h"

namespace tarnwick {

StripeView::StripeView(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void StripeView::showStripe(Stripe stripe) {
  const bool isOther = !stripe_ || stripe_->view.cells.size() != stripe.view.cells.size();
  stripe_ = std::move(stripe);
  const std::size_t last = stripe_->view.cells.empty() ? 0 : stripe_->view.cells.size() - 1;
  current_ = isOther ? last : std::min(current_, last);
  cache_ = {};
  setAccessibleName(wholeWords(*stripe_));
  update();
}

QRectF StripeView::area() const { return QRectF(rect()).adjusted(2, 2, -2, -2); }

QPixmap StripeView::painted() const {
  QPixmap picture(size() * devicePixelRatio());
  picture.setDevicePixelRatio(devicePixelRatio());
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  paintStripe(painter, area(), *stripe_, isDark(palette()));
  return picture;
}

void StripeView::paintEvent(QPaintEvent*) {
  if (!stripe_) {
    return;
  }
  if (cache_.size() != size() * devicePixelRatio()) {
    cache_ = painted();
  }
  QPainter painter(this);
  painter.drawPixmap(0, 0, cache_);
  if (hasFocus()) {
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1));
    painter.drawRect(cellArea(*stripe_, area(), current_).adjusted(-1.5, -1.5, 0.5, 0.5));
  }
}

bool StripeView::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && stripe_) {
    const auto* help = static_cast<QHelpEvent*>(event);
    const auto cell = cellAt(*stripe_, help->pos().x() - area().left(), area().width());
    QToolTip::showText(help->globalPos(), cell ? plainToolTip(cellWords(*stripe_, *cell)) : QString(), this);
    return true;
  }
  if (event->type() == QEvent::PaletteChange) {
    cache_ = {};
  }
  return QWidget::event(event);
}

void StripeView::goTo(std::size_t cell) {
  current_ = cell;
  const QString words = cellWords(*stripe_, cell);
  setAccessibleDescription(words);
  QToolTip::showText(mapToGlobal(cellArea(*stripe_, area(), cell).bottomLeft().toPoint()), plainToolTip(words), this);
  update();
}

void StripeView::choose() { Q_EMIT cellChosen(stripe_->view.edges[current_], stripe_->view.edges[current_ + 1]); }

void StripeView::keyPressEvent(QKeyEvent* event) {
  if (!stripe_ || stripe_->view.cells.empty()) {
    QWidget::keyPressEvent(event);
    return;
  }
  const std::size_t last = stripe_->view.cells.size() - 1;
  switch (event->key()) {
    case Qt::Key_Left:
      goTo(current_ == 0 ? 0 : current_ - 1);
      break;
    case Qt::Key_Right:
      goTo(std::min(last, current_ + 1));
      break;
    case Qt::Key_Home:
      goTo(0);
      break;
    case Qt::Key_End:
      goTo(last);
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      choose();
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

void StripeView::mousePressEvent(QMouseEvent* event) {
  if (stripe_ && event->button() == Qt::LeftButton) {
    if (const auto cell = cellAt(*stripe_, event->position().x() - area().left(), area().width())) {
      current_ = *cell;
      setAccessibleDescription(cellWords(*stripe_, *cell));
      update();
      choose();
    }
  }
  QWidget::mousePressEvent(event);
}

void StripeView::focusInEvent(QFocusEvent* event) {
  if (stripe_ && !stripe_->view.cells.empty()) {
    setAccessibleDescription(cellWords(*stripe_, current_));
  }
  QWidget::focusInEvent(event);
}

}  // namespace tarnwick
