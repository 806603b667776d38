// SPDX-License-Identifier: MIT
// The fuzzer of one target; the build names it.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "fuzz/all_targets.h"

extern const char* const kFuzzTarget;

namespace {

tarnwick::testing::FuzzEntry entryOf(std::string_view name) {
  for (const tarnwick::testing::FuzzTarget& target : tarnwick::testing::allFuzzTargets()) {
    if (target.name == name) {
      return target.entry;
    }
  }
  std::abort();  // a folder of inputs without an entry
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const tarnwick::testing::FuzzEntry entry = entryOf(kFuzzTarget);
  // A fuzzer hands its bytes over as unsigned ones.
  entry({reinterpret_cast<const char*>(data), size});
  return 0;
}
