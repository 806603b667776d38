// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "platform/clock.h"
#include "platform/file_system.h"
#include "report/parted_work.h"
#include "store/site_history.h"
#include "store/site_options.h"

namespace tarnwick {

/// What is written for others after a pass, each file in place of the one before, which stays where that cannot be:
/// the status page, as index.html in the folder of the option `statusPage`, and the figures, in the file of the option
/// `metricsFile`. A path that does not begin at the root begins in the program folder.
class Publication {
 public:
  /// What is not done at once goes on by the timers; `guard` is where its errors end.
  Publication(SiteHistory& history, FileSystem& files, const Clock& clock, TimerMaker& timers, PartedWork::Guard guard);

  /// Writes what the options want; nothing, and nothing is read, where they want nothing. False where it is too early
  /// for that: it takes no more than a hundredth of the time. Raises DataAccessError; FileError when a file cannot be
  /// written, after the other. Of long lists that follows between the events.
  bool write(const OptionsInForce& options);

 private:
  TextInParts all(std::optional<std::string> folder, std::optional<std::string> figures);

  SiteHistory& history_;
  FileSystem& files_;
  const Clock& clock_;
  std::optional<std::chrono::milliseconds> notBefore_;
  PartedWork work_;
};

/// Writes the status page in that folder, which is made when it is missing, at once: the path of the file. Raises as
/// above.
std::string writeStatusPage(SiteHistory& history, FileSystem& files, const Clock& clock, const std::string& folder);

}  // namespace tarnwick
