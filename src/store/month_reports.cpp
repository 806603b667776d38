// SPDX-License-Identifier: MIT
#include "store/month_reports.h"

#include <algorithm>
#include <set>

#include "store/migrations.h"
#include "store/table_there.h"

namespace tarnwick {
namespace {

constexpr std::chrono::hours kPatience{1};
constexpr std::size_t kMost = 12;

bool hasTable(Database& database) { return hasTable(database, "monthReports"); }

Moment monthBefore(Moment month) { return monthOf(month - std::chrono::seconds(1)); }

}  // namespace

void MonthReports::begin() {
  if (!hasTable(db_)) {
    requireTodaysForm(db_.conn(), db_.dbPath());
  }
  if (hasTable(db_)) {
    db_.conn()
        .execute(
            "insert into monthReports (month) select strftime('%Y-%m', date(now(), 'start of month', '-1 day')) where "
            "not exists (select 1 from monthReports)")
        ->close();
  }
}

bool MonthReports::hasBegun() {
  return hasTable(db_) && !db_.conn().execute("select 1 from monthReports limit 1", {})->eof();
}

void MonthReports::end() {
  if (hasTable(db_)) {
    db_.conn().execute("delete from monthReports", {})->close();
  }
}

std::vector<Moment> MonthReports::owed(Moment now) {
  std::vector<Moment> months;
  if (!hasTable(db_)) {
    return months;
  }
  std::set<std::string> made;
  const auto rows = db_.conn().execute("select month from monthReports", {});
  for (; !rows->eof(); rows->moveNext()) {
    made.insert(rows->field(std::size_t{0}).toText());
  }
  rows->close();
  if (made.empty()) {
    return months;
  }
  Moment month = monthBefore(monthOf(now - kPatience));
  for (std::size_t i = 0; i < kMost && monthText(month) > *made.begin(); ++i, month = monthBefore(month)) {
    if (!made.contains(monthText(month))) {
      months.insert(months.begin(), month);
    }
  }
  return months;
}

bool MonthReports::isMade(Moment month) {
  const SqlValue text(monthText(month));
  return !hasTable(db_) || !db_.conn().execute("select 1 from monthReports where month = ?1", {&text, 1})->eof();
}

void MonthReports::setMade(Moment month) {
  const SqlValue text(monthText(month));
  db_.conn().execute("insert or ignore into monthReports (month) values (?1)", {&text, 1})->close();
}

}  // namespace tarnwick
