// SPDX-License-Identifier: MIT
#pragma once

#include <vector>
#include <QString>
#include <QWidget>

#include "engine/alarm_example.h"

namespace tarnwick {

/// What would happen in an outage, as a line of checks with what is told, and a caption that says it in words.
class AlarmStrip final : public QWidget {
  Q_OBJECT

 public:
  explicit AlarmStrip(QWidget* parent = nullptr);

  /// `originally`: how many alerts it would be at every failed check.
  void tell(const AlarmExample& example, int originally);
  const QString& caption() const { return caption_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  // Checks that come to the same.
  struct Span {
    LocalTime from;
    LocalTime until;
    bool passed;
    bool isRepeat;
    int checks;
    int told;
  };
  static std::vector<Span> spansOf(const AlarmExample& example);
  QString timeOf(const Span& span) const;
  QString wordsOf(std::size_t index) const;
  int lineHeight() const { return fontMetrics().height(); }
  void paintSpan(QPainter& painter, std::size_t index, const QPointF& centre, double width) const;

  std::vector<Span> spans_;
  QString caption_;
};

}  // namespace tarnwick
