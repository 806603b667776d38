// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "fuzz/entries/fuzz_target.h"

namespace tarnwick::testing {

// Beside what must hold, every decoder may answer with a DecodeError.
void fuzzDecodeRec(std::string_view input);
void fuzzDecodeStream(std::string_view input);
void fuzzDecodeFile(std::string_view input);
void fuzzPartOrder(std::string_view input);
void fuzzMimeDecodeStream(std::string_view input);
void fuzzHeaderInfo(std::string_view input);
void fuzzRoundTrip(std::string_view input);

inline constexpr std::array<FuzzTarget, 7> kUuFuzzTargets{{{"decode_rec", fuzzDecodeRec},
                                                           {"decode_stream", fuzzDecodeStream},
                                                           {"decode_file", fuzzDecodeFile},
                                                           {"part_order", fuzzPartOrder},
                                                           {"mime_decode_stream", fuzzMimeDecodeStream},
                                                           {"header_info", fuzzHeaderInfo},
                                                           {"round_trip", fuzzRoundTrip}}};

}  // namespace tarnwick::testing
