// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace tarnwick {

/// The colours of a notice, on a light desktop or a dark one: of one that asks to be looked at, or that tells how
/// things are meant to be just now.
struct NoticeColours {
  QColor fill;
  QColor ink;
};
enum class NoticeTone { amber, blue };
NoticeColours noticeColours(NoticeTone tone, bool dark);

/// The colours of a part of a page that may vary.
struct HoleColours {
  QColor fill;
  QColor ink;
  QColor edge;
};
HoleColours holeColours(bool dark);

/// The colours of what was taken away from a page, or has come: of its rows, and of the words in them that differ.
struct DifferenceColours {
  QColor fill;
  QColor ink;
  QColor wordFill;
  QColor wordInk;
};
DifferenceColours differenceColours(bool added, bool dark);

/// The colours of a stripe of the history, and of its lines.
enum class StripeTone { up, slow, down, unknown };
QColor stripeColour(StripeTone tone, bool dark);

}  // namespace tarnwick
