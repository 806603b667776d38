// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "exchange/list/site_list.h"
#include "program/m.h"

namespace tarnwick {

/// Which mail addresses `m::isEmail` takes.
inline constexpr const char* kMailAddressRule =
    "letters a to z, digits, \".\", \"-\", \"_\" before the \"@\" only, and at most 3 characters behind the last \".\"";

struct ImportOptions {
  /// Adds every site of the file as a new one, whatever id it has there. What is set for all sites stays.
  bool asNew = false;
  /// Deletes the sites that the file does not name.
  bool replace = false;
  /// Takes a site without an id for that of the list which has its address, as files of other programs need it; one
  /// address is one site then, also within the file.
  bool byAddress = false;
};

/// An address that the file holds twice.
struct RepeatedAddress {
  std::size_t line = 0;
  std::size_t firstLine = 0;
  std::string url;
};

/// What an import does to one site.
struct ImportStep {
  enum class Action { add, change, remove };

  Action action = Action::add;
  std::int16_t idSite = 0;
  /// The site as it will be stored, with all that the file leaves out; of one that is deleted its address only.
  ListedSite listed;
  /// What a change changes; what the file gives of a site that is added.
  ListFields fields;
};

/// How much of the history an import adds or puts in place of less.
struct HistoryTaken {
  std::size_t sites = 0;
  std::size_t hours = 0;
  std::size_t outages = 0;
};

struct ImportPlan {
  /// The sites of the file in its order, without those that stay as they are, and then those that are deleted.
  std::vector<ImportStep> steps;
  std::size_t unchanged = 0;
  /// What is to be set for all sites in place of what is; nothing when that stays.
  std::optional<OptionValues> optionsOfAll;
  /// Those that are stored: with its id in place of the one of the list that has its name, or with the id 0 as a new
  /// one. Their secrets are not stored with them; see `channelsWithSecret`.
  std::vector<ListedChannel> channels;
  /// What was left out since it stands in the file already.
  std::vector<RepeatedAddress> repeated;
  /// What is imported, but could not be typed in.
  ListFaults doubts;

  std::size_t count(ImportStep::Action action) const;
  HistoryTaken history() const;
};

/// Finds out what an import would do, a piece at a time, so that others are not held up by a long list. REQUIRES: a
/// transaction or Snapshot around all of it.
class ImportPlanner {
 public:
  /// Whether the sites are still needed afterwards.
  enum class Sites { taken, kept };

  /// Faults of the single sites are added to `faults`; a plan with faults is not to be carried out. All that is named
  /// outlives this object.
  ImportPlanner(m& data, std::vector<ListedSite>& sites, Sites afterwards, const ImportOptions& options,
                ListFaults& faults);
  ~ImportPlanner();
  ImportPlanner(ImportPlanner&&) noexcept;
  ImportPlanner& operator=(ImportPlanner&&) = delete;

  /// Does the next piece, a fraction of a millisecond or two; false when nothing is left to do. Raises DataAccessError.
  bool next();
  /// How much of the file is planned, from 0 to 1.
  double done() const;
  /// REQUIRES: nothing is left to do.
  ImportPlan finish() &&;

 private:
  class Plan;
  std::unique_ptr<Plan> plan_;
  std::vector<ListedSite>& sites_;
  Sites afterwards_;
  std::size_t next_ = 0;
};

/// Carries a plan out, a piece at a time. REQUIRES: one transaction around the planning and this, which is committed
/// when all is done.
class ImportWriter {
 public:
  /// The plan outlives this object.
  ImportWriter(m& data, const ImportPlan& plan) : data_(data), plan_(plan) {}

  /// As those of ImportPlanner.
  bool next();
  double done() const;

 private:
  void storeForAll();

  m& data_;
  const ImportPlan& plan_;
  std::size_t next_ = 0;
  bool begun_ = false;
};

/// What an import of `sites` would do, faults of the single sites added to `faults`; a plan with faults is not to be
/// carried out. Raises DataAccessError.
ImportPlan planImport(m& data, std::vector<ListedSite> sites, const ImportOptions& options, ListFaults& faults);

/// The channels of `plan`, as they are stored when it has been carried out, whose secrets the file had.
std::vector<ListedChannel> channelsWithSecret(m& data, const ImportPlan& plan);

/// Does it. REQUIRES: one transaction around the planning and this, which is committed when this returns.
void carryOut(m& data, const ImportPlan& plan);

/// Adds what an import would refuse in the texts of a site.
void checkTexts(const SiteDraft& site, ListValues& values);

/// "add", "change" or "delete"
const char* wordOf(ImportStep::Action action);

}  // namespace tarnwick
