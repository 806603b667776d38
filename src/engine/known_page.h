// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "holes/page_rule.h"
#include "store/acknowledgements.h"
#include "store/database.h"

namespace tarnwick {

/// What a check means for a wrong page that somebody has acknowledged.
enum class KnownStep {
  none,    ///< there is no such page
  silent,  ///< it is still there: nothing is told
  other,   ///< another wrong page is there, which is told as any; the acknowledgement ends
  over,    ///< the site is up; the acknowledgement ends
};

/// Decides it. `fingerprint` is that of what the check brought; it does not matter for one that passed.
KnownStep decideKnown(const std::optional<Acknowledgement>& acknowledged, bool passed, std::string_view fingerprint);

/// By what a wrong page is known again: what varies on it by the rules of the site does not count. Of a fetch that
/// failed `page` is its text.
std::string fingerprintOf(const std::string& baseline, const std::string& page, const RuleSet& rules);

/// Decides for the checks of one pass, and keeps what follows. Every failed statement raises DataAccessError.
class KnownPages {
 public:
  explicit KnownPages(Database& database) : db_(database), known_(database) {}

  /// REQUIRES: the transaction of the check's result.
  KnownStep take(std::int16_t idSite, bool passed, const std::string& page);
  /// The same with nothing kept.
  KnownStep look(std::int16_t idSite, bool passed, const std::string& page);

 private:
  Database& db_;
  Acknowledgements known_;
  /// As the pass began: what passes needs no look at each site then.
  std::optional<std::set<std::int64_t>> sites_;
};

}  // namespace tarnwick
