// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <map>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "engine/run_controller.h"
#include "platform/transfer_control.h"
#include "store/text_table.h"

namespace tarnwick {

/// The sites of a pass as they were when it took them, row by row from 1, and what has become of them since.
class SelectedSites {
 public:
  /// What has become of a site since it was selected.
  enum class Standing {
    asSelected,
    changed,      ///< it would be asked for its page otherwise than it was
    switchedOff,  ///< it is not to be checked any more
    gone,         ///< deleted; there may be another one under its id
  };

  SelectedSites(const RunController::Needs& needs, TextTable sites);

  std::size_t count() const { return urls_.size(); }
  const std::string& url(std::size_t row) const { return urls_.at(row - 1); }
  const std::vector<std::string>& urls() const { return urls_; }
  /// Raises OverflowError for one that does not fit 16 bits.
  std::int16_t idSite(std::size_t row) const;
  /// That error; nothing for an id that can be used.
  std::exception_ptr unusableId(std::size_t row) const;

  /// How long it is between two checks of the row's site: a minute at least.
  std::chrono::minutes interval(std::size_t row) const;

  /// The request for a row's page; what it is asked with is kept until `forget`. Raises DataAccessError.
  Request requestFor(std::size_t row);
  void forget(std::size_t row) { sent_.erase(row); }
  /// The row's result has been recorded; whether it has.
  void setRecorded(std::size_t row) { recorded_.insert(row); }
  bool isRecorded(std::size_t row) const { return recorded_.contains(row); }

  /// Reads the site's record. Raises DataAccessError.
  Standing standingOf(std::size_t row) const;
  bool hasAddressAsSelected(std::size_t row) const;

 private:
  const std::string& cell(std::size_t column, std::size_t row) const { return sites_.at(column, row); }
  bool wouldSendTheSame(std::size_t row, const TextTable& stored) const;

  // What the rows that are being fetched were asked with.
  struct Sent {
    std::string userName;
    std::string password;
    std::optional<std::string> form;
  };

  const RunController::Needs* needs_;
  TextTable sites_;
  std::vector<std::string> urls_;
  std::map<std::size_t, Sent> sent_;
  std::unordered_set<std::size_t> recorded_;
};

}  // namespace tarnwick
