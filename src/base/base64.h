// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// The bytes of a base64 text (RFC 4648, section 4). Line breaks, blanks and tabs may stand anywhere, and lines may
/// have any length (RFC 2045, section 6.8); after the padding nothing else follows. Raises DecodeError with the line
/// for any other character, and for a text whose last group is incomplete.
std::string decodeBase64(std::string_view text);

/// Bytes as base64 text (RFC 4648, section 4) with its padding, on one line.
std::string encodeBase64(std::string_view bytes);

}  // namespace tarnwick
