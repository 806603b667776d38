// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/data_changes.h"
#include "store/database.h"
#include "store/option_table.h"

namespace tarnwick {

/// The site id under which table `siteOptions` keeps what holds for all sites.
inline constexpr std::int16_t kAllSites = 0;

/// Options by their names.
using OptionValues = std::map<std::string, std::string, std::less<>>;

/// The options that are set, read at once: what a pass decides by.
class OptionsInForce {
 public:
  explicit OptionsInForce(std::map<std::int64_t, OptionValues> values = {})
      : values_(std::make_shared<const std::map<std::int64_t, OptionValues>>(std::move(values))) {}

  /// The site's own value, else the one for all, else nothing: the original behaviour. `kAllSites` asks for the one
  /// for all.
  std::optional<std::string> valueOf(std::int64_t idSite, std::string_view name) const;

  /// Whether anything is set for this site alone.
  bool hasOwn(std::int64_t idSite) const { return values_->contains(idSite); }
  /// Whether one of these is set for any site, or for all.
  bool setsAnyOf(std::span<const std::string_view> names) const;

  /// Whether a site that was never checked is taken on with those that are due.
  bool newSitesAtOnce() const { return valueOf(kAllSites, option_name::newSites) == option_value::atOnce; }

  /// Whether both come of one reading.
  bool areThoseOf(const OptionsInForce& other) const { return values_ == other.values_; }

 private:
  std::shared_ptr<const std::map<std::int64_t, OptionValues>> values_;
};

/// A row of the table as far as the options take it: the value as they write it. Nothing for what another tool may have
/// left: a name, or a value, that there is not, or a site's own value of an option that there is for all only.
std::optional<std::string> takenOption(const std::vector<OptionField>& fields, std::int64_t idSite,
                                       std::string_view name, std::string_view value);

/// What is set for each site and for all, as far as the options take it; all else counts as not set. Nothing in a list
/// without the table. Raises DataAccessError.
OptionsInForce readOptions(Database& database, const std::vector<OptionField>& fields = programOptions());

/// Table `siteOptions`: what a site, or all of them, does otherwise than originally. A list without the table, as an
/// older one that cannot be written, reads as if it were empty. Every failed statement raises DataAccessError.
class SiteOptions {
 public:
  SiteOptions(Database& database, const std::vector<OptionField>& fields) : db_(database), fields_(fields) {}

  /// The options that there are.
  const std::vector<OptionField>& optionFields() const { return fields_; }
  /// The one of that name, in any letter case; raises std::runtime_error, which lists all of them, for another name.
  const OptionField& optionField(std::string_view name) const;

  /// What is set for one site alone, or for all (`kAllSites`); also what this program has no field for.
  OptionValues options(std::int16_t idSite);
  /// Which sites have a value of their own of that option; without those whose ids are outside 16 bits.
  std::map<std::int16_t, std::string> ownValues(std::string_view name);
  /// What is set for each site and for all: read again only after something has changed, since it is asked at each
  /// check.
  OptionsInForce optionsInForce();

  /// Sets an option of a site, or of all. Raises std::runtime_error for a value that it does not take, and for an
  /// option of a site that there is for all sites only.
  void setOption(std::int16_t idSite, std::string_view name, std::string_view value);
  /// Takes the site's own value away, or the one for all. Nothing when there is none.
  void removeOption(std::int16_t idSite, std::string_view name);
  /// Stores `values` in place of all that is set for the site, or for all; all of it, or nothing. Raises as
  /// `setOption`. What is set under a name that this program has no field for stays.
  void storeOptions(std::int16_t idSite, const OptionValues& values);

 private:
  Database& db_;
  const std::vector<OptionField>& fields_;
  DataChanges changes_{db_};
  // What was read last, and at which edition of the options.
  std::optional<OptionsInForce> inForce_;
  std::uint64_t edition_ = 0;
};

/// Removes a site's options with it. REQUIRES: a transaction.
void removeOptionsOf(Database& database, std::int64_t idSite);

}  // namespace tarnwick
