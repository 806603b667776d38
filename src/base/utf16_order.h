// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace tarnwick {

/// Where the high bytes of a page in UTF-16 stand: 0 in big endian, 1 in little endian. Nothing for a page that is
/// none: it is known by its byte order mark, or by every second byte of its beginning being zero.
std::optional<std::size_t> utf16HighBytes(std::string_view page);

}  // namespace tarnwick
