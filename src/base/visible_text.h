// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// Bytes as they may be shown in a line of text: what would move the cursor, change the terminal or break the line is
/// written as an escape like "\n" or "\x1b", and so are bytes that are no UTF-8. Cut to `longest` characters.
std::string visibleText(std::string_view bytes, std::size_t longest = std::string_view::npos);

/// Whether a terminal may obey the character instead of showing it: a control character, also one above 0x7f, or one
/// that reorders text.
bool movesTheCursor(char32_t character);

}  // namespace tarnwick
