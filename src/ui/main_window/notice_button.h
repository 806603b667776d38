// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <QPushButton>

namespace tarnwick {

/// One notice: an icon, a sentence and its one action, underlined, which a click anywhere on it does. A sentence that
/// does not fit is shortened at its end and told by the tooltip; its beginning, where the number stands, stays.
class NoticeButton final : public QPushButton {
  Q_OBJECT

 public:
  enum class Icon { unplugged, letter, pulse, eye, bars, back, steps };

  explicit NoticeButton(Icon icon, QWidget* parent = nullptr);

  /// Lets the user put the notice away, by a cross at its end or by Esc; `closed` follows.
  void makeClosable(std::function<void()> closed);

  /// What is to be said, plain and on one line, and what a click does about it; nothing to be said hides the notice.
  void tell(const QString& sentence, const QString& action);
  QString sentence() const { return sentence_; }
  QString action() const { return action_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QFont actionFont() const;
  /// The room that the cross takes, at the right end.
  int crossWidth() const;
  int actionWidth() const;
  QRect sentenceRect() const;
  void explainWhatIsCut();

  Icon icon_;
  QString sentence_;
  QString action_;
  std::function<void()> closed_;
};

}  // namespace tarnwick
