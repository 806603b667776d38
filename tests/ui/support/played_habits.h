// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <stdexcept>
#include <string>

#include "platform/user_habits.h"

namespace tarnwick::testing {

/// The habits of a user, without a desktop.
struct PlayedHabits final : UserHabits {
  bool tray = true;
  bool closes = false;
  bool starts = false;
  bool refuses = false;
  std::map<std::string, int> numbers;

  bool hasTray() const override { return tray; }
  bool closesToTray() const override { return closes; }
  void setClosesToTray(bool wanted) override { closes = wanted; }
  bool startsWithDesktop() const override { return starts; }
  void setStartsWithDesktop(bool wanted) override {
    if (refuses) {
      throw std::runtime_error("The file a cannot be changed: b.");
    }
    starts = wanted;
  }
  std::optional<int> remembered(const std::string& name) const override {
    const auto found = numbers.find(name);
    return found == numbers.end() ? std::nullopt : std::optional(found->second);
  }
  void remember(const std::string& name, int value) override { numbers[name] = value; }
};

}  // namespace tarnwick::testing
