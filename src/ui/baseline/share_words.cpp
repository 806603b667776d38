// SPDX-License-Identifier: MIT
#include "ui/baseline/share_words.h"

#include <cmath>
#include <QApplication>
#include <QEvent>
#include <QLocale>

#include "holes/hole.h"
#include "ui/controls/colour_text.h"
#include "ui/controls/tones.h"

namespace tarnwick {

QString shareWords(double share) {
  // What is nearly all is not all.
  constexpr double kRounding = 1e-9;
  const bool isWhole = share >= 1 || share < kLeastWatched;
  const double steps = isWhole ? 100 : 1000;
  const double percent = std::floor(share * steps + kRounding) * 100 / steps;
  return AmberLine::tr("%1 %").arg(QLocale().toString(percent, 'f', isWhole ? 0 : 1));
}

AmberLine::AmberLine(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setMargin(4);
  setAutoFillBackground(true);
  paintAmber();
}

void AmberLine::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::ApplicationPaletteChange) {
    paintAmber();
  }
}

void AmberLine::paintAmber() {
  const NoticeColours colours = noticeColours(NoticeTone::amber, isDark(QApplication::palette()));
  QPalette amber = palette();
  amber.setColor(QPalette::Window, colours.fill);
  amber.setColor(QPalette::WindowText, colours.ink);
  setPalette(amber);
}

}  // namespace tarnwick
