// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "history/calendar.h"
#include "store/database.h"

namespace tarnwick {

/// Table `monthReports`: of which months a report has been made, so that none is made twice, wherever the clock may be
/// set. The first row is the month before reports were wanted. A list without the table reads as if it were empty.
/// Every failed statement raises DataAccessError.
class MonthReports {
 public:
  explicit MonthReports(Database& database) : db_(database) {}

  /// From the present month on reports are wanted; nothing where they are already.
  void begin();
  /// Whether it is known from which month on they are wanted.
  bool hasBegun();
  /// They are wanted no more.
  void end();

  /// The months of which a report is wanted and not made, and that have ended an hour ago: by then the checks after
  /// their ends have been taken. The earliest first, those of the last year. Empty where none are wanted.
  std::vector<Moment> owed(Moment now);
  /// Whether that month's report has been made.
  bool isMade(Moment month);
  /// It has. REQUIRES: a transaction, that of what is told by it.
  void setMade(Moment month);

 private:
  Database& db_;
};

}  // namespace tarnwick
