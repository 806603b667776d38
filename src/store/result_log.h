// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "store/database.h"

namespace tarnwick {

/// A check's result as the log holds it; what is Null there is nothing here.
struct LogRow {
  std::optional<std::int64_t> idSite;
  std::optional<std::string> url;
  std::optional<bool> status;  ///< true for a check that succeeded
  std::optional<std::int64_t> errCode;
  std::optional<std::string> errDescription;
  std::optional<std::string> dateStamp;  ///< "YYYY-MM-DD HH:MM:SS"
  std::optional<std::string> content;    ///< only when it was asked for
};

/// Which results are read, and how much of them.
struct LogChoice {
  /// Only those written at this moment or later.
  std::optional<LocalTime> since{};
  std::optional<std::int16_t> idSite{};
  /// Only checks that failed.
  bool failures = false;
  /// Only so many of them, the newest.
  std::optional<std::int64_t> newest{};
  /// The page as well, which may be many megabytes for each result.
  bool content = false;
};

/// Some results of a site, and where in the log those before them end; nothing at its beginning.
struct LogPiece {
  std::vector<LogRow> rows{};
  std::optional<std::int64_t> before{};
};

/// The log of check results, read.
class ResultLog {
 public:
  explicit ResultLog(Database& database) : db_(database) {}

  /// Hands the results that `choice` names to `take` in the order they were written, until it returns false. Only a
  /// few are in memory at a time, and the database is not locked while `take` works, so it may take its time. Results
  /// written meanwhile are not among them. Raises DataAccessError.
  void readLog(const LogChoice& choice, const std::function<bool(const LogRow&)>& take);
  /// The results of the site among the next `most` of the whole log, the newest first, without their pages: from the
  /// newest one on, or from before the place that the last piece tells. So nobody waits for a site that has few in a
  /// long log. Raises DataAccessError.
  LogPiece readLogBackwards(std::int16_t idSite, std::optional<std::int64_t> before, std::int64_t most);

 private:
  /// A part of the log, by the numbers of its rows, both ends in it.
  struct Span {
    std::int64_t first;
    std::int64_t last;
  };

  std::optional<Span> spanOf(const LogChoice& choice);
  bool readPiece(const LogChoice& choice, Span& rest, const std::function<bool(const LogRow&)>& take);

  Database& db_;
};

}  // namespace tarnwick
