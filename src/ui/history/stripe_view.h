// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <QPixmap>
#include <QWidget>

#include "ui/history/stripe.h"

namespace tarnwick {

/// A stripe in the window. The arrow keys go from cell to cell; what is known of one stands in its tooltip and is what
/// a screen reader speaks.
class StripeView final : public QWidget {
  Q_OBJECT

 public:
  explicit StripeView(QWidget* parent = nullptr);

  void showStripe(Stripe stripe);
  const std::optional<Stripe>& stripe() const { return stripe_; }

  QSize sizeHint() const override { return {300, kStripeHeight + 4}; }
  QSize minimumSizeHint() const override { return {120, kStripeHeight + 4}; }

 Q_SIGNALS:
  /// A cell was clicked, or Enter pressed on it: what was in its time is wanted.
  void cellChosen(tarnwick::Moment from, tarnwick::Moment until);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  QRectF area() const;
  void goTo(std::size_t cell);
  void choose();
  QPixmap painted() const;

  std::optional<Stripe> stripe_;
  std::size_t current_ = 0;
  QPixmap cache_;
};

}  // namespace tarnwick
