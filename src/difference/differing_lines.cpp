// SPDX-License-Identifier: MIT
#include "difference/differing_lines.h"

#include <cstdint>
#include <utility>

#include "difference/numbering.h"
#include "difference/sequence_search.h"

namespace tarnwick {

LineMarks differingLines(const std::vector<std::string_view>& before, const std::vector<std::string_view>& after) {
  Numbering known;
  known.expect(before.size() + after.size());
  const auto numbersOf = [&](const std::vector<std::string_view>& lines) {
    SequenceSearch::Numbers numbers;
    numbers.reserve(lines.size());
    for (const std::string_view line : lines) {
      numbers.push_back(known.of(line));
    }
    return numbers;
  };
  SequenceSearch::Numbers first = numbersOf(before);
  SequenceSearch search(std::move(first), numbersOf(after), kMostDifferingLines);
  search.step([] { return false; });
  return {std::move(search.removed()), std::move(search.added())};
}

}  // namespace tarnwick
