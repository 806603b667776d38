// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <iterator>

namespace tarnwick {

/// Walks over a text and counts its lines, for a parser that tells none.
class LineCounter {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = const char&;

  LineCounter(const char* at, std::size_t& line) : at_(at), line_(&line) {}
  reference operator*() const { return *at_; }
  LineCounter& operator++() {
    *line_ += *at_ == '\n' ? 1 : 0;
    ++at_;
    return *this;
  }
  bool operator==(const LineCounter& other) const { return at_ == other.at_; }

 private:
  const char* at_;
  std::size_t* line_;
};

}  // namespace tarnwick
