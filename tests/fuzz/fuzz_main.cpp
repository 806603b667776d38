// One fuzzer for each entry; the build names the entry.

#include <cstddef>
#include <cstdint>

#include "fuzz/site_list_entries.h"
#include "fuzz/uu_entries.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // A fuzzer hands its bytes over as unsigned ones.
  tarnwick::testing::TARNWICK_FUZZ_ENTRY({reinterpret_cast<const char*>(data), size});
  return 0;
}
