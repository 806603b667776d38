// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "difference/byte_span.h"
#include "difference/change_groups.h"
#include "platform/clock.h"
#include "store/acknowledgements.h"
#include "store/baselines.h"
#include "store/database.h"
#include "store/site_rules.h"

namespace tarnwick {

/// What makes a page look like an error page of a server, as it says so itself: "404 Not Found". Empty for others.
std::string errorWordsOf(std::string_view page);

/// Whether the page is one of the further good ones of the site, by its rules. Raises DataAccessError.
bool isFurtherGood(Baselines& baselines, std::int16_t idSite, std::string_view page, const RuleSet& rules);

/// What there is to be settled of a site.
struct ToSettle {
  enum class State {
    noSuchSite,
    never,        ///< it was not checked yet, or what came is not here
    same,         ///< the latest page is as it should be
    differs,      ///< it is another one than the baseline
    emptyPage,    ///< so is an empty one, which cannot be a baseline: an empty baseline means that there is none
    failedFetch,  ///< the latest check brought no page
    notKept,      ///< the page was not kept, for want of room on the disk
  };

  State state = State::noSuchSite;
  std::string baseline;
  /// What the latest check brought: exactly the bytes that are accepted, or acknowledged.
  std::string page;
  /// What the page looks like, if it looks like an error.
  std::string errorWords;
  /// It has less than half the size of the baseline.
  bool isShort = false;
  /// Of the places that may vary: how many are found in the page, and how many are not.
  std::size_t placesFound = 0;
  std::size_t placesLost = 0;
  /// Where they are in both; nothing of pages in UTF-16, whose places are not those of their bytes.
  ByteSpans varyingInBaseline{};
  ByteSpans varyingInPage{};
  bool isAcknowledged = false;

  bool isDoubtful() const { return !errorWords.empty() || isShort || state == State::failedFetch; }
};

/// How a page is accepted.
enum class AcceptAs {
  baseline,  ///< in place of the baseline, which is kept
  also,      ///< beside it: either page is good
};

/// Settles what has changed: takes pages as baselines, gives the earlier ones back, and notes wrong pages that somebody
/// knows of. Each in one transaction; every failed statement raises DataAccessError.
class Settling {
 public:
  Settling(Database& database, const Clock& clock) : db_(database), clock_(clock), baselines_(database) {}

  ToSettle toSettle(std::int16_t idSite);
  /// How its latest page differs from the baseline, in words that are the same for all sites that have changed alike;
  /// what varies by the rules of the site is none of it. None where there is nothing to accept.
  ChangePhrases changeOf(std::int16_t idSite);

  /// Takes these bytes, which somebody has seen, whatever has been fetched since. Its rules and the places that may
  /// vary stay as they are; those that are not there are found again when an earlier baseline comes back. Raises
  /// std::length_error where so many further pages are not kept.
  void accept(std::int16_t idSite, const std::string& page, AcceptAs as);
  /// Puts the baseline back that was replaced last; false when there is none.
  bool undoAccept(std::int16_t idSite);

  /// Nothing is said of the site while exactly this page stays.
  void acknowledgePage(std::int16_t idSite, const std::string& page);

 private:
  std::string baselineOf(std::int16_t idSite);
  void setBaseline(std::int16_t idSite, const std::string& page);

  Database& db_;
  const Clock& clock_;
  Baselines baselines_;
};

}  // namespace tarnwick
