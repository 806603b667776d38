// SPDX-License-Identifier: MIT
#include "ui/main_window/notice_bar.h"

#include <algorithm>
#include <QEvent>

#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

constexpr int kGap = 7;
constexpr std::size_t kMostShown = 3;

}  // namespace

NoticeBar::NoticeBar(QWidget* parent) : QWidget(parent) {
  offline_ = add(NoticeButton::Icon::unplugged, "noticeOffline");
  outbox_ = add(NoticeButton::Icon::letter, "noticeOutbox");
  life_ = add(NoticeButton::Icon::pulse, "noticeLife");
  unwatched_ = add(NoticeButton::Icon::eye, "noticeUnwatched");
  paused_ = add(NoticeButton::Icon::bars, "noticePaused");
  undo_ = add(NoticeButton::Icon::back, "noticeUndo");
  step_ = add(NoticeButton::Icon::steps, "noticeStep");
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
  std::vector<NoticeButton*> notices{offline_, outbox_, life_, unwatched_, paused_, undo_, step_};
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
