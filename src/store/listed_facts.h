// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "history/history_rule.h"
#include "store/database.h"
#include "store/site_tags.h"

namespace tarnwick {

/// What a list can show of a site beside its record. As it is made here, nothing.
struct ListedFacts {
  /// What is known of its certificate.
  struct Certificate {
    Moment ends;
    std::string issuer;

    bool operator==(const Certificate&) const = default;
  };

  std::optional<Moment> downSince{};                   ///< the outage that is on
  std::optional<Moment> upSince{};                     ///< the end of the latest outage, where none is on
  std::string cause{};                                 ///< of the first failure of the outage that is on
  std::optional<std::chrono::milliseconds> latency{};  ///< of the latest check
  Tags tags{};
  std::optional<Certificate> certificate{};

  bool operator==(const ListedFacts&) const = default;
};

/// Which of them are read.
struct FactsWanted {
  bool outage = false;
  bool latency = false;
  bool tags = false;
  bool certificate = false;

  bool any() const { return outage || latency || tags || certificate; }
  FactsWanted operator|(const FactsWanted& more) const {
    return {.outage = outage || more.outage,
            .latency = latency || more.latency,
            .tags = tags || more.tags,
            .certificate = certificate || more.certificate};
  }
  bool operator==(const FactsWanted&) const = default;
};

/// Reads what is wanted of the sites from `first` to `last`, both of them included, a table at a time; those of which
/// there is nothing are left out. A table that the list lacks reads as if it were empty. Raises DataAccessError.
std::map<std::int64_t, ListedFacts> readListedFacts(Database& database, const FactsWanted& wanted, std::int64_t first,
                                                    std::int64_t last);

}  // namespace tarnwick
