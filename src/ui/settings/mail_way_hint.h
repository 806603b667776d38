// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "program/program.h"

namespace tarnwick {

/// Tells by which way mail leaves, for the page that has the fields of the original one, and leads to the channels.
class MailWayHint final : public QWidget {
  Q_OBJECT

 public:
  /// `program` outlives this.
  explicit MailWayHint(Program& program, QWidget* parent = nullptr);

 Q_SIGNALS:
  void followed();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  Program& program_;
};

}  // namespace tarnwick
