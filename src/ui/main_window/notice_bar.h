// SPDX-License-Identifier: MIT
#pragma once

#include <vector>
#include <QLabel>
#include <QPushButton>

#include "ui/controls/tones.h"

namespace tarnwick {

/// One notice: an icon, a sentence and its one action, underlined, which a click anywhere on it does. A sentence that
/// does not fit is shortened at its end and told by the tooltip; its beginning, where the number stands, stays.
class NoticeButton final : public QPushButton {
  Q_OBJECT

 public:
  enum class Icon { unplugged, letter, pulse, eye, bars };

  explicit NoticeButton(Icon icon, QWidget* parent = nullptr);

  /// What is to be said, plain and on one line, and what a click does about it; nothing to be said hides the notice.
  void tell(const QString& sentence, const QString& action);
  QString sentence() const { return sentence_; }
  QString action() const { return action_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QFont actionFont() const;
  int actionWidth() const;
  QRect sentenceRect() const;
  void explainWhatIsCut();

  Icon icon_;
  QString sentence_;
  QString action_;
};

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
  QLabel* more_;
};

}  // namespace tarnwick
