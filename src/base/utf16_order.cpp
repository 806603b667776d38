// SPDX-License-Identifier: MIT
#include "base/utf16_order.h"

#include <algorithm>

namespace tarnwick {

std::optional<std::size_t> utf16HighBytes(std::string_view page) {
  constexpr std::size_t kLooked = 1024;
  constexpr std::size_t kFewest = 16;
  if (page.size() < 2 || page.size() % 2 != 0) {
    return std::nullopt;
  }
  if (page.starts_with("\xFE\xFF")) {
    return 0;
  }
  if (page.starts_with("\xFF\xFE")) {
    return 1;
  }
  const std::string_view begin = page.substr(0, std::min(page.size(), kLooked));
  for (const std::size_t high : {0U, 1U}) {
    std::size_t zeros = 0;
    bool otherZeros = false;
    for (std::size_t i = 0; i + 1 < begin.size(); i += 2) {
      zeros += begin[i + high] == '\0' ? 1U : 0U;
      otherZeros = otherZeros || begin[i + 1 - high] == '\0';
    }
    if (begin.size() >= kFewest && !otherZeros && zeros * 4 > begin.size()) {  // half of all characters
      return high;
    }
  }
  return std::nullopt;
}

}  // namespace tarnwick
