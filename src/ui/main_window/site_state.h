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
  changed,      ///< the page differs from the baseline
  noAnswer,     ///< no page came
  inactive,     ///< left out of runs
  never,        ///< never judged
  notAPage,     ///< up only because the text of a fetch that fails is its baseline
  unconfirmed,  ///< has failed, and not often enough yet to be told
  known,        ///< down by a wrong page that somebody has acknowledged
  unsteady,     ///< changes between up and down all the time
  certificate,  ///< up, but its certificate ends soon
  slow,         ///< up, but its page took long
  paused,       ///< nothing is told of it for a time
  offline,      ///< not known, since this machine is offline
};

/// Whether there is something to be told of why it is so.
constexpr bool needsReason(SiteState state) {
  switch (state) {
    case SiteState::changed:
    case SiteState::noAnswer:
    case SiteState::notAPage:
    case SiteState::unconfirmed:
    case SiteState::known:
    case SiteState::unsteady:
    case SiteState::paused:
      return true;
    default:
      return false;
  }
}

/// The state in a word or two; that of a site which is being tested says so.
/// Of an unconfirmed one it tells how many failures there are, and how many it takes; of one whose certificate ends
/// soon how many days are left.
QString wordOf(SiteState state, bool testing = false, int number = 0, int confirm = 0);

/// Draws the state's icon, a shape of its own, in `ink` into `box`, which is square. Nothing is scaled: lines are drawn
/// at the size that they have on the screen.
void paintIcon(QPainter& painter, const QRectF& box, SiteState state, const QColor& ink);

}  // namespace tarnwick
