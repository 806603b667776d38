// SPDX-License-Identifier: MIT
#include "ui/controls/tones.h"

namespace tarnwick {

NoticeColours noticeColours(NoticeTone tone, bool dark) {
  if (tone == NoticeTone::blue) {
    return dark ? NoticeColours{QColor(0x20, 0x32, 0x4F), QColor(0xD5, 0xE4, 0xFA)}
                : NoticeColours{QColor(0xDC, 0xE9, 0xFB), QColor(0x12, 0x30, 0x5C)};
  }
  return dark ? NoticeColours{QColor(0x4A, 0x3A, 0x10), QColor(0xFF, 0xE9, 0xA8)}
              : NoticeColours{QColor(0xFF, 0xF0, 0xC2), QColor(0x3D, 0x2C, 0x00)};
}

HoleColours holeColours(bool dark) {
  return dark ? HoleColours{QColor(0x24, 0x36, 0x5A), QColor(0xDC, 0xE6, 0xFA), QColor(0x5B, 0x7F, 0xC7)}
              : HoleColours{QColor(0xDC, 0xE6, 0xFA), QColor(0x1B, 0x2E, 0x57), QColor(0x5B, 0x7F, 0xC7)};
}

DifferenceColours differenceColours(bool added, bool dark) {
  const QColor ink = dark ? QColor(0xE4, 0xE6, 0xE8) : QColor(Qt::black);
  const QColor wordInk = dark ? QColor(Qt::white) : QColor(Qt::black);
  if (added) {
    return dark ? DifferenceColours{QColor(0x17, 0x40, 0x2B), ink, QColor(0x23, 0x69, 0x3F), wordInk}
                : DifferenceColours{QColor(0xCD, 0xEF, 0xD9), ink, QColor(0x86, 0xD7, 0xA5), wordInk};
  }
  return dark ? DifferenceColours{QColor(0x4A, 0x1E, 0x1E), ink, QColor(0x8E, 0x2F, 0x2A), wordInk}
              : DifferenceColours{QColor(0xFB, 0xD9, 0xD6), ink, QColor(0xF1, 0x9A, 0x93), wordInk};
}

QColor stripeColour(StripeTone tone, bool dark) {
  switch (tone) {
    case StripeTone::up:
      return dark ? QColor(0x2F, 0x8A, 0x5F) : QColor(0x2E, 0x9C, 0x62);
    case StripeTone::slow:
      return dark ? QColor(0xC9, 0x9A, 0x1F) : QColor(0xA8, 0x64, 0x00);
    case StripeTone::down:
      return dark ? QColor(0xD1, 0x45, 0x45) : QColor(0xC0, 0x30, 0x30);
    case StripeTone::unknown:
      break;
  }
  return dark ? QColor(0x6E, 0x89, 0xB8) : QColor(0x5C, 0x78, 0xAA);
}

}  // namespace tarnwick
