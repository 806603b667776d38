// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "alerts/event_texts.h"
#include "engine/run_controller.h"
#include "engine/run_view.h"
#include "store/outbox.h"
#include "store/site_options.h"

namespace tarnwick {

/// Keeps alerts of sites for the channels that are set up; nothing where none tells of the site. REQUIRES: the
/// transaction of what caused them. Every failed statement raises DataAccessError.
class ChannelAlerts {
 public:
  ChannelAlerts(const RunController::Needs& needs, const OptionsInForce& options) : needs_(needs), options_(options) {}

  /// What a check has brought to be told. `outage` is what is known beyond the check itself.
  void keep(const CheckResult& result, std::span<const AlertKind> kinds, const OutageFacts& outage);
  /// The same where nothing can be kept, as on a full disk. REQUIRES: no transaction.
  void tellUnkept(const CheckResult& result);
  /// What time alone has brought to be told of a site.
  void keep(std::int16_t idSite, const std::string& url, std::span<const AlertKind> kinds, const OutageFacts& outage);
  /// That this machine is online again.
  void keepOnline(LocalTime since);

 private:
  std::optional<std::string> channelsOf(std::int16_t idSite) const;
  Alert alertOf(const CheckResult& result);

  const RunController::Needs& needs_;
  const OptionsInForce& options_;
};

}  // namespace tarnwick
