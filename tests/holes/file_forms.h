// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// What compressed files and pictures consist of. The tests of the rooms that need no libraries make theirs without
/// one.
namespace tarnwick::generated {

std::uint32_t crc32(std::string_view bytes);
/// The fixed code of RFC 1951, each byte for itself: larger than others make it, and read by all.
std::string deflated(std::string_view bytes);
/// The same between the head and the sum of RFC 1950.
std::string zlibStream(std::string_view bytes);
std::string bigEndian(std::uint32_t number);
std::string littleEndian(std::uint32_t number);

}  // namespace tarnwick::generated
