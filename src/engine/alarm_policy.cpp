// SPDX-License-Identifier: MIT
#include "engine/alarm_policy.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace tarnwick {
namespace {

using std::chrono::seconds;

const std::vector<seconds>& usualPauses() {
  static const std::vector<seconds> pauses{seconds(5), seconds(20)};
  return pauses;
}

Reminders remindersOf(const std::string& value) {
  if (value == option_value::everyCheck) {
    return {Reminders::Kind::everyCheck, {}};
  }
  if (value == option_value::never) {
    return {Reminders::Kind::never, {}};
  }
  if (value == option_value::growing) {
    return {Reminders::Kind::growing, {}};
  }
  return {Reminders::Kind::regular, std::chrono::minutes(std::stoi(value))};
}

constexpr std::array kOptionsOfAlarm{
    option_name::alerts,      option_name::confirm, option_name::recovery,    option_name::remind,
    option_name::flapping,    option_name::slow,    option_name::certificate, option_name::quiet,
    option_name::maintenance, option_name::pause,   option_name::ownNetwork,
};

}  // namespace

bool isAlarmSet(const OptionsInForce& options) { return options.setsAnyOf(kOptionsOfAlarm); }

seconds AlarmPolicy::repeatAfter(int failures) const {
  const std::vector<seconds>& pauses = confirmAfter.empty() ? usualPauses() : confirmAfter;
  return pauses[std::min(static_cast<std::size_t>(failures), pauses.size()) - 1];
}

bool AlarmPolicy::isOriginal() const {
  return alerts && confirm <= 1 && !recovery && remind.kind == Reminders::Kind::everyCheck && !unsteady && !slow &&
         !certificate && quiet.none() && maintenance.empty() && !pause.isOn;
}

AlarmPolicy alarmPolicyOf(const OptionsInForce& options, std::int64_t idSite) {
  AlarmPolicy policy;
  // Each value is in the form that the table of options gives it.
  const auto take = [&](std::string_view name, auto&& store) {
    if (const auto value = options.valueOf(idSite, name)) {
      store(*value);
    }
  };
  using Text = const std::string&;
  take(option_name::alerts, [&](Text value) { policy.alerts = value == option_value::on; });
  take(option_name::confirm, [&](Text value) { policy.confirm = std::stoi(value); });
  take(option_name::confirmAfter,
       [&](Text value) { policy.confirmAfter = readPauses(value).value_or(policy.confirmAfter); });
  take(option_name::recovery, [&](Text value) { policy.recovery = value == option_value::on; });
  take(option_name::remind, [&](Text value) { policy.remind = remindersOf(value); });
  take(option_name::flapping, [&](Text value) { policy.unsteady = readUnsteadyLimit(value); });
  take(option_name::slow, [&](Text value) {
    if (value != option_value::off) {
      policy.slow = std::chrono::milliseconds(std::stoll(value));
    }
  });
  take(option_name::certificate, [&](Text value) { policy.certificate = readCertificateLimits(value); });
  take(option_name::quiet, [&](Text value) { policy.quiet = readWeekHours(value).value_or(policy.quiet); });
  take(option_name::quietHow, [&](Text value) {
    policy.quietKind = value == option_value::doNotCheck ? QuietKind::noChecks : QuietKind::keepAlerts;
  });
  take(option_name::maintenance,
       [&](Text value) { policy.maintenance = readDatedWindows(value).value_or(policy.maintenance); });
  take(option_name::pause, [&](Text value) { policy.pause = readPause(value).value_or(policy.pause); });
  return policy;
}

Quiet quietAt(const AlarmPolicy& policy, LocalTime now) {
  Quiet quiet = isPaused(policy.pause, now) ? Quiet::keepsAlerts : Quiet::no;
  const auto add = [&](QuietKind kind) {
    quiet = std::max(quiet, kind == QuietKind::noChecks ? Quiet::noChecks : Quiet::keepsAlerts);
  };
  if (policy.quiet.test(hourOfWeek(now))) {
    add(policy.quietKind);
  }
  for (const DatedWindow& window : policy.maintenance) {
    if (window.from <= now && now < window.until) {
      add(window.kind.value_or(policy.quietKind));
    }
  }
  return quiet;
}

}  // namespace tarnwick
