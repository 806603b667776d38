// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "exchange/json/json_text.h"
#include "program/m.h"
#include "program/site_draft.h"

namespace tarnwick {

/// A site of the list: what the user has set, and what its checks have found.
struct SiteFacts {
  std::int64_t idSite = 0;
  SiteDraft site;
  std::string lastChecked;     ///< empty when it was never checked
  std::optional<bool> status;  ///< nothing when it was never judged
  std::int64_t success = 0;
  std::int64_t failure = 0;

  bool notAPage = false;  ///< up only because the text of a fetch that fails is the baseline

  bool down() const { return status == false; }
};

/// The sites, or the one of an id greater than 0, in the order of the database.
std::vector<SiteFacts> readSiteFacts(m& data, std::int16_t idSite = 0);

/// All sites in the order of their ids, some at a time, for lists of thousands. REQUIRES: a transaction or Snapshot
/// around all of it.
class SiteFactsReader {
 public:
  explicit SiteFactsReader(m& data) : data_(data) {}
  /// The next sites; none when there are no more. Raises DataAccessError.
  std::vector<SiteFacts> next();

 private:
  m& data_;
  std::optional<std::int64_t> last_;
};

/// Fills in `notAPage`.
void markThoseWithoutPage(m& data, std::vector<SiteFacts>& sites);

/// A site as JSON, its members named as the database's columns; the password only when it is to be shown.
JsonValue siteJson(const Fields& fields, const SiteFacts& facts, bool showPassword = false);

/// Tags as JSON, an array of texts.
JsonValue tagsJson(const Tags& tags);
/// Options as JSON, an object of texts.
JsonValue optionsJson(const OptionValues& options);
/// What is set for a site, or for all, as far as the options take it: what an import would take.
OptionValues knownOptions(m& data, std::int16_t idSite);

/// Rules and holes as JSON, an array of texts.
JsonValue rulesJson(const RuleSet& rules);

/// POST variables as JSON, in their order.
JsonValue postVarsJson(const std::vector<PostVar>& vars);

}  // namespace tarnwick
