// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "store/database.h"

namespace tarnwick {

/// Why the sites stand as they do, from what is stored of their last checks. Every failed statement raises
/// DataAccessError.
class SiteReasons {
 public:
  explicit SiteReasons(Database& database) : db_(database) {}

  /// Why an active site is down, in the words of a check (see `causeOf`), and what the difference looks like (see
  /// `firstLook`); of one that is up only because the text of a
  /// fetch that fails is its baseline, that it is so. Empty for all others. Reads the pages of a site that is down,
  /// unless they are so large that it would take tenths of a second: to be asked for a site that somebody looks at.
  std::string reasonOf(std::int16_t idSite);

  /// The same in a few words, of which the page is none: for a list, which shows many of them.
  struct ShortReason {
    std::string error{};   ///< why the fetch of the last check failed; empty when it brought a page
    std::size_t line = 0;  ///< in which the page differs first; 0 where that is not known, or takes long to be found
  };
  /// Of an active site that was checked. Does not read pages of more than two million bytes.
  ShortReason shortReasonOf(std::int16_t idSite);

  /// The sites whose last check brought no page: those that are down for want of an answer, and those that are up only
  /// because the text of such a failure is their baseline. By the log, so there are none where none is kept; no page is
  /// read. Only site `idSite` when that is greater than 0.
  std::set<std::int64_t> sitesNotFetched(std::int16_t idSite = 0);

 private:
  struct Stand {
    std::string url;
    bool up = false;
    std::string lastChecked;
  };
  std::optional<Stand> standOf(std::int16_t idSite);
  std::string remarkOf(std::int16_t idSite, const Stand& stand);
  std::int64_t storedBytes(std::int16_t idSite);
  std::pair<std::string, std::string> pagesOf(std::int16_t idSite);
  std::optional<std::string> failedFetch(std::int16_t idSite, const Stand& stand);

  Database& db_;
};

}  // namespace tarnwick
