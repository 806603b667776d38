// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <QColor>
#include <QWidget>

namespace tarnwick {

/// One of the two thin bars of a lamp.
class LampBar final : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QColor colour READ colour)

 public:
  explicit LampBar(QWidget* parent = nullptr);

  const QColor& colour() const { return colour_; }
  /// Paints the bar at once.
  void setColour(const QColor& colour);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor colour_;
};

/// A lamp of the run's state: two thin bars, one above the other, and the state's name under them, which stands out
/// while the lamp is lit, so that nobody has to tell the lamps apart by their colour.
class Lamp final : public QWidget {
  Q_OBJECT

 public:
  /// The bars get the object names `name`_0 and `name`_1. `state` is the lamp's name for the user.
  Lamp(const QString& name, const QString& state, const QColor& dim, const QColor& bright, QWidget* parent = nullptr);

  /// Lights the lamp, both bars bright, or puts it out, both dim.
  void setLit(bool lit);

  /// Of a lit lamp: one bar is bright and one is dim, and they change places with each call.
  void blink();

  const LampBar& bar(std::size_t index) const { return *bars_.at(index); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect captionRect() const;

  QString state_;
  QColor dim_;
  QColor bright_;
  std::array<LampBar*, 2> bars_;
  bool lit_ = false;
};

}  // namespace tarnwick
