// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/nothing.h"
#include "report/month_figures.h"

namespace tarnwick {

/// A table of a report, for people and for other programs.
struct ReportTable {
  struct Column {
    std::string key;      ///< for other programs
    std::string title{};  ///< for people; empty where they are not shown it
    bool isNumber = false;
    bool isMinor = false;  ///< left out where there is little room
  };
  using Value = std::variant<Nothing, std::int64_t, double, std::string>;
  struct Cell {
    Value value;
    std::string shown{};
  };

  std::string key;    ///< "sites"
  std::string title;  ///< for people: "Sites"
  std::vector<Column> columns;
  std::vector<std::vector<Cell>> rows;
  std::size_t more = 0;  ///< rows that were left out
};

/// The names of the tables of a report of a month, in their order.
const std::vector<std::string>& monthTableKeys();

/// They: the month as a whole, its sites, outages, the slowest sites, the certificates that end soonest. Percentages
/// are numbers up to 100, times seconds or milliseconds, moments "YYYY-MM-DD HH:MM:SS" of the clock on the wall. Each
/// has the first rows, at most so many.
std::vector<ReportTable> monthTables(const MonthReport& report,
                                     std::size_t most = std::numeric_limits<std::size_t>::max());

/// What the month comes to, in one sentence.
std::string monthSentence(const MonthReport& report);

/// The same in more lines, for a message: of each table no more than `most` rows.
std::string monthLines(const MonthReport& report, std::size_t most);

}  // namespace tarnwick
