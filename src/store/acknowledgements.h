// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "platform/clock.h"
#include "store/database.h"

namespace tarnwick {

/// A wrong page that somebody knows of.
struct Acknowledgement {
  std::string page;   ///< its fingerprint
  std::string since;  ///< "YYYY-MM-DD HH:MM:SS"
  bool operator==(const Acknowledgement&) const = default;
};

/// Table `acknowledged`: the wrong pages that are known, so that nothing is said of them. A list without the table
/// reads as if it were empty. Every failed statement raises DataAccessError.
class Acknowledgements {
 public:
  explicit Acknowledgements(Database& database) : db_(database) {}

  std::map<std::int64_t, Acknowledgement> acknowledgements();
  std::optional<Acknowledgement> acknowledgementOf(std::int16_t idSite);
  void acknowledge(std::int16_t idSite, const std::string& page, LocalTime since);
  /// Nothing when there is none, or no table.
  void removeAcknowledgement(std::int64_t idSite);

 private:
  bool hasTable();

  Database& db_;
};

}  // namespace tarnwick
