// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "fuzz/entries/fuzz_target.h"

namespace tarnwick::testing {

/// Copies of a page in pieces: what is learnt explains them.
void fuzzHolesLearn(std::string_view input);
/// A hole in words, a baseline and a page in pieces.
void fuzzHolesJudge(std::string_view input);
/// A hole in words: it is stored as what it was read from says.
void fuzzHoleText(std::string_view input);

inline constexpr std::array<FuzzTarget, 3> kHoleFuzzTargets{
    {{"holes_learn", fuzzHolesLearn}, {"holes_judge", fuzzHolesJudge}, {"hole_text", fuzzHoleText}}};

}  // namespace tarnwick::testing
