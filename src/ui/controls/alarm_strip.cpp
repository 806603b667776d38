// SPDX-License-Identifier: MIT
#include "ui/controls/alarm_strip.h"

#include <algorithm>
#include <QPainter>
#include <QPainterPath>

#include "ui/controls/colour_text.h"

namespace tarnwick {
namespace {

constexpr int kPadding = 6;
constexpr double kRadius = 8;
constexpr std::size_t kMostSpans = 7;

struct Inks {
  QColor up;
  QColor down;
  QColor muted;
  QColor bell;
};

Inks inksOf(const QPalette& palette) {
  return isDark(palette) ? Inks{QColor(0x2F8A5F), QColor(0xD14545), QColor(0xA9AEB4), QColor(0xF6C343)}
                         : Inks{QColor(0x2E9C62), QColor(0xC03030), QColor(0x555555), QColor(0x9A5B00)};
}

QString clockText(LocalTime time) {
  const QString stamp = QString::fromStdString(dateTimeText(time));
  return stamp.endsWith(QLatin1String(":00")) ? stamp.mid(11, 5) : stamp.mid(11);
}

void paintBell(QPainter& painter, const QPointF& at, const QColor& ink) {
  painter.save();
  painter.translate(at);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink);
  QPainterPath bell(QPointF(0.5, 10));
  bell.quadTo(2.5, 8, 2.5, 5);
  bell.quadTo(2.5, 1, 6, 1);
  bell.quadTo(9.5, 1, 9.5, 5);
  bell.quadTo(9.5, 8, 11.5, 10);
  bell.closeSubpath();
  painter.drawPath(bell);
  painter.drawEllipse(QPointF(6, 11), 1.6, 1.4);
  painter.restore();
}

void paintMark(QPainter& painter, const QPointF& centre, bool passed, const QColor& fill) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(fill);
  painter.drawEllipse(centre, kRadius, kRadius);
  painter.setPen(QPen(Qt::white, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  if (passed) {
    painter.drawPolyline(
        QPolygonF({centre + QPointF(-3.5, 0.5), centre + QPointF(-1, 3), centre + QPointF(3.5, -2.5)}));
  } else {
    painter.drawLine(centre + QPointF(-2.7, -2.7), centre + QPointF(2.7, 2.7));
    painter.drawLine(centre + QPointF(-2.7, 2.7), centre + QPointF(2.7, -2.7));
  }
}

}  // namespace

AlarmStrip::AlarmStrip(QWidget* parent) : QWidget(parent) { setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed); }

std::vector<AlarmStrip::Span> AlarmStrip::spansOf(const AlarmExample& example) {
  std::vector<Span> spans;
  const auto fold = [&](bool whateverIsTold) {
    spans.clear();
    for (const ExampleCheck& check : example.checks) {
      const Span span{check.at, check.at, check.passed, check.isRepeat, 1, check.told};
      // The first failure stands for itself.
      const bool joins = spans.size() > 2 && !spans.back().passed && !span.passed && !spans.back().isRepeat &&
                         !span.isRepeat &&
                         (whateverIsTold || (span.told > 0) == (spans.back().told == spans.back().checks));
      if (joins && (whateverIsTold || span.told > 0 || spans.back().told == 0)) {
        spans.back().until = span.until;
        ++spans.back().checks;
        spans.back().told += span.told;
      } else {
        spans.push_back(span);
      }
    }
  };
  fold(false);
  if (spans.size() > kMostSpans) {
    fold(true);
  }
  while (spans.size() > kMostSpans) {
    // More repeats than there is room for: the first ones are one.
    spans[2].until = spans[3].until;
    spans[2].checks += spans[3].checks;
    spans[2].told += spans[3].told;
    spans.erase(spans.begin() + 3);
  }
  return spans;
}

void AlarmStrip::tell(const AlarmExample& example, int originally) {
  spans_ = spansOf(example);
  const auto outage = AlarmExample::kOutage.count();
  caption_ =
      (example.told == 1 ? tr("What would happen: 1 alert for an outage of %1 minutes (at every failed check: %2)")
                         : tr("What would happen: %3 alerts for an outage of %1 minutes (at every failed check: "
                              "%2)")
                               .arg(QStringLiteral("%1"), QStringLiteral("%2"), QString::number(example.told)))
          .arg(QString::number(outage), QString::number(originally));
  setAccessibleName(caption_);
  update();
}

QString AlarmStrip::timeOf(const Span& span) const {
  return span.checks == 1 ? clockText(span.from)
                          : QStringLiteral("%1 – %2").arg(clockText(span.from), clockText(span.until));
}

QString AlarmStrip::wordsOf(std::size_t index) const {
  const Span& span = spans_[index];
  if (span.passed) {
    return index == 0 ? tr("up") : tr("up again");
  }
  if (span.checks > 1) {
    return span.told == 0 ? tr("%1 checks, nothing said").arg(span.checks)
                          : tr("%1 checks, %2 alerts").arg(span.checks).arg(span.told);
  }
  if (index == 1) {
    return tr("fails");
  }
  return span.isRepeat ? (span.told > 0 ? tr("down for real") : tr("looked again")) : tr("still down");
}

QSize AlarmStrip::minimumSizeHint() const {
  return {360, static_cast<int>(5.5 * lineHeight() + 2 * kRadius + 3 * kPadding)};
}

QSize AlarmStrip::sizeHint() const { return {700, minimumSizeHint().height()}; }

void AlarmStrip::paintSpan(QPainter& painter, std::size_t index, const QPointF& centre, double width) const {
  const Inks inks = inksOf(palette());
  const Span& span = spans_[index];
  paintMark(painter, centre, span.passed, span.passed ? inks.up : inks.down);
  const QRectF below(centre.x() - width / 2 + 1, centre.y() + kRadius + kPadding / 2.0, width - 2, lineHeight());
  painter.setPen(inks.muted);
  painter.drawText(below, Qt::AlignHCenter | Qt::AlignTop | Qt::TextDontClip, timeOf(span));
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(below.translated(0, lineHeight()).adjusted(0, 0, 0, lineHeight()),
                   Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, wordsOf(index));
  if (span.told == 0) {
    return;
  }
  const QString told = span.checks > 1 ? tr("told %1 times").arg(span.told) : tr("you are told");
  QFont bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  constexpr double kBell = 15;
  const double length = QFontMetricsF(bold).horizontalAdvance(told);
  const double y = centre.y() - kRadius - kPadding - lineHeight();
  const double x = centre.x() - (length + kBell) / 2;
  paintBell(painter, QPointF(x, y + (lineHeight() - 12) / 2.0), inks.bell);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(QPointF(x + kBell, y + QFontMetricsF(bold).ascent()), told);
  painter.setPen(QPen(inks.bell, 1));
  painter.drawLine(QPointF(centre.x(), y + lineHeight() + 1), QPointF(centre.x(), centre.y() - kRadius));
  painter.setFont(font());
}

void AlarmStrip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect(), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, caption_);
  if (spans_.empty()) {
    return;
  }
  const Inks inks = inksOf(palette());
  const double y = 2.3 * lineHeight() + kPadding + kRadius;
  const double width = static_cast<double>(rect().width()) / static_cast<double>(spans_.size());
  const auto x = [&](std::size_t index) { return width * (static_cast<double>(index) + 0.5); };
  for (std::size_t index = 0; index < spans_.size(); ++index) {
    painter.setPen(QPen(spans_[index].passed ? inks.up : inks.down, 3));
    painter.drawLine(QPointF(index == 0 ? 0 : x(index), y),
                     QPointF(index + 1 == spans_.size() ? this->width() : x(index + 1), y));
  }
  for (std::size_t index = 0; index < spans_.size(); ++index) {
    paintSpan(painter, index, QPointF(x(index), y), width);
  }
}

}  // namespace tarnwick
