// SPDX-License-Identifier: MIT
#include "ui/main_window/lamp.h"

#include <QPainter>
#include <QVBoxLayout>

namespace tarnwick {
namespace {

// The original bars measure 113 by 4, one line apart.
constexpr QSize kBarSize{113, 5};
constexpr QSize kSmallestBar{56, 5};
constexpr int kGap = 2;
constexpr int kCaptionGap = 3;

}  // namespace

LampBar::LampBar(QWidget* parent) : QWidget(parent) { setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed); }

void LampBar::setColour(const QColor& colour) {
  if (colour != colour_) {
    colour_ = colour;
    repaint();
  }
}

QSize LampBar::sizeHint() const { return kBarSize; }
QSize LampBar::minimumSizeHint() const { return kSmallestBar; }

void LampBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour_);
  const qreal radius = height() / 2.0;
  painter.drawRoundedRect(rect(), radius, radius);
}

Lamp::Lamp(const QString& name, const QString& state, const QColor& dim, const QColor& bright, QWidget* parent)
    : QWidget(parent), state_(state), dim_(dim), bright_(bright), bars_{new LampBar(this), new LampBar(this)} {
  setObjectName(name);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, kCaptionGap + fontMetrics().height());
  layout->setSpacing(kGap);
  for (std::size_t index = 0; index < bars_.size(); ++index) {
    bars_[index]->setObjectName(QStringLiteral("%1_%2").arg(name).arg(index));
    bars_[index]->setAccessibleName(tr("Lamp \"%1\", bar %2").arg(state).arg(index + 1));
    layout->addWidget(bars_[index]);
  }
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setLit(false);
}

void Lamp::setLit(bool lit) {
  lit_ = lit;
  for (LampBar* bar : bars_) {
    bar->setColour(lit ? bright_ : dim_);
  }
  const QString text = lit ? tr("%1: lit").arg(state_) : tr("%1: not lit").arg(state_);
  setAccessibleName(text);
  setToolTip(text);
  repaint();
}

void Lamp::blink() {
  if (!lit_) {
    return;
  }
  const bool firstGoesDim = bars_[0]->colour() == bright_;
  bars_[0]->setColour(firstGoesDim ? dim_ : bright_);
  bars_[1]->setColour(firstGoesDim ? bright_ : dim_);
}

QRect Lamp::captionRect() const { return rect().adjusted(0, height() - fontMetrics().height(), 0, 0); }

void Lamp::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QFont captionFont = font();
  captionFont.setBold(lit_);
  painter.setFont(captionFont);
  // The names of the other lamps step back, but stay readable.
  painter.setOpacity(lit_ ? 1.0 : 0.7);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(captionRect(), Qt::AlignCenter | Qt::TextSingleLine, state_);
}

}  // namespace tarnwick
