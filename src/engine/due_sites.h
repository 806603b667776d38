// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_set>
#include <vector>

#include "platform/clock.h"
#include "store/data_changes.h"
#include "store/database.h"
#include "store/text_table.h"

namespace tarnwick {

/// Which sites a test pass takes.
namespace site_choice {
inline constexpr std::int16_t due = 0;     ///< the active sites that are due
inline constexpr std::int16_t active = 1;  ///< all active sites
inline constexpr std::int16_t all = 2;
}  // namespace site_choice

/// The active site that falls due soonest.
struct MinWaitTime {
  std::int16_t idsite = 0;  ///< 0 when there is no active site
  std::string url;
  std::int32_t tlc = 0;  ///< its check interval in seconds
  /// Seconds until it is due; negative when overdue, 0 when never checked; at most 2147483647 either way.
  std::int32_t mlc = 0;
};

/// Some of the active sites.
struct SomeSites {
  std::int64_t count = 0;
  std::int64_t first = 0;  ///< the lowest of their ids; 0 when there are none
};

/// Chooses what is tested and when. The database alone decides by its clock which sites are due: those whose last check
/// lies at least `tInterval` changes of the clock's minute back. A failed statement raises DataAccessError.
class DueSites {
 public:
  explicit DueSites(Database& database) : db_(database) {}

  /// The sites of one pass, columns as in `site_column`, by rising id. `mode` is one of `site_choice`; any other raises
  /// std::invalid_argument. An active site that was never checked is not due, but is among the active ones.
  ///
  /// A long list is read in slices, and `between` is called after each but the last: no statement is open then.
  TextTable getArraySitesActiveTrue(
      std::int16_t mode, const std::function<void()>& between = [] {});

  /// The active sites that are due, and those that were never checked; columns, order and `between` as above.
  TextTable getSitesDueOrNeverChecked(const std::function<void()>& between = [] {});

  /// The soonest-due active site. Raises OverflowError when its id does not fit 16 bits, or its check interval 32.
  MinWaitTime getMinWaitTime();

  /// The record of a site, columns as above; no row when there is none.
  TextTable asStored(std::int16_t idSite);

  /// How many sites are as they should be.
  struct Figures {
    std::int64_t active = 0;
    std::int64_t inactive = 0;
    std::int64_t up = 0;  ///< of the active ones, as those that follow
    std::int64_t down = 0;
    std::int64_t unchecked = 0;
  };
  Figures figures();
  /// All active sites.
  SomeSites activeSites();
  /// The active sites that were never checked.
  SomeSites neverChecked();
  /// The active sites whose last check, or `since` if that is later, lies two of their intervals back.
  SomeSites overdue(LocalTime since);
  /// The ids of those that were never checked, rising.
  std::vector<std::int64_t> idsNeverChecked();
  /// The sites whose last request took longer than its time-out.
  std::unordered_set<std::int64_t> idsThatTookTooLong();
  /// Whether there is such a site and it has ever been checked.
  bool wasChecked(std::int16_t idSite);

  /// Whether another program has changed the database since this was asked last.
  bool changedByOthers() { return changes_.byOthers(); }
  /// Whether anything has been changed, by this program or another one, since this was asked last.
  bool changedByAnyone() { return changes_.byAnyone(); }

  /// Vocabulary: no front end calls them.
  /// The ids of the active sites that are due, rising. Raise OverflowError for an id that does not fit 16 bits.
  std::vector<std::int16_t> getSitesToTest();
  std::vector<std::int16_t> xgetSitesToTest();

 private:
  TextTable readSites(std::string sql, const std::string& condition, const std::function<void()>& between);
  std::vector<std::int16_t> readIds(std::string sql);
  SomeSites countOf(const char* condition);

  Database& db_;
  DataChanges changes_{db_};
};

}  // namespace tarnwick
