// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

#include "holes/hole.h"

namespace tarnwick {

/// Whether a byte may stand in a hole of that class. REQUIRES: one of hex, base64, letters, text.
bool isOfClass(HoleClass kind, char byte);

/// Whether the value, whole, is what may stand in the hole.
bool fits(const Hole& hole, std::string_view value);

/// Calls `isRight` with each length that what stands in the hole at the beginning of `text` may have, the likeliest
/// first, until it says true; returns that length, or npos. `next` is the byte that follows the hole in the baseline,
/// where there is one. Tries a single length wherever the classes leave no doubt. REQUIRES: another class than
/// `anything`.
std::size_t findLength(const Hole& hole, std::string_view text, const char* next,
                       const std::function<bool(std::size_t)>& isRight);

/// A number at the beginning of the text, as pages show them: digits in groups, a fraction behind a dot or comma.
struct NumberFound {
  std::size_t length = 0;
  std::size_t digits = 0;
};
/// `separators` are the marks that may stand between two digits (see `numbers.h`), and the signs, - and +, that may
/// stand before the first; besides, any of , . ' may divide thousands. A mark that begins with `stop` ends the number.
/// Nothing is found where there is none.
NumberFound numberAt(std::string_view text, std::string_view separators, const char* stop);

}  // namespace tarnwick
