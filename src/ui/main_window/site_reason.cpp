// SPDX-License-Identifier: MIT
#include "ui/main_window/site_reason.h"

#include <QEvent>
#include <QItemSelectionModel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include "ui/controls/colour_text.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

constexpr int kPause = 80;  // milliseconds
constexpr int kVerticalPadding = 4;

}  // namespace

SiteReason::SiteReason(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  setCursor(Qt::PointingHandCursor);
  setInk();
  hide();
  pause_.setSingleShot(true);
  pause_.setInterval(kPause);
}

void SiteReason::setInk() {
  const QColor ink = mutedInk(palette());
  if (palette().color(QPalette::WindowText) != ink) {
    QPalette muted;
    muted.setColor(QPalette::WindowText, ink);
    setPalette(muted);
  }
}

void SiteReason::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    setInk();
  }
}

void SiteReason::follow(SiteGridView& grid) {
  const auto later = [this] { pause_.start(); };
  connect(grid.selectionModel(), &QItemSelectionModel::currentRowChanged, this, later);
  connect(grid.model(), &QAbstractItemModel::modelReset, this, later);
  connect(grid.model(), &QAbstractItemModel::dataChanged, this,
          [this, &grid](const QModelIndex& first, const QModelIndex& last) {
            const int row = grid.currentIndex().row();
            if (first.row() <= row && row <= last.row()) {
              pause_.start();
            }
          });
  connect(&pause_, &QTimer::timeout, this, [this, &grid] {
    const QModelIndex current = grid.currentIndex();
    const QString reason = current.isValid() ? grid.reasonOf(grid.listRow(current)) : QString();
    const QModelIndex id = current.siblingAtColumn(SiteGridModel::idColumn);
    tell(reason.isEmpty() ? reason : tr("Site %1: %2 (F4)").arg(id.data().toString(), reason));
  });
}

void SiteReason::tell(const QString& reason) {
  if (reason != text()) {
    setText(reason);
    explain(*this, reason);
    updateGeometry();
  }
  setVisible(!reason.isEmpty() && !isAway_);
}

void SiteReason::setAway(bool away) {
  isAway_ = away;
  setVisible(!text().isEmpty() && !away);
}

void SiteReason::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
    Q_EMIT clicked();
  }
}

QSize SiteReason::sizeHint() const {
  // The status stays readable beside it.
  const int most = parentWidget() == nullptr ? 400 : parentWidget()->width() * 6 / 10;
  return {std::min(fontMetrics().horizontalAdvance(text()) + 2, most), minimumSizeHint().height()};
}

QSize SiteReason::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * 20, fontMetrics().height() + kVerticalPadding};
}

void SiteReason::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
  style()->drawItemText(&painter, contentsRect(), Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, palette(),
                        isEnabled(), shown, foregroundRole());
}

}  // namespace tarnwick
