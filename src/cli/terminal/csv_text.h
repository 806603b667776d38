// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// A text as a field of CSV (RFC 4180), in quotes.
inline std::string csvText(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    quoted += c == '"' ? "\"\"" : std::string(1, c);
  }
  return quoted + "\"";
}

}  // namespace tarnwick
