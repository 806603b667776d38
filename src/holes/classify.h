// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

#include "holes/hole.h"

namespace tarnwick {

/// The smallest class that explains the values that were seen at one place, with the room that it implies: a counter
/// grows, words have other lengths, a key of 32 digits has always as many. `isBinary` of a page that is no text.
Hole classified(std::span<const std::string_view> values, bool isBinary);

}  // namespace tarnwick
