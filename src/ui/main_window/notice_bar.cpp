// SPDX-License-Identifier: MIT
#include "ui/main_window/notice_bar.h"

#include <algorithm>
#include <QEvent>
#include <QPainter>
#include <QPainterPath>

#include "ui/controls/colour_text.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

constexpr int kHeight = 24;
constexpr int kVerticalPadding = 6;
constexpr int kPadding = 8;
constexpr int kIconSize = 14;
constexpr int kGap = 7;
constexpr int kCorner = 3;
// What always stays of a sentence, in average letters: a number of five digits and what it counts.
constexpr int kLeastLetters = 14;
// Longer texts are cut before they are measured: nobody reads them, and measuring takes its time.
constexpr qsizetype kLongestMeasured = 1024;
constexpr std::size_t kMostShown = 3;

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

NoticeTone toneOf(NoticeButton::Icon icon) {
  return icon == NoticeButton::Icon::unplugged || icon == NoticeButton::Icon::bars ? NoticeTone::blue
                                                                                   : NoticeTone::amber;
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
  return rect().adjusted(kPadding + kIconSize + kGap, 0, -(kPadding + actionWidth() + 2 * kGap), 0);
}

QSize NoticeButton::sizeHint() const {
  return {minimumSizeHint().width() - kLeastLetters * fontMetrics().averageCharWidth() +
              fontMetrics().horizontalAdvance(sentence_) + 1,
          minimumSizeHint().height()};
}

QSize NoticeButton::minimumSizeHint() const {
  return {2 * kPadding + kIconSize + 3 * kGap + actionWidth() + kLeastLetters * fontMetrics().averageCharWidth(),
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
  painter.drawText(rect().adjusted(0, 0, -kPadding, 0), Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine,
                   action_);
  if (hasFocus()) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colours.ink, 2));
    painter.drawRoundedRect(rect().adjusted(1, 1, -1, -1), kCorner, kCorner);
  }
}

NoticeBar::NoticeBar(QWidget* parent) : QWidget(parent) {
  offline_ = add(NoticeButton::Icon::unplugged, "noticeOffline");
  outbox_ = add(NoticeButton::Icon::letter, "noticeOutbox");
  life_ = add(NoticeButton::Icon::pulse, "noticeLife");
  unwatched_ = add(NoticeButton::Icon::eye, "noticeUnwatched");
  paused_ = add(NoticeButton::Icon::bars, "noticePaused");
  more_ = new QLabel(this);
  more_->setObjectName(QStringLiteral("noticeMore"));
  more_->hide();
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  hide();
}

NoticeButton* NoticeBar::add(NoticeButton::Icon icon, const char* name) {
  auto* notice = new NoticeButton(icon, this);
  notice->setObjectName(QString::fromLatin1(name));
  return notice;
}

std::vector<NoticeButton*> NoticeBar::shown() const {
  std::vector<NoticeButton*> notices{offline_, outbox_, life_, unwatched_, paused_};
  std::erase_if(notices, [](const NoticeButton* notice) { return notice->sentence().isEmpty(); });
  return notices;
}

QSize NoticeBar::sizeHint() const { return outbox_->minimumSizeHint(); }

bool NoticeBar::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) {
    arrange();
  }
  return QWidget::event(event);
}

void NoticeBar::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  arrange();
}

// Where there is no room for all, the longest give way, and those that need less than their part keep what they need.
void NoticeBar::arrange() {
  std::vector<NoticeButton*> notices = shown();
  QStringList others;
  while (notices.size() > kMostShown) {
    others.prepend(notices.back()->sentence());
    notices.back()->hide();
    notices.pop_back();
  }
  for (NoticeButton* notice : notices) {
    notice->show();
  }
  more_->setText(QStringLiteral("+%1").arg(others.size()));
  explain(*more_, others.join(QLatin1Char('\n')));
  more_->setVisible(!others.isEmpty());
  const int roomForMore = others.isEmpty() ? 0 : more_->sizeHint().width() + kGap;
  std::vector<NoticeButton*> byLength = notices;
  std::ranges::sort(byLength, {}, [](const NoticeButton* notice) { return notice->sizeHint().width(); });
  auto left = static_cast<int>(byLength.size());
  int room = width() - roomForMore - (left - 1) * kGap;
  for (NoticeButton* notice : byLength) {
    const int part = std::min(notice->sizeHint().width(), room / left--);
    notice->resize(part, height());
    room -= part;
  }
  int x = 0;
  for (NoticeButton* notice : notices) {
    notice->move(x, 0);
    x += notice->width() + kGap;
  }
  more_->setGeometry(x, 0, roomForMore, height());
}

void NoticeBar::tell(NoticeButton& notice, const QString& sentence, const QString& action, QWidget& heir) {
  if (sentence.isEmpty() && notice.hasFocus()) {
    heir.setFocus();
  }
  notice.tell(sentence, action);
  setVisible(first() != nullptr);
  arrange();
}

}  // namespace tarnwick
