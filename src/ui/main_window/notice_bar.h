// SPDX-License-Identifier: MIT
#pragma once

#include <vector>
#include <QLabel>

#include "ui/main_window/notice_button.h"

namespace tarnwick {

/// The line of the main window that holds its notices; it takes no room while there are none.
class NoticeBar final : public QWidget {
  Q_OBJECT

 public:
  explicit NoticeBar(QWidget* parent = nullptr);

  /// The notices, in the order in which they stand.
  NoticeButton& offline() { return *offline_; }
  NoticeButton& outbox() { return *outbox_; }
  NoticeButton& life() { return *life_; }
  NoticeButton& unwatched() { return *unwatched_; }
  NoticeButton& paused() { return *paused_; }
  NoticeButton& undo() { return *undo_; }
  NoticeButton& step() { return *step_; }
  /// The first notice that is there; null when all is well.
  NoticeButton* first() const { return shown().empty() ? nullptr : shown().front(); }

  /// Says something in one of the notices, or takes it away. The focus that goes with a notice is given to `heir`.
  void tell(NoticeButton& notice, const QString& sentence, const QString& action, QWidget& heir);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void arrange();
  /// Those that have something to tell.
  std::vector<NoticeButton*> shown() const;
  NoticeButton* add(NoticeButton::Icon icon, const char* name);

  NoticeButton* offline_;
  NoticeButton* outbox_;
  NoticeButton* life_;
  NoticeButton* unwatched_;
  NoticeButton* paused_;
  NoticeButton* undo_;
  NoticeButton* step_;
  QLabel* more_;
};

}  // namespace tarnwick
