// SPDX-License-Identifier: MIT
#include "platform/local_fields.h"

namespace tarnwick {

std::optional<std::tm> localFields(std::time_t time) {
  std::tm fields{};
  return localtime_s(&fields, &time) == 0 ? std::optional(fields) : std::nullopt;
}

}  // namespace tarnwick
