// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "platform/clock.h"
#include "platform/file_system.h"
#include "store/site_history.h"
#include "store/site_options.h"

namespace tarnwick {

/// What is written for others after a pass, each file in place of the one before, which stays where that cannot be:
/// the status page, as index.html in the folder of the option `statusPage`, and the figures, in the file of the option
/// `metricsFile`. A path that does not begin at the root begins in the program folder.
class Publication {
 public:
  Publication(SiteHistory& history, FileSystem& files, const Clock& clock)
      : history_(history), files_(files), clock_(clock) {}

  /// Writes what the options want; nothing, and nothing is read, where they want nothing. False where it is too early
  /// for that: it takes no more than a hundredth of the time. Raises DataAccessError; FileError when a file cannot be
  /// written, after the other.
  bool write(const OptionsInForce& options);

  /// The status page in that folder, which is made when it is missing: the path of the file. Raises as above.
  std::string writeStatusPage(const std::string& folder);

 private:
  std::string placeOf(const std::string& path) const;

  SiteHistory& history_;
  FileSystem& files_;
  const Clock& clock_;
  std::optional<std::chrono::milliseconds> notBefore_;
};

}  // namespace tarnwick
