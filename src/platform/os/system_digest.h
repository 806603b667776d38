// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tarnwick {

/// The SHA-256 digest as the cryptography of the system makes it; nothing where it makes none.
std::optional<std::array<unsigned char, 32>> systemSha256(std::string_view bytes);

}  // namespace tarnwick
