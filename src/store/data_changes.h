// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "store/database.h"

namespace tarnwick {

/// Tells one who asks again and again whether the database has been changed meanwhile. Each looks through an object of
/// his own. The questions touch no table; a failed one raises DataAccessError.
class DataChanges {
 public:
  explicit DataChanges(Database& database) : db_(database) {}

  /// Whether another program has changed the database since this was asked last.
  bool byOthers();
  /// Whether anything has been changed, by this program or another one, since this was asked last.
  bool byAnyone();

 private:
  Database& db_;
  std::int64_t version_ = 0;
  std::int64_t ownChanges_ = -1;
};

}  // namespace tarnwick
