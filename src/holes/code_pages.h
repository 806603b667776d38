// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// What a word may be in UTF-8 that is in one of the codes of Europe with a byte for each letter; none where one of its
/// bytes is no letter in any of them.
std::vector<std::string> readingsOf(std::string_view word);

/// The codes of East Asia with two bytes for each character: Shift-JIS, EUC-JP, GBK, Big5, EUC-KR.
inline constexpr std::size_t kEastAsianCodes = 5;
/// The character at the beginning of the text in that code, if it is one of those that dates are written with.
std::optional<char32_t> eastAsianAt(std::string_view text, std::size_t code);

}  // namespace tarnwick
