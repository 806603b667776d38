// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace tarnwick {

/// Bytes of a page, from `begin` up to `end`.
struct ByteSpan {
  std::size_t begin = 0;
  std::size_t end = 0;

  std::size_t size() const { return end - begin; }
  bool empty() const { return begin == end; }
  std::string_view of(std::string_view page) const { return page.substr(begin, size()); }
  bool operator==(const ByteSpan&) const = default;
};

/// In their order; none touches another.
using ByteSpans = std::vector<ByteSpan>;

/// Adds a range behind the others: one that touches the last makes it longer, and an empty one is none.
void append(ByteSpans& ranges, ByteSpan range);

/// How many bytes two texts have in common at their end.
std::size_t commonBytesAtEnd(std::string_view one, std::string_view other);

}  // namespace tarnwick
