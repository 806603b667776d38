// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarnwick {

/// What differs first of two texts, as the lines of a unified diff for people to read: at most `mostLines`, long ones
/// cut, and "..." at the end where something is left out. Bytes that are no UTF-8 are taken for Windows-1252, and what
/// would break a line or move a cursor is written as an escape. Empty when they are equal.
///
/// It looks at the neighbourhood of the first difference alone, so that large pages cost no more than their comparison.
std::string shortDifference(std::string_view before, std::string_view after, std::size_t mostLines);

}  // namespace tarnwick
