// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "program/program.h"

namespace tarnwick {

/// What is told of a site: how it stands, what was told, what is told next, and by which ways.
class AlarmPage final : public QWidget {
  Q_OBJECT

 public:
  /// `program` outlives this.
  explicit AlarmPage(Program& program, QWidget* parent = nullptr);

  /// Raises DataAccessError.
  void showSite(std::int16_t idSite);
  void clear();

 Q_SIGNALS:
  /// Somebody wants it otherwise.
  void changeWanted();

 private:
  enum Line { now, told, next, through, lines };

  void tell(Line line, const QString& words);

  Program& program_;
  std::array<QLabel*, lines> lines_{};
  QPushButton* change_;
};

}  // namespace tarnwick
