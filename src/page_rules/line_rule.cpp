// SPDX-License-Identifier: MIT
#include <charconv>

#include "base/text.h"
#include "page_rules/languages.h"

namespace tarnwick {
namespace {

std::size_t numberOf(std::string_view text) {
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || number == 0) {
    throw RuleFault{"Write numbers of lines from 1 on, as 3, 3-7 or 12-."};
  }
  return number;
}

}  // namespace

std::vector<ByteRange> foundByLines(const std::string& rule, std::string_view page) {
  const std::string_view text = trimmed(rule);
  const std::size_t dash = text.find('-');
  const std::size_t first = numberOf(trimmed(text.substr(0, dash)));
  const std::string_view behind = dash == std::string_view::npos ? text : trimmed(text.substr(dash + 1));
  const std::size_t last = behind.empty() ? std::string_view::npos : numberOf(behind);
  if (last < first) {
    throw RuleFault{"Its last line comes before its first."};
  }
  std::size_t line = 1;
  std::size_t begin = 0;
  for (; line < first && begin < page.size(); ++line) {
    const std::size_t feed = page.find('\n', begin);
    begin = feed == std::string_view::npos ? page.size() : feed + 1;
  }
  std::size_t end = begin;
  for (; line <= last && end < page.size(); ++line) {
    const std::size_t feed = page.find('\n', end);
    end = feed == std::string_view::npos ? page.size() : feed + 1;
  }
  return {{begin, end}};
}

}  // namespace tarnwick
