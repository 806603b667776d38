// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "engine/due_sites.h"
#include "store/text_table.h"

namespace tarnwick {

/// The sites of the next pass: those that the database chooses, those that an earlier pass of the same run still owes a
/// check, without the one that is being typed.
class SitesToTest {
 public:
  explicit SitesToTest(DueSites& dueSites) : dueSites_(dueSites) {}

  /// The sites of a pass of `mode` (see `DueSites::getArraySitesActiveTrue`); `neverCheckedToo` adds to the due ones
  /// those that were never checked. Calls `between` now and then while a long list is read. Raises DataAccessError.
  TextTable choose(std::int16_t mode, bool neverCheckedToo, const std::function<void()>& between);

  /// The page of a site was dropped, or a pass left it out: it is due at once, whatever the time of its last check.
  void owe(std::int16_t idSite) { owed_.insert(idSite); }
  /// It has been checked.
  void settle(std::int16_t idSite) {
    owed_.erase(idSite);
    unrecorded_.erase(std::to_string(idSite));
  }
  /// It has been checked at `now`, but that could not be recorded: the database calls it due, and yet it is not before
  /// its interval has passed, or something can be recorded again.
  void checkedUnrecorded(std::int16_t idSite, std::chrono::milliseconds now) {
    unrecorded_[std::to_string(idSite)] = now;
  }
  void canBeRecorded() { unrecorded_.clear(); }
  /// `sites` without those of them.
  TextTable withoutUnrecorded(const TextTable& sites, std::chrono::milliseconds now) const;
  void settleAll() { owed_.clear(); }
  /// Whether a check is owed that can be made now.
  bool owesAny() const { return owed_.size() > (typed_ && owed_.contains(*typed_) ? 1U : 0U); }

  /// Which site is a record that somebody is still typing, if any.
  void beingTyped(std::optional<std::int16_t> idSite) { typed_ = idSite; }
  bool isBeingTyped(std::int16_t idSite) const { return typed_ == idSite; }

  /// Why nothing is due although the countdown has ended, for people: there are active sites that were never checked.
  /// Empty when there are none.
  std::string whatWaits();
  /// The active sites that neither the pass that is on, if `passIsOn`, nor the next one takes, since they were never
  /// checked. One that is being typed is none of them. Raises DataAccessError.
  SomeSites leftOut(bool passIsOn);

 private:
  void addOwed(TextTable& sites);

  DueSites& dueSites_;
  std::set<std::int16_t> owed_;
  std::unordered_map<std::string, std::chrono::milliseconds> unrecorded_;
  // The ids of those that the latest pass has taken although they were never checked.
  std::unordered_set<std::string> taken_;
  std::optional<std::int16_t> typed_;
};

}  // namespace tarnwick
