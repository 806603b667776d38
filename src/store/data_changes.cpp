// SPDX-License-Identifier: MIT
#include "store/data_changes.h"

#include <cstddef>
#include <string>
#include <utility>

namespace tarnwick {
namespace {

std::int64_t numberOf(Database& database, const std::string& sql) {
  const auto rows = database.conn().execute(sql, {});
  return rows->eof() ? 0 : rows->field(std::size_t{0}).toInt64();
}

}  // namespace

bool DataChanges::byOthers() {
  // https://www.sqlite.org/pragma.html#pragma_data_version
  const std::int64_t version = numberOf(db_, "pragma data_version");
  return std::exchange(version_, version) != version;
}

bool DataChanges::byAnyone() {
  const std::int64_t changes = numberOf(db_, "select total_changes()");
  const bool byUs = std::exchange(ownChanges_, changes) != changes;
  return byOthers() || byUs;
}

}  // namespace tarnwick
