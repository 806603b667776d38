// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QTimer>

#include "ui/main_window/site_grid_view.h"

namespace tarnwick {

/// The right end of the status row: why the site of the current row is down, in muted ink, shortened at its end. It
/// never takes more than its part of the row, and none where there is nothing to tell.
class SiteReason final : public QLabel {
  Q_OBJECT

 public:
  explicit SiteReason(QWidget* parent = nullptr);

  /// Follows the current row of `grid`. Who holds an arrow key down is not held up: the reason comes after a pause.
  void follow(SiteGridView& grid);

  /// While the reason is told elsewhere it is not told here.
  void setAway(bool away);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  void clicked();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void tell(const QString& reason);
  void setInk();

  QTimer pause_;
  bool isAway_ = false;
};

}  // namespace tarnwick
