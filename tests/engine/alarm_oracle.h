// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "engine/alarm_rule.h"

namespace tarnwick::testing {

/// A second reading of what is told of a site. It keeps no state of the site but all that has happened to it, and looks
/// there for what has to be told, anew at each moment.
class AlarmOracle {
 public:
  /// What has to follow.
  struct Answer {
    std::vector<AlertKind> alerts;
    std::vector<AlertKind> owed;
    std::optional<std::chrono::seconds> repeatAfter;
  };

  /// After a check, or after none where only time has gone by.
  Answer ask(const std::optional<CheckOutcome>& check, const AlarmPolicy& policy, LocalTime now);
  /// All that is owed has been told, and that is known.
  void settle() { owed_.clear(); }

 private:
  enum class Side { up, between, down };  // between: failed, not yet for real
  enum class Known { up, down, unsteady };
  struct Moment {
    LocalTime at;
    std::optional<CheckOutcome> check;
    AlarmPolicy policy;
    bool isUnsteady = false;
    std::vector<AlertKind> news{};

    bool says(AlertKind kind) const;
  };

  const Moment& now() const { return story_.back(); }
  int failedInARow(std::size_t until) const;
  Side sideAt(std::size_t moment) const;
  bool isQuiet(const Moment& moment) const;
  bool isChange(std::size_t moment) const;
  bool isRemembered(std::size_t change) const;
  bool isUnsteadyNow() const;
  Known known() const;
  LocalTime earliestSince(std::size_t moment) const;
  bool isReminderDue() const;
  bool isSlowNews() const;
  std::vector<AlertKind> news() const;

  std::vector<Moment> story_;
  std::vector<AlertKind> owed_;
};

}  // namespace tarnwick::testing
