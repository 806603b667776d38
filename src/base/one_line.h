// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// What ends a line, or a text, for one who reads it.
inline constexpr std::string_view kLineEnds{"\r\n\0", 3};

/// Whether another would take `text` for more than one line.
inline bool hasLineEnd(std::string_view text) { return text.find_first_of(kLineEnds) != std::string_view::npos; }

/// `text` without its line ends and NUL bytes.
inline std::string oneLine(std::string text) {
  std::erase_if(text, [](char c) { return kLineEnds.find(c) != std::string_view::npos; });
  return text;
}

}  // namespace tarnwick
