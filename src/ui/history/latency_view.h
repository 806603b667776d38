// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <QWidget>

#include "ui/history/stripe.h"

namespace tarnwick {

/// How long the answers of a site took over a period: a line of the medians and one below which 95 of 100 stayed.
class LatencyView final : public QWidget {
  Q_OBJECT

 public:
  explicit LatencyView(QWidget* parent = nullptr);

  void showStripe(Stripe stripe);

  QSize sizeHint() const override { return {300, 60}; }
  QSize minimumSizeHint() const override { return {120, 40}; }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QRectF area() const;

  std::optional<Stripe> stripe_;
  /// What the upper edge stands for.
  std::chrono::milliseconds most_{0};
};

}  // namespace tarnwick
