// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <QProgressBar>

namespace tarnwick {

/// The bar under the grid: how much of a pass has been sent. It is measured in twips, fifteen to a pixel at
/// 96 dots per inch: a site's step is a whole number of them, so the bar of a pass over many sites ends before its end.
class PassBar final : public QProgressBar {
  Q_OBJECT

 public:
  explicit PassBar(QWidget* parent = nullptr);

  /// The bar's full width now. The widths shown from here on are parts of this one, also when the window is resized.
  std::int64_t takeFullWidth();
  /// Shows a width of 0 to the last full width at once.
  void showWidth(std::int64_t width);
  /// Shows the bar at its full width.
  void fill();

  /// The shown part of the bar, 0 to 1.
  double part() const { return part_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void showPart(double part);

  std::int64_t fullWidth_ = 0;
  double part_ = 0;
};

}  // namespace tarnwick
