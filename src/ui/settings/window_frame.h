// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QGroupBox>

#include "platform/user_habits.h"

namespace tarnwick {

/// What the user of this machine wants of the window, whatever list it shows.
class WindowFrame final : public QGroupBox {
  Q_OBJECT

 public:
  /// `habits` outlives the frame.
  explicit WindowFrame(UserHabits& habits, QWidget* parent = nullptr);

  bool isChanged() const;
  /// Stores what was changed. Raises what `UserHabits` does, and turns to the page then.
  void store();

 private:
  UserHabits& habits_;
  QCheckBox* closeToTray_;
  QCheckBox* startWithDesktop_;
};

}  // namespace tarnwick
