// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "fuzz/entries/fuzz_target.h"

namespace tarnwick::testing {

// Any text for a form becomes letters, digits and codes in percent, of which it can be got back.
void fuzzUrlEncode(std::string_view input);
// Any text is refused, or gives an address that names one host, can stand in a request, and means itself.
void fuzzAddress(std::string_view input);
// The header of any answer is judged as its fields, taken one by one, say.
void fuzzResponseHeader(std::string_view input);
// Any compressed answer is refused, or decoded to the same bytes in whatever pieces it comes, within its bounds; one
// that is cut is not complete. The first two bytes choose the compressions and the size of the pieces.
void fuzzContent(std::string_view input);

inline constexpr std::array<FuzzTarget, 4> kPageFuzzTargets{{{"url_encode", fuzzUrlEncode},
                                                             {"address", fuzzAddress},
                                                             {"response_header", fuzzResponseHeader},
                                                             {"content", fuzzContent}}};

}  // namespace tarnwick::testing
