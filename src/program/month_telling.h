// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "delivery/delivery.h"
#include "platform/clock.h"
#include "platform/file_system.h"
#include "report/parted_work.h"
#include "store/month_reports.h"
#include "store/site_history.h"
#include "store/site_options.h"

namespace tarnwick {

/// Makes the report of each month that has ended, once, where the option `monthReport` wants it: as a file, and as a
/// message by the channels that are on for all sites. A month of which nothing is known has none.
class MonthTelling {
 public:
  /// What is not done at once goes on by the timers; `guard` is where its errors end.
  MonthTelling(SiteHistory& history, Delivery& delivery, FileSystem& files, const Clock& clock, TimerMaker& timers,
               PartedWork::Guard guard);

  /// Whether it is time to look, once a minute.
  bool isDue() const;
  /// Makes what is owed; may be called at any time. A file that cannot be written keeps back no message: then it raises
  /// FileError, with the remedy, once. Raises DataAccessError when it cannot be kept that the report was made: then it
  /// is made later. Of long lists the report follows between the events. REQUIRES: no transaction.
  void tick(const OptionsInForce& options);

 private:
  TextInParts tellAll(std::vector<Moment> months);
  TextInParts tell(Moment month);
  void writeFile(Moment month, const std::string& page);

  SiteHistory& history_;
  Delivery& delivery_;
  FileSystem& files_;
  const Clock& clock_;
  MonthReports reports_;
  std::optional<std::chrono::milliseconds> looked_;
  std::set<Moment> unknown_;
  PartedWork work_;
};

}  // namespace tarnwick
