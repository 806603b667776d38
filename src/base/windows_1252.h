// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

/// The character of a Windows-1252 code.
char32_t characterOfWindows1252(unsigned char code);

/// The Windows-1252 code of a character; nothing when the set does not have it.
std::optional<char> windows1252CodeOf(char32_t character);

/// The text's characters as codes of the Windows-1252 character set, one byte each. `text` is taken as UTF-8 when the
/// whole of it is valid, a character outside Windows-1252 becoming "?"; otherwise its bytes are codes already.
/// Mapping: the WHATWG Encoding Standard's windows-1252 index (the five unassigned codes map to C1 controls).
std::string toWindows1252(std::string_view text);

}  // namespace tarnwick
