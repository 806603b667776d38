// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

#include "store/alarm_values.h"
#include "store/site_options.h"

namespace tarnwick {

/// What follows the first alert of an outage.
struct Reminders {
  enum class Kind {
    everyCheck,  ///< each failed check is told: the original behaviour
    never,
    regular,  ///< after each `every`
    growing,  ///< after 1, 2, 4 ... hours, counted from the first alert
  };
  Kind kind = Kind::everyCheck;
  std::chrono::minutes every{0};
};

/// What a site wants to be told of, and when: its options of the alarm. As it is made here, the original behaviour.
struct AlarmPolicy {
  bool alerts = true;
  int confirm = 1;  ///< failed checks in a row, 1 or more
  std::vector<std::chrono::seconds> confirmAfter{};
  bool recovery = false;
  Reminders remind{};
  std::optional<UnsteadyLimit> unsteady{};
  std::optional<std::chrono::milliseconds> slow{};
  std::optional<CertificateLimits> certificate{};
  WeekHours quiet{};
  QuietKind quietKind = QuietKind::keepAlerts;
  std::vector<DatedWindow> maintenance{};
  Pause pause{};

  /// How long after failure number `failures` of a row, 1 or more, the check is repeated that may confirm it.
  std::chrono::seconds repeatAfter(int failures) const;
  /// Whether something is decided otherwise than originally, so that it has to be known how the site stands.
  bool isOriginal() const;
};

/// Whether any option of the alarm is set, for a site or for all.
bool isAlarmSet(const OptionsInForce& options);

/// The policy of a site by what is set for it, and for all.
AlarmPolicy alarmPolicyOf(const OptionsInForce& options, std::int64_t idSite);

/// What is quiet about a moment.
enum class Quiet { no, keepsAlerts, noChecks };
Quiet quietAt(const AlarmPolicy& policy, LocalTime now);

}  // namespace tarnwick
