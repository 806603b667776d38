#pragma once

#include <array>
#include <string_view>

namespace tarnwick::testing {

/// What a fuzzer feeds with any bytes: nothing may happen but a result or a DecodeError. What must hold besides is
/// checked, and raises std::logic_error when it does not.
using FuzzEntry = void (*)(std::string_view input);

void fuzzDecodeRec(std::string_view input);
void fuzzDecodeStream(std::string_view input);
void fuzzDecodeFile(std::string_view input);
void fuzzPartOrder(std::string_view input);
void fuzzMimeDecodeStream(std::string_view input);
void fuzzHeaderInfo(std::string_view input);
void fuzzRoundTrip(std::string_view input);

struct FuzzTarget {
  /// The folder of its inputs under tests/fuzz/corpus.
  std::string_view name;
  FuzzEntry entry;
};

inline constexpr std::array<FuzzTarget, 7> kUuFuzzTargets{{{"decode_rec", fuzzDecodeRec},
                                                           {"decode_stream", fuzzDecodeStream},
                                                           {"decode_file", fuzzDecodeFile},
                                                           {"part_order", fuzzPartOrder},
                                                           {"mime_decode_stream", fuzzMimeDecodeStream},
                                                           {"header_info", fuzzHeaderInfo},
                                                           {"round_trip", fuzzRoundTrip}}};

}  // namespace tarnwick::testing
