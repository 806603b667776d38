// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "report/daily_report.h"
#include "store/sql_quote.h"
#include "support/data_fixture.h"
#include "support/file_bytes.h"

namespace tarnwick::testing {

/// A report over a log of the case's own making. Today is Friday, May 17, 2024.
class ReportFixture : public DataFixture {
 protected:
  /// Logs `count` results of an address at `dateStamp`.
  void log(const std::string& url, bool status, int count = 1, const std::string& dateStamp = "2024-05-17 09:30:00") {
    folder.execute("with recursive n(i) as (select 1 union all select i + 1 from n where i < " + std::to_string(count) +
                   ") insert into log (idSite, url, status, errCode, errDescription, content, dateStamp) select 1, '" +
                   sqlQuote(url) + "', " + (status ? "1" : "0") + ", 0, '', '', '" + dateStamp + "' from n");
  }

  /// The page that a new report wrote.
  std::string page() { return bytesOfFile(report.createReport()); }

  std::string reportFile() const { return folder.path() + "/reports/report.html"; }

  LocalFiles files;
  DailyReport report{database, files, clock};
};

}  // namespace tarnwick::testing
