// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace tarnwick {

/// A line of plain text of any length: what does not fit is left out in its middle and told by the tooltip. A text
/// that looks like HTML is shown as it stands. Its accessible name is what it was given at first, and the text.
class StatusLine final : public QLabel {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget* parent = nullptr);

  /// Shows `text` at once.
  void showText(const QString& text);
  /// The text as it is drawn: on one line, shortened to the width of the widget.
  QString shownText() const;

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override { return minimumSizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void updateToolTip();

  QString what_;
};

}  // namespace tarnwick
