// SPDX-License-Identifier: MIT
#include "ui/main_window/notice_button.h"

#include <algorithm>
#include <utility>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include "ui/controls/colour_text.h"
#include "ui/controls/display_text.h"
#include "ui/controls/tones.h"

namespace tarnwick {
namespace {

constexpr int kHeight = 24;
constexpr int kVerticalPadding = 6;
constexpr int kPadding = 8;
constexpr int kIconSize = 14;
constexpr int kGap = 7;
constexpr int kCorner = 3;
constexpr int kCross = 8;
// What always stays of a sentence, in average letters: a number of five digits and what it counts.
constexpr int kLeastLetters = 14;
// Longer texts are cut before they are measured: nobody reads them, and measuring takes its time.
constexpr qsizetype kLongestMeasured = 1024;

void paintLetter(QPainter& painter) {
  painter.drawRect(QRectF(0.7, 2.7, 12.6, 8.6));
  painter.drawPolyline(QPolygonF({{1.0, 3.2}, {7.0, 8.0}, {13.0, 3.2}}));
}

void paintPulse(QPainter& painter) {
  painter.drawPolyline(QPolygonF({{0.7, 7.0}, {3.8, 7.0}, {5.6, 2.5}, {8.2, 11.5}, {10.0, 7.0}, {13.3, 7.0}}));
}

void paintEye(QPainter& painter) {
  QPainterPath lids(QPointF(0.7, 7.0));
  lids.quadTo(7.0, 0.0, 13.3, 7.0);
  lids.quadTo(7.0, 14.0, 0.7, 7.0);
  painter.drawPath(lids);
  painter.setBrush(painter.pen().color());
  painter.drawEllipse(QPointF(7.0, 7.0), 1.8, 1.8);
}

// Two ends that do not meet.
void paintPlug(QPainter& painter) {
  painter.drawLine(QPointF(0.7, 7.0), QPointF(4.5, 7.0));
  painter.drawLine(QPointF(9.5, 7.0), QPointF(13.3, 7.0));
  painter.drawLine(QPointF(4.5, 4.0), QPointF(4.5, 10.0));
  painter.drawLine(QPointF(9.5, 4.0), QPointF(9.5, 10.0));
  painter.drawLine(QPointF(8.2, 2.0), QPointF(5.8, 12.0));
}

void paintBars(QPainter& painter) {
  painter.drawRect(QRectF(3.0, 2.5, 2.0, 9.0));
  painter.drawRect(QRectF(9.0, 2.5, 2.0, 9.0));
}

// An arrow that turns back.
void paintBack(QPainter& painter) {
  QPainterPath way(QPointF(2.0, 5.0));
  way.lineTo(9.0, 5.0);
  way.cubicTo(13.5, 5.0, 13.5, 11.5, 9.0, 11.5);
  way.lineTo(5.0, 11.5);
  painter.drawPath(way);
  painter.drawPolyline(QPolygonF({{5.0, 2.0}, {2.0, 5.0}, {5.0, 8.0}}));
}

void paintSteps(QPainter& painter) {
  painter.drawPolyline(QPolygonF({{1.0, 12.0}, {5.0, 12.0}, {5.0, 8.0}, {9.0, 8.0}, {9.0, 4.0}, {13.0, 4.0}}));
}

NoticeTone toneOf(NoticeButton::Icon icon) {
  switch (icon) {
    case NoticeButton::Icon::letter:
    case NoticeButton::Icon::pulse:
    case NoticeButton::Icon::eye:
      return NoticeTone::amber;
    default:
      return NoticeTone::blue;
  }
}

void paintIcon(QPainter& painter, NoticeButton::Icon icon, const QPoint& place, const QColor& ink) {
  painter.save();
  painter.translate(place);
  painter.setPen(QPen(ink, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  switch (icon) {
    case NoticeButton::Icon::unplugged:
      paintPlug(painter);
      break;
    case NoticeButton::Icon::letter:
      paintLetter(painter);
      break;
    case NoticeButton::Icon::pulse:
      paintPulse(painter);
      break;
    case NoticeButton::Icon::eye:
      paintEye(painter);
      break;
    case NoticeButton::Icon::bars:
      paintBars(painter);
      break;
    case NoticeButton::Icon::back:
      paintBack(painter);
      break;
    case NoticeButton::Icon::steps:
      paintSteps(painter);
      break;
  }
  painter.restore();
}

}  // namespace

NoticeButton::NoticeButton(Icon icon, QWidget* parent) : QPushButton(parent), icon_(icon) {
  setFlat(true);
  setAutoDefault(true);  // so that Enter does what Space does
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::TabFocus);
  hide();
}

void NoticeButton::tell(const QString& sentence, const QString& action) {
  const QString line = sentence.left(kLongestMeasured).simplified();
  if (line != sentence_ || action != action_) {
    sentence_ = line;
    action_ = action;
    // The caption of a button takes an ampersand for the mark of a key.
    setText(QString(line).replace(QLatin1Char('&'), QLatin1String("&&")));
    setAccessibleName(QStringLiteral("%1, %2").arg(line, action));
    explainWhatIsCut();
    updateGeometry();
    update();
  }
  setVisible(!line.isEmpty());
}

QFont NoticeButton::actionFont() const {
  QFont underlined = font();
  underlined.setUnderline(true);
  return underlined;
}

int NoticeButton::actionWidth() const { return QFontMetrics(actionFont()).horizontalAdvance(action_); }

QRect NoticeButton::sentenceRect() const {
  return rect().adjusted(kPadding + kIconSize + kGap, 0, -(kPadding + actionWidth() + 2 * kGap + crossWidth()), 0);
}

QSize NoticeButton::sizeHint() const {
  return {minimumSizeHint().width() - kLeastLetters * fontMetrics().averageCharWidth() +
              fontMetrics().horizontalAdvance(sentence_) + 1,
          minimumSizeHint().height()};
}

QSize NoticeButton::minimumSizeHint() const {
  return {2 * kPadding + kIconSize + 3 * kGap + actionWidth() + crossWidth() +
              kLeastLetters * fontMetrics().averageCharWidth(),
          std::max(kHeight, fontMetrics().height() + kVerticalPadding)};
}

void NoticeButton::resizeEvent(QResizeEvent* event) {
  QPushButton::resizeEvent(event);
  explainWhatIsCut();
}

void NoticeButton::explainWhatIsCut() {
  const bool isCut = fontMetrics().horizontalAdvance(sentence_) > sentenceRect().width();
  explain(*this, isCut ? sentence_ : QString());
}

void NoticeButton::paintEvent(QPaintEvent*) {
  const NoticeColours colours = noticeColours(toneOf(icon_), isDark(palette()));
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(isDown() ? colours.fill.darker(110) : colours.fill);
  painter.drawRoundedRect(rect(), kCorner, kCorner);
  paintIcon(painter, icon_, QPoint(kPadding, (height() - kIconSize) / 2), colours.ink);
  painter.setPen(colours.ink);
  painter.drawText(sentenceRect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   fontMetrics().elidedText(sentence_, Qt::ElideRight, sentenceRect().width()));
  painter.setFont(actionFont());
  painter.drawText(rect().adjusted(0, 0, -kPadding - crossWidth(), 0),
                   Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, action_);
  if (closed_) {
    const QPointF middle(width() - kPadding - kCross / 2.0, height() / 2.0);
    painter.setPen(QPen(colours.ink, 1.4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(middle + QPointF(-kCross / 2.0, -kCross / 2.0), middle + QPointF(kCross / 2.0, kCross / 2.0));
    painter.drawLine(middle + QPointF(-kCross / 2.0, kCross / 2.0), middle + QPointF(kCross / 2.0, -kCross / 2.0));
  }
  if (hasFocus()) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colours.ink, 2));
    painter.drawRoundedRect(rect().adjusted(1, 1, -1, -1), kCorner, kCorner);
  }
}

void NoticeButton::makeClosable(std::function<void()> closed) {
  closed_ = std::move(closed);
  setAccessibleDescription(tr("Esc puts it away"));
}

int NoticeButton::crossWidth() const { return closed_ ? kCross + 2 * kGap : 0; }

void NoticeButton::mouseReleaseEvent(QMouseEvent* event) {
  const bool onCross =
      closed_ && isDown() && rect().contains(event->pos()) && event->pos().x() >= width() - kPadding - kCross - kGap;
  if (onCross) {
    setDown(false);
    closed_();
  } else {
    QPushButton::mouseReleaseEvent(event);
  }
}

void NoticeButton::keyPressEvent(QKeyEvent* event) {
  if (closed_ && event->key() == Qt::Key_Escape) {
    closed_();
  } else {
    QPushButton::keyPressEvent(event);
  }
}

}  // namespace tarnwick
