// SPDX-License-Identifier: MIT
#include "difference/byte_span.h"

#include <algorithm>

namespace tarnwick {

void append(ByteSpans& ranges, ByteSpan range) {
  if (range.empty()) {
    return;
  }
  if (!ranges.empty() && ranges.back().end == range.begin) {
    ranges.back().end = range.end;
  } else {
    ranges.push_back(range);
  }
}

std::size_t commonBytesAtEnd(std::string_view one, std::string_view other) {
  // Block by block, which is many times faster than byte by byte: pages may be large.
  constexpr std::size_t kBlock = std::size_t{1} << 16U;
  const std::size_t shorter = std::min(one.size(), other.size());
  std::size_t same = 0;
  while (same + kBlock <= shorter &&
         one.substr(one.size() - same - kBlock, kBlock) == other.substr(other.size() - same - kBlock, kBlock)) {
    same += kBlock;
  }
  while (same < shorter && one[one.size() - same - 1] == other[other.size() - same - 1]) {
    ++same;
  }
  return same;
}

}  // namespace tarnwick
