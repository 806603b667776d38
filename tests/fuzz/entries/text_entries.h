// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "fuzz/entries/fuzz_target.h"

namespace tarnwick::testing {

// Any bytes are shown as characters that a terminal only shows, and never more of them than asked for.
void fuzzVisibleText(std::string_view input);
// The two readers of UTF-8 agree on every character.
void fuzzUtf8(std::string_view input);
// A diff turns the first text into the second, and back.
void fuzzUnifiedDiff(std::string_view input);
// Any text is refused or names a moment; one that is written out names itself.
void fuzzMoment(std::string_view input);

inline constexpr std::array<FuzzTarget, 4> kTextFuzzTargets{
    {{"visible_text", fuzzVisibleText}, {"utf8", fuzzUtf8}, {"unified_diff", fuzzUnifiedDiff}, {"moment", fuzzMoment}}};

}  // namespace tarnwick::testing
