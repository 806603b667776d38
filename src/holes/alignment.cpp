// SPDX-License-Identifier: MIT
#include "holes/alignment.h"

#include <algorithm>
#include <cstdint>
#include <unordered_map>

#include "base/text.h"

namespace tarnwick {
namespace {

/// The largest table that two short rows of tokens are compared in.
constexpr std::size_t kLargestTable = std::size_t{1} << 18U;
constexpr int kDeepest = 64;
/// How many tokens are looked at for all of two texts, and how many cells of a table count for one.
constexpr std::size_t kMostLooks = 6'000'000;
constexpr std::size_t kCellsOfALook = 8;

bool isWordPart(char c) { return isLetter(c) || isDigit(c) || c == '_' || static_cast<unsigned char>(c) >= 0x80; }

/// A number ends where words without blanks between them go on.
bool partsWord(char one, char other) {
  const auto isHigh = [](char c) { return static_cast<unsigned char>(c) >= 0x80; };
  return (isDigit(one) && isHigh(other)) || (isHigh(one) && isDigit(other));
}

std::size_t lineLength(std::string_view text) {
  return std::min(text.size(), text.find('\n')) + (text.find('\n') != std::string_view::npos ? 1U : 0U);
}

std::size_t tokenLength(std::string_view text) {
  const auto run = [&](auto test) {
    std::size_t length = 0;
    while (length < text.size() && test(text[length]) && (length == 0 || !partsWord(text[length - 1], text[length]))) {
      ++length;
    }
    return length;
  };
  const std::size_t word = run(isWordPart);
  const std::size_t blanks =
      word > 0 ? word : run([](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; });
  return std::max<std::size_t>(blanks, 1);
}

/// How often a token stands in a part of the two texts, and where.
struct Seen {
  std::uint32_t inOne = 0;
  std::uint32_t inOther = 0;
  std::size_t otherAt = 0;
};
struct Kinds {
  std::vector<Seen> seen;  ///< by the tokens' numbers; all as if never seen between two looks
};

/// Tokens of one text by the numbers that equal ones share, and where they begin.
struct Tokens {
  std::vector<std::uint32_t> ids;
  std::vector<std::size_t> begins;  ///< one more than there are tokens
  Kinds* kinds = nullptr;
};

class Aligner {
 public:
  Aligner(std::string_view one, std::string_view other) : one_(one), other_(other) {}

  std::vector<EqualStretch> aligned() {
    alignBy(lineLength, 0, one_.size(), 0, other_.size());
    return std::move(found_);
  }

 private:
  using Length = std::size_t (*)(std::string_view);
  struct Range {
    std::size_t oneFrom, oneTo, otherFrom, otherTo;
  };

  void alignBy(Length length, std::size_t oneFrom, std::size_t oneTo, std::size_t otherFrom, std::size_t otherTo) {
    std::unordered_map<std::string_view, std::uint32_t> numbers;
    const auto split = [&](std::string_view text, std::size_t from, std::size_t to) {
      Tokens tokens;
      for (std::size_t at = from; at < to;) {
        const std::size_t size = length(text.substr(at, to - at));
        tokens.ids.push_back(
            numbers.try_emplace(text.substr(at, size), static_cast<std::uint32_t>(numbers.size())).first->second);
        tokens.begins.push_back(at);
        at += size;
      }
      tokens.begins.push_back(to);
      return tokens;
    };
    Tokens one = split(one_, oneFrom, oneTo);
    const Tokens other = split(other_, otherFrom, otherTo);
    Kinds kinds{std::vector<Seen>(numbers.size())};
    one.kinds = &kinds;
    const bool byLines = length == lineLength;
    alignRange(one, other, {0, one.ids.size(), 0, other.ids.size()}, byLines, 0);
  }

  void alignRange(const Tokens& one, const Tokens& other, Range range, bool byLines, int depth) {
    while (range.oneFrom < range.oneTo && range.otherFrom < range.otherTo &&
           one.ids[range.oneFrom] == other.ids[range.otherFrom]) {
      take(one, range.oneFrom++, other, range.otherFrom++);
    }
    std::size_t tail = 0;
    while (range.oneFrom < range.oneTo && range.otherFrom < range.otherTo &&
           one.ids[range.oneTo - 1] == other.ids[range.otherTo - 1]) {
      --range.oneTo;
      --range.otherTo;
      ++tail;
    }
    if (range.oneFrom < range.oneTo && range.otherFrom < range.otherTo) {
      const auto pairs = depth < kDeepest && maySpend(range.oneTo - range.oneFrom + range.otherTo - range.otherFrom)
                             ? uniquePairs(one, other, range)
                             : Pairs{};
      if (!pairs.empty()) {
        std::size_t oneFrom = range.oneFrom;
        std::size_t otherFrom = range.otherFrom;
        for (const auto& [i, j] : pairs) {
          alignRange(one, other, {oneFrom, i, otherFrom, j}, byLines, depth + 1);
          take(one, i, other, j);
          oneFrom = i + 1;
          otherFrom = j + 1;
        }
        alignRange(one, other, {oneFrom, range.oneTo, otherFrom, range.otherTo}, byLines, depth + 1);
      } else if (byLines) {
        alignBy(tokenLength, one.begins[range.oneFrom], one.begins[range.oneTo], other.begins[range.otherFrom],
                other.begins[range.otherTo]);
      } else {
        longestCommon(one, other, range);
      }
    }
    for (std::size_t i = 0; i < tail; ++i) {
      take(one, range.oneTo + i, other, range.otherTo + i);
    }
  }

  using Pairs = std::vector<std::pair<std::size_t, std::size_t>>;

  // What each of the two has once only, as far as it stands in the same order in both.
  Pairs uniquePairs(const Tokens& one, const Tokens& other, const Range& range) {
    std::vector<Seen>& seen = one.kinds->seen;
    for (std::size_t j = range.otherFrom; j < range.otherTo; ++j) {
      Seen& it = seen[other.ids[j]];
      ++it.inOther;
      it.otherAt = j;
    }
    for (std::size_t i = range.oneFrom; i < range.oneTo; ++i) {
      ++seen[one.ids[i]].inOne;
    }
    Pairs both;
    for (std::size_t i = range.oneFrom; i < range.oneTo; ++i) {
      const Seen& it = seen[one.ids[i]];
      if (it.inOne == 1 && it.inOther == 1) {
        both.emplace_back(i, it.otherAt);
      }
    }
    for (std::size_t i = range.oneFrom; i < range.oneTo; ++i) {
      seen[one.ids[i]] = {};
    }
    for (std::size_t j = range.otherFrom; j < range.otherTo; ++j) {
      seen[other.ids[j]] = {};
    }
    return longestRise(both);
  }

  // Patience sorting.
  static Pairs longestRise(const Pairs& pairs) {
    std::vector<std::size_t> tops;
    std::vector<std::size_t> before(pairs.size(), pairs.size());
    for (std::size_t i = 0; i < pairs.size(); ++i) {
      const auto pile =
          std::ranges::lower_bound(tops, pairs[i].second, {}, [&](std::size_t top) { return pairs[top].second; });
      if (pile != tops.begin()) {
        before[i] = *(pile - 1);
      }
      if (pile == tops.end()) {
        tops.push_back(i);
      } else {
        *pile = i;
      }
    }
    Pairs rise;
    for (std::size_t i = tops.empty() ? pairs.size() : tops.back(); i < pairs.size(); i = before[i]) {
      rise.push_back(pairs[i]);
    }
    std::ranges::reverse(rise);
    return rise;
  }

  void longestCommon(const Tokens& one, const Tokens& other, const Range& range) {
    const std::size_t rows = range.oneTo - range.oneFrom;
    const std::size_t columns = range.otherTo - range.otherFrom;
    if (rows * columns > kLargestTable || !maySpend(rows * columns / kCellsOfALook)) {
      return;
    }
    std::vector<std::uint32_t> table((rows + 1) * (columns + 1));
    const auto at = [&](std::size_t row, std::size_t column) -> std::uint32_t& {
      return table[row * (columns + 1) + column];
    };
    const auto equal = [&](std::size_t row, std::size_t column) {
      return one.ids[range.oneFrom + row] == other.ids[range.otherFrom + column];
    };
    for (std::size_t row = rows; row-- > 0;) {
      for (std::size_t column = columns; column-- > 0;) {
        at(row, column) =
            equal(row, column) ? at(row + 1, column + 1) + 1 : std::max(at(row + 1, column), at(row, column + 1));
      }
    }
    for (std::size_t row = 0, column = 0; row < rows && column < columns;) {
      if (equal(row, column)) {
        take(one, range.oneFrom + row++, other, range.otherFrom + column++);
      } else if (at(row + 1, column) >= at(row, column + 1)) {
        ++row;
      } else {
        ++column;
      }
    }
  }

  void take(const Tokens& one, std::size_t i, const Tokens& other, std::size_t j) {
    const EqualStretch next{one.begins[i], other.begins[j], one.begins[i + 1] - one.begins[i]};
    if (!found_.empty() && found_.back().one + found_.back().length == next.one &&
        found_.back().other + found_.back().length == next.other) {
      found_.back().length += next.length;
    } else {
      found_.push_back(next);
    }
  }

  /// Whether so many tokens may still be looked at: texts with little in common are not worth more.
  bool maySpend(std::size_t looks) {
    const bool may = looks <= looks_;
    looks_ -= may ? looks : 0;
    return may;
  }

  std::string_view one_;
  std::string_view other_;
  std::size_t looks_ = kMostLooks;
  std::vector<EqualStretch> found_;
};

}  // namespace

std::vector<EqualStretch> alignTexts(std::string_view one, std::string_view other) {
  return Aligner(one, other).aligned();
}

}  // namespace tarnwick
