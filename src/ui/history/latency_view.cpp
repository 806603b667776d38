// SPDX-License-Identifier: MIT
#include "ui/history/latency_view.h"

#include <algorithm>
#include <utility>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "history/history_text.h"
#include "ui/controls/colour_text.h"
#include "ui/controls/display_text.h"
#include "ui/controls/tones.h"

namespace tarnwick {
namespace {

constexpr double kMedian = 0.5;
constexpr double kMost = 0.95;
constexpr double kDot = 2;

QString took(std::optional<std::chrono::milliseconds> time) { return QString::fromStdString(tookText(time)); }

}  // namespace

LatencyView::LatencyView(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void LatencyView::showStripe(Stripe stripe) {
  stripe_ = std::move(stripe);
  most_ = std::chrono::milliseconds(1);
  for (const TimeSum& cell : stripe_->view.cells) {
    most_ = std::max(most_, cell.latency.quantile(kMost).value_or(most_));
  }
  const TimeSum whole = stripe_->view.whole();
  setAccessibleName(whole.latency.count() == 0 ? tr("Answer times: nothing is known")
                                               : tr("Answer times: median %1, 95 of 100 within %2, slowest %3")
                                                     .arg(took(whole.latency.quantile(kMedian)),
                                                          took(whole.latency.quantile(kMost)), took(whole.slowest)));
  update();
}

QRectF LatencyView::area() const { return QRectF(rect()).adjusted(2, fontMetrics().height() + 2.0, -2, -3); }

void LatencyView::paintEvent(QPaintEvent*) {
  if (!stripe_) {
    return;
  }
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool dark = isDark(palette());
  const QRectF place = area();
  painter.setPen(mutedInk(palette()));
  painter.drawText(QRectF(2, 0, width() - 4.0, place.top()), Qt::AlignLeft | Qt::AlignTop,
                   fontMetrics().elidedText(tr("Up to %1 (line: median, dashed: 95 of 100)").arg(took(most_)),
                                            Qt::ElideRight, width() - 4));
  painter.drawLine(place.bottomLeft(), place.bottomRight());
  const auto draw = [&](double part, const QPen& pen) {
    painter.setPen(pen);
    painter.setBrush(pen.color());
    std::optional<QPointF> before;
    for (std::size_t i = 0; i < stripe_->view.cells.size(); ++i) {
      const auto time = stripe_->view.cells[i].latency.quantile(part);
      if (!time) {
        before.reset();
        continue;
      }
      const double share = static_cast<double>(time->count()) / static_cast<double>(most_.count());
      const QPointF at(cellArea(*stripe_, place, i).center().x(), place.bottom() - share * place.height());
      if (before) {
        painter.drawLine(*before, at);
      } else {
        painter.drawEllipse(at, kDot, kDot);  // one alone is seen as well
      }
      before = at;
    }
  };
  draw(kMost, QPen(stripeColour(StripeTone::unknown, dark), 1.2, Qt::DashLine));
  draw(kMedian, QPen(stripeColour(StripeTone::up, dark), 1.8));
}

bool LatencyView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !stripe_) {
    return QWidget::event(event);
  }
  const auto* help = static_cast<QHelpEvent*>(event);
  QString words;
  if (const auto cell = cellAt(*stripe_, help->pos().x() - area().left(), area().width())) {
    const TimeSum& sum = stripe_->view.cells[*cell];
    words = tr("%1: median %2, 95 of 100 within %3, slowest %4")
                .arg(momentWords(stripe_->view.edges[*cell]), took(sum.latency.quantile(kMedian)),
                     took(sum.latency.quantile(kMost)),
                     took(sum.latency.count() > 0 ? std::optional(sum.slowest) : std::nullopt));
  }
  QToolTip::showText(help->globalPos(), plainToolTip(words), this);
  return true;
}

}  // namespace tarnwick
