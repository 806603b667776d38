// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <vector>
#include <QPainter>
#include <QString>

#include "store/history_view.h"

namespace tarnwick {

/// What is shown of a site and one of the `periods()`: cell by cell, with the outages that were on in it.
struct Stripe {
  PeriodView view;
  /// The latest first; others than its own do no harm.
  std::vector<Outage> outages{};
  /// Answers that take longer are slow; nothing where none are.
  std::optional<std::chrono::milliseconds> slow{};
  /// The present, up to which an outage that is on has lasted.
  Moment now{};
};

/// The height that a stripe is painted in, and that its text needs.
inline constexpr int kStripeHeight = 18;

/// Paints its cells into `area`, each as wide as any, from the lower edge up. How high one is tells its state as well
/// as its colour: up 10, slow 14, down 18, of which the red part is the time that it was down, unknown 3.
void paintStripe(QPainter& painter, const QRectF& area, const Stripe& stripe, bool dark);

/// The part of `area` that a cell has.
QRectF cellArea(const Stripe& stripe, const QRectF& area, std::size_t cell);
/// The cell at a place, from the left edge of an area that is so wide; nothing beside it.
std::optional<std::size_t> cellAt(const Stripe& stripe, double x, double width);

/// "24 hours", "7 days".
QString periodWords(const Period& period);
/// "24 hours: 99.31 % up, 2 outages".
QString wholeWords(const Stripe& stripe);
/// What is known of a cell, and the outages in it, a line each.
QString cellWords(const Stripe& stripe, std::size_t cell);
/// "2026-11-21 04:24:41".
QString momentWords(Moment moment);

}  // namespace tarnwick
