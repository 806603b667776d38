// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <QTimer>

#include "platform/user_habits.h"

namespace tarnwick {

/// A number that a part of the window remembers: kept half a second after its last change.
class KeptHabit {
 public:
  /// `value` is what is to be remembered now.
  KeptHabit(std::string name, std::function<int()> value) : name_(std::move(name)), value_(std::move(value)) {
    later_.setSingleShot(true);
    later_.setInterval(kAfter);
    QObject::connect(&later_, &QTimer::timeout, [this] { habits_->remember(name_, value_()); });
  }

  /// What was remembered last; from now on `habits`, which outlives this, are told of the changes.
  std::optional<int> keepIn(UserHabits& habits) {
    habits_ = &habits;
    return habits.remembered(name_);
  }
  void change() {
    if (habits_ != nullptr) {
      later_.start();
    }
  }

 private:
  static constexpr int kAfter = 500;  // milliseconds

  const std::string name_;
  const std::function<int()> value_;
  UserHabits* habits_ = nullptr;
  QTimer later_;
};

}  // namespace tarnwick
