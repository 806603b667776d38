// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarnwick {

/// How many characters a line of a help text has at most.
inline constexpr std::size_t kHelpWidth = 100;

/// A help text whose lines have at most `width` characters: a longer one goes on below the beginning of its last
/// column. An example stays one line, since it is there to be copied, and so does a word that is longer than that.
std::string wrappedHelp(std::string_view text, std::size_t width = kHelpWidth);

}  // namespace tarnwick
