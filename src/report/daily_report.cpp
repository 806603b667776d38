// SPDX-License-Identifier: MIT
#include "report/daily_report.h"

#include <algorithm>
#include <cstdint>

#include "base/errors.h"
#include "platform/long_date.h"
#include "report/history_page.h"
#include "report/html_tables.h"
#include "store/site_options.h"
#include "store/sql_quote.h"

namespace tarnwick {
namespace {

// A bar is a little wider than its count, so that a single check can be seen, and never wider than its column.
constexpr std::int64_t kWidthBesideCount = 5;
constexpr std::int16_t kGreatestWidth = 100;

/// The cells of the table of addresses: each row's status is shown as a bar as long as the row's total.
class BarCells {
 public:
  std::string operator()(const std::string& name, const SqlValue& value) {
    if (name == "total") {
      width_ = std::min(
          checkedInt16(value.toInt64() + kWidthBesideCount, "the width of a report bar (5 more than the count)"),
          kGreatestWidth);
    }
    return name == "status" ? bar(value.toBool()) : plainCell(name, value);
  }

 private:
  std::string bar(bool passed) const {
    return "<img height=12 width=" + std::to_string(width_) + (passed ? " src=green.jpg>" : " src=red.jpg>");
  }

  std::int16_t width_ = 0;
};

/// Makes the folder unless a file shows that it is there. An empty one cannot be told from a missing one that way,
/// and making it again fails: a reports folder without its bar images is not in order.
void requireReportsFolder(FileSystem& files, const std::string& folder) {
  if (!files.holdsVisibleFile(folder) && !files.makeFolder(folder)) {
    throw FileError(folder,
                    "The reports folder is there but holds no file. Put green.jpg and red.jpg into it, or remove it.");
  }
}

}  // namespace

std::string DailyReport::reportTable(Recordset& rows) { return htmlTable(rows, plainCell); }

std::string DailyReport::reportSiteTable(LocalTime day) {
  const auto rows =
      db_.query(joinSql("select url,count(url) as total,status from log ", " where datevalue(dateStamp) = '",
                        sqlQuote(dateText(day)), "'", " group by url,status"));
  std::string html = htmlTable(*rows, BarCells());
  rows->close();
  return html;
}

std::string DailyReport::countTable(const std::string& sql) {
  const auto rows = db_.query(sql);
  std::string html = reportTable(*rows);
  rows->close();
  return html;
}

std::string DailyReport::reportSummary() {
  const LocalTime now = clock_.localNow();
  const std::string today = sqlQuote(dateText(now));
  std::string text = "REPORT TIME: " + longDateText(now) + " " + timeOfDayText(now) + kReportLineEnd;
  text += reportSiteTable(now);
  text += countTable(
      joinSql("select count(*) as [Total Log Entries] from log", " where datevalue(dateStamp) = '", today, "'"));
  text += countTable(joinSql("select count(*) as [Total Errors] from log ", " where ", " status = 0", " AND ",
                             " datevalue(dateStamp) = '", today, "'"));
  text += countTable(joinSql("select count(*) as [Total Success] from log ", " where ", " status <> 0", " AND ",
                             " datevalue(dateStamp) = '", today, "'"));
  return text;
}

std::string DailyReport::createReport() { return createReportInParts().whole(); }

TextInParts DailyReport::createReportInParts() {
  const std::string text = reportSummary();
  const std::string folder = db_.programFolder() + "/reports/";
  requireReportsFolder(files_, folder);
  const std::string path = folder + "report.html";
  files_.replace(path, [&](const ByteSink& sink) { sink(text + "\r\n"); });
  if (readOptions(db_).valueOf(kAllSites, option_name::history) == option_value::on) {
    SiteHistory history(db_);
    TextInParts page = historyPage(history, clock_.now());
    while (page.goOn()) {
      co_await letOthersGoOn;
    }
    const std::string whole = std::move(page).whole();
    files_.replace(folder + "history.html", [&](const ByteSink& sink) { sink(whole); });
  }
  co_return path;
}

}  // namespace tarnwick
