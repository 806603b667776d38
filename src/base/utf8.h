#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace tarnwick {

/// How many bytes the first character of a UTF-8 text has, from 1 to 4; nothing when the text is empty or does not
/// begin with a well-formed character. Source: the Unicode Standard, table 3-7.
std::optional<std::size_t> utf8Length(std::string_view text);

/// Whether the whole text is well-formed UTF-8.
bool isUtf8(std::string_view text);

}  // namespace tarnwick
