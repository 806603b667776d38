// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "platform/clock.h"
#include "store/alarm_values.h"
#include "store/database.h"
#include "store/site_options.h"

namespace tarnwick {

/// Pauses the alerts of sites, or of all, and takes pauses away: the option `pause`. Every failed statement raises
/// DataAccessError.
class SitePauses {
 public:
  SitePauses(Database& database, SiteOptions& options) : db_(database), options_(options) {}

  /// Pauses these sites; all of them, or none.
  void pause(const std::vector<std::int16_t>& sites, const Pause& pause);
  /// Pauses all sites, those of a pause of their own that ends sooner too; one that lasts longer stays.
  void pauseAll(const Pause& pause, LocalTime now);

  /// Ends the pauses of these sites, also where all are paused.
  void resume(const std::vector<std::int16_t>& sites, LocalTime now);
  /// Ends all pauses there are.
  void resumeAll();

 private:
  Database& db_;
  SiteOptions& options_;
};

}  // namespace tarnwick
