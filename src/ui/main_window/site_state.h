// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QString>

namespace tarnwick {

/// How a site stands by its last check.
enum class SiteState {
  up,
  changed,   ///< the page differs from the baseline
  noAnswer,  ///< no page came
  inactive,  ///< left out of runs
  never,     ///< never judged
  notAPage,  ///< up only because the text of a fetch that fails is its baseline
};

/// Whether there is something to be told of why it is so.
constexpr bool needsReason(SiteState state) {
  return state == SiteState::changed || state == SiteState::noAnswer || state == SiteState::notAPage;
}

/// The state in a word or two; that of a site which is being tested says so.
QString wordOf(SiteState state, bool testing = false);

/// Draws the state's icon, a shape of its own, in `ink` into `box`, which is square. Nothing is scaled: lines are drawn
/// at the size that they have on the screen.
void paintIcon(QPainter& painter, const QRectF& box, SiteState state, const QColor& ink);

}  // namespace tarnwick
