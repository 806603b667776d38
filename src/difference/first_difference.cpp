// SPDX-License-Identifier: MIT
#include "difference/first_difference.h"

#include <algorithm>

namespace tarnwick {

std::size_t commonBytes(std::string_view one, std::string_view other) {
  // Block by block, which is many times faster than byte by byte: pages may be large.
  constexpr std::size_t kBlock = std::size_t{1} << 16U;
  const std::size_t shorter = std::min(one.size(), other.size());
  std::size_t begin = 0;
  while (begin + kBlock <= shorter && one.substr(begin, kBlock) == other.substr(begin, kBlock)) {
    begin += kBlock;
  }
  const auto place = std::mismatch(one.begin() + static_cast<std::ptrdiff_t>(begin), one.end(),
                                   other.begin() + static_cast<std::ptrdiff_t>(begin), other.end());
  return static_cast<std::size_t>(place.first - one.begin());
}

LineOfText lineAt(std::string_view text, std::size_t at) {
  const std::string_view before = text.substr(0, at);
  const std::size_t feed = before.rfind('\n');
  const std::size_t begin = feed == std::string_view::npos ? 0 : feed + 1;
  text.remove_prefix(begin);
  return {static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n')) + 1, text.substr(0, text.find('\n')),
          before.size() - begin};
}

FirstDifference firstDifference(std::string_view before, std::string_view after) {
  if (before == after) {
    return {};
  }
  const std::size_t equal = commonBytes(before, after);
  const std::string_view same = before.substr(0, equal);
  const std::size_t feed = same.rfind('\n');
  const std::size_t begin = feed == std::string_view::npos ? 0 : feed + 1;
  const auto lineAt = [&](std::string_view text) {
    text.remove_prefix(std::min(begin, text.size()));
    return text.substr(0, text.find('\n'));
  };
  return {static_cast<std::size_t>(std::count(same.begin(), same.end(), '\n')) + 1, lineAt(before), lineAt(after)};
}

}  // namespace tarnwick
