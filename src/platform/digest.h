// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// The SHA-256 digest of some bytes (FIPS 180-4), as 64 hexadecimal digits in small letters. Raises std::runtime_error
/// where the system has none to offer.
std::string sha256(std::string_view bytes);

}  // namespace tarnwick
