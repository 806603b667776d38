// SPDX-License-Identifier: MIT
#include <simdjson.h>

#include <algorithm>
#include <cstddef>

#include "page_rules/languages.h"

namespace tarnwick {
namespace {

/// A value is looked up by going as deep as it lies; deeper ones than these are in no page that people write.
constexpr std::ptrdiff_t kMostSteps = 1000;

void checkPointer(const std::string& pointer) {
  if (!pointer.empty() && pointer.front() != '/') {
    throw RuleFault{"A pointer begins with a slash, as /items/0/price."};
  }
  for (std::size_t at = pointer.find('~'); at != std::string::npos; at = pointer.find('~', at + 1)) {
    if (at + 1 >= pointer.size() || (pointer[at + 1] != '0' && pointer[at + 1] != '1')) {
      throw RuleFault{"Write ~0 for ~ and ~1 for a slash within a name."};
    }
  }
}

}  // namespace

std::vector<ByteRange> foundByPointer(const std::string& rule, std::string_view page) {
  checkPointer(rule);
  if (std::ranges::count(rule, '/') > kMostSteps) {
    return {};
  }
  const simdjson::padded_string padded(page);
  simdjson::ondemand::parser parser;
  simdjson::ondemand::document document;
  if (parser.iterate(padded).get(document) != simdjson::SUCCESS) {
    return {};
  }
  std::string_view text;
  const auto rangeOf = [&] {
    const auto begin = static_cast<std::size_t>(text.data() - padded.data());
    std::size_t length = text.size();
    while (length > 0 && std::string_view(" \t\r\n").find(text[length - 1]) != std::string_view::npos) {
      --length;
    }
    return std::vector<ByteRange>{{begin, begin + length}};
  };
  if (rule.empty()) {
    return simdjson::to_json_string(document).get(text) == simdjson::SUCCESS ? rangeOf() : std::vector<ByteRange>{};
  }
  simdjson::ondemand::value value;
  if (document.at_pointer(rule).get(value) != simdjson::SUCCESS ||
      simdjson::to_json_string(value).get(text) != simdjson::SUCCESS) {
    return {};
  }
  return rangeOf();
}

}  // namespace tarnwick
