// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace tarnwick {

/// What the user of this machine wants of the window, whatever list it shows: kept in the desktop's settings, in no
/// list and in no export.
class UserHabits {
 public:
  virtual ~UserHabits() = default;

  /// Whether the desktop has a tray now.
  virtual bool hasTray() const = 0;
  /// Whether closing the window leaves the program in the tray. What cannot be kept is forgotten in silence.
  virtual bool closesToTray() const = 0;
  virtual void setClosesToTray(bool wanted) = 0;
  /// Whether the window opens when the user's desktop starts.
  virtual bool startsWithDesktop() const = 0;
  /// Raises std::runtime_error, which tells what stands in the way.
  virtual void setStartsWithDesktop(bool wanted) = 0;
  /// A number that a part of the window remembers under a name of its own; nothing where it has remembered none.
  virtual std::optional<int> remembered(const std::string& name) const = 0;
  /// What cannot be kept is forgotten in silence.
  virtual void remember(const std::string& name, int value) = 0;
};

}  // namespace tarnwick
