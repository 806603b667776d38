// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "base/text_in_parts.h"
#include "platform/clock.h"
#include "platform/file_system.h"
#include "store/database.h"

namespace tarnwick {

/// The page that sums up today's rows of table `log`: a line for each address and outcome with a bar, failures before
/// successes, and three counts. Only the newest page is kept.
class DailyReport {
 public:
  /// `clock` says which day today is.
  DailyReport(Database& database, FileSystem& files, const Clock& clock)
      : db_(database), files_(files), clock_(clock) {}

  /// Writes the page to "reports/report.html" in the program folder, in place of an earlier one, and returns its full
  /// path. A missing reports folder is made. The page shows "green.jpg" and "red.jpg" of that folder, which are not
  /// made here.
  ///
  /// Raises DataAccessError when the log cannot be read; OverflowError when one address has 32763 rows or more of one
  /// outcome today; FileError when the page cannot be written, and when the reports folder is there without any
  /// visible file in it. An earlier page is left as it was then.
  std::string createReport();

  /// The same in parts, of which the first writes that page. The last one writes "reports/history.html" where the
  /// history is kept. The text is the path.
  TextInParts createReportInParts();

 private:
  std::string reportSummary();
  std::string reportSiteTable(LocalTime day);
  static std::string reportTable(Recordset& rows);
  std::string countTable(const std::string& sql);

  Database& db_;
  FileSystem& files_;
  const Clock& clock_;
};

}  // namespace tarnwick
