// SPDX-License-Identifier: MIT
#include "engine/known_page.h"

#include "holes/page_text.h"
#include "page_rules/page_judge.h"
#include "platform/digest.h"
#include "store/site_rules.h"

namespace tarnwick {

KnownStep decideKnown(const std::optional<Acknowledgement>& acknowledged, bool passed, std::string_view fingerprint) {
  if (!acknowledged) {
    return KnownStep::none;
  }
  if (passed) {
    return KnownStep::over;
  }
  return acknowledged->page == fingerprint ? KnownStep::silent : KnownStep::other;
}

std::string fingerprintOf(const std::string& baseline, const std::string& page, const RuleSet& rules) {
  return sha256(rules.empty() || baseline.empty() ? page
                                                  : shownDifference(pageText(baseline), pageText(page), rules).now);
}

KnownStep KnownPages::look(std::int16_t idSite, bool passed, const std::string& page) {
  if (passed) {
    if (!sites_) {
      sites_.emplace();
      for (const auto& [id, acknowledged] : known_.acknowledgements()) {
        sites_->insert(id);
      }
    }
    return sites_->contains(idSite) ? KnownStep::over : KnownStep::none;
  }
  const auto acknowledged = known_.acknowledgementOf(idSite);
  if (!acknowledged) {
    return KnownStep::none;
  }
  const SqlValue id(std::int64_t{idSite});
  const auto rows = db_.conn().execute("select content_compare from sites where idSite = ?1", {&id, 1});
  const std::string baseline = rows->eof() ? std::string() : rows->field(std::size_t{0}).toText();
  rows->close();
  return decideKnown(acknowledged, passed, fingerprintOf(baseline, page, SiteRules(db_).rulesOf(idSite)));
}

KnownStep KnownPages::take(std::int16_t idSite, bool passed, const std::string& page) {
  const KnownStep step = look(idSite, passed, page);
  if (step == KnownStep::over || step == KnownStep::other) {
    known_.removeAcknowledgement(idSite);
  }
  return step;
}

}  // namespace tarnwick
