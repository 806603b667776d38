// SPDX-License-Identifier: MIT
#include "platform/local_fields.h"

namespace tarnwick {

std::optional<std::tm> localFields(std::time_t time) {
  std::tm fields{};
  return localtime_r(&time, &fields) == nullptr ? std::nullopt : std::optional(fields);
}

}  // namespace tarnwick
