// SPDX-License-Identifier: MIT
#include "ui/controls/status_line.h"

#include <QPainter>
#include <QStyle>

#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

// Longer texts are cut before they are measured: nobody reads them, and measuring takes its time.
constexpr qsizetype kLongestMeasured = 4096;
constexpr int kVerticalPadding = 4;

}  // namespace

StatusLine::StatusLine(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setTextInteractionFlags(Qt::NoTextInteraction);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void StatusLine::showText(const QString& text) {
  if (what_.isNull()) {
    what_ = accessibleName();
  }
  setText(text);
  setAccessibleName(what_.isEmpty() ? text : QStringLiteral("%1: %2").arg(what_, text));
  updateToolTip();
  repaint();
}

QString StatusLine::shownText() const {
  const QString line = text().left(kLongestMeasured).simplified();
  return fontMetrics().elidedText(line, Qt::ElideMiddle, contentsRect().width());
}

QSize StatusLine::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * 20, fontMetrics().height() + kVerticalPadding};
}

void StatusLine::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFrame(&painter);
  style()->drawItemText(&painter, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, palette(),
                        isEnabled(), shownText(), foregroundRole());
}

void StatusLine::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  updateToolTip();
}

void StatusLine::updateToolTip() {
  const bool shortened = shownText() != text();
  explain(*this, shortened ? text().left(kLongestMeasured) : QString());
}

}  // namespace tarnwick
