// SPDX-License-Identifier: MIT
#include "page_rules/found_ranges.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "base/visible_text.h"
#include "page_rules/languages.h"

namespace tarnwick {
namespace {

std::vector<ByteRange> found(const PageRule& rule, std::string_view page) {
  switch (rule.language) {
    case PageRule::Language::regex:
      return foundByRegex(rule.rule, page);
    case PageRule::Language::css:
      return foundByXPath(xpathOfCss(rule.rule), page);
    case PageRule::Language::xpath:
      return foundByXPath(rule.rule, page);
    case PageRule::Language::json:
      return foundByPointer(rule.rule, page);
    default:
      return foundByLines(rule.rule, page);
  }
}

// Elements may lie in one another.
std::vector<ByteRange> tidied(std::vector<ByteRange> ranges) {
  std::ranges::sort(ranges, {}, &ByteRange::begin);
  std::vector<ByteRange> tidy;
  for (const ByteRange& range : ranges) {
    if (range.begin >= range.end) {
      continue;
    }
    if (!tidy.empty() && range.begin <= tidy.back().end) {
      tidy.back().end = std::max(tidy.back().end, range.end);
    } else {
      tidy.push_back(range);
    }
  }
  return tidy;
}

}  // namespace

std::vector<ByteRange> foundBy(const PageRule& rule, std::string_view page) {
  try {
    return tidied(found(rule, page));
  } catch (const RuleFault& fault) {
    throw std::runtime_error("The rule \"" + visibleText(std::string(wordOf(rule.language)) + " " + rule.rule) +
                             "\" cannot be understood: " + fault.what);
  }
}

void checkRule(const PageRule& rule) { static_cast<void>(foundBy(rule, {})); }

}  // namespace tarnwick
