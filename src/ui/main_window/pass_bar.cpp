// SPDX-License-Identifier: MIT
#include "ui/main_window/pass_bar.h"

#include <algorithm>
#include <cmath>
#include <QPainter>

#include "ui/controls/colour_text.h"

namespace tarnwick {
namespace {

constexpr std::int64_t kTwipsPerPixel = 15;
constexpr int kThickness = 9;
constexpr int kSmallestWidth = 100;

}  // namespace

PassBar::PassBar(QWidget* parent) : QProgressBar(parent) {
  setRange(0, 1000);
  setTextVisible(false);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

std::int64_t PassBar::takeFullWidth() {
  fullWidth_ = std::max(width(), 1) * kTwipsPerPixel;
  return fullWidth_;
}

void PassBar::showWidth(std::int64_t width) {
  showPart(fullWidth_ > 0 ? static_cast<double>(width) / static_cast<double>(fullWidth_) : 0.0);
}

void PassBar::fill() { showPart(1.0); }

void PassBar::showPart(double part) {
  part_ = std::clamp(part, 0.0, 1.0);
  setValue(static_cast<int>(std::lround(part_ * maximum())));
  repaint();
}

QSize PassBar::sizeHint() const { return minimumSizeHint(); }
QSize PassBar::minimumSizeHint() const { return {kSmallestWidth, kThickness}; }

void PassBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const qreal radius = height() / 2.0;
  painter.setBrush(palette().color(QPalette::Mid));
  painter.drawRoundedRect(QRectF(rect()), radius, radius);
  painter.setBrush(colourFromText(colours::kProgress));
  painter.setClipRect(QRectF(0, 0, width() * part_, height()));
  painter.drawRoundedRect(QRectF(rect()), radius, radius);
}

}  // namespace tarnwick
