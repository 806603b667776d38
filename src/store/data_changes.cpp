// SPDX-License-Identifier: MIT
#include "store/data_changes.h"

#include <cstddef>
#include <utility>

namespace tarnwick {

bool DataChanges::byOthers() {
  const std::int64_t version = db_.conn().changesOfOthers();
  return std::exchange(version_, version) != version;
}

bool DataChanges::byAnyone() {
  const auto rows = db_.conn().execute("select total_changes()", {});
  const std::int64_t changes = rows->eof() ? 0 : rows->field(std::size_t{0}).toInt64();
  const bool byUs = std::exchange(ownChanges_, changes) != changes;
  return byOthers() || byUs;
}

}  // namespace tarnwick
