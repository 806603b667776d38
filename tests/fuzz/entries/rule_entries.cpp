// SPDX-License-Identifier: MIT
#include "fuzz/entries/rule_entries.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "holes/page_rule.h"
#include "holes/page_text.h"
#include "page_rules/cut_page.h"
#include "page_rules/found_ranges.h"
#include "page_rules/page_judge.h"

namespace tarnwick::testing {
namespace {

using Language = PageRule::Language;
using Ranges = std::vector<ByteRange>;

/// Nothing for a rule that is refused.
std::optional<Ranges> whatIsFound(const PageRule& rule, std::string_view page) {
  try {
    return foundBy(rule, page);
  } catch (const std::runtime_error&) {
    return std::nullopt;
  }
}

void requireOrder(const Ranges& ranges, std::string_view page) {
  for (std::size_t i = 0; i < ranges.size(); ++i) {
    require(ranges[i].begin < ranges[i].end && ranges[i].end <= page.size(), "what is found is empty or outside");
    require(i == 0 || ranges[i - 1].end < ranges[i].begin, "what is found touches");
  }
}

/// What it finds, tried in every way.
Ranges tried(Language language, std::string_view& input) {
  const PageRule rule{PageRule::Use::leaveOut, language, std::string(takePiece(input))};
  const auto found = whatIsFound(rule, input);
  require(found.has_value() == whatIsFound(rule, {}).has_value(), "whether a rule is understood depends on the page");
  require(found == whatIsFound(rule, input), "a rule finds another thing the second time");
  if (found) {
    requireOrder(*found, input);
  }
  return found.value_or(Ranges{});
}

void tryElements(Language language, std::string_view input) {
  for (const ByteRange& range : tried(language, input)) {
    require(input[range.begin] == '<', "an element begins with something else than its tag");
  }
}

}  // namespace

void fuzzRegexRule(std::string_view input) { tried(Language::regex, input); }
void fuzzCssRule(std::string_view input) { tryElements(Language::css, input); }
void fuzzXPathRule(std::string_view input) { tryElements(Language::xpath, input); }

void fuzzJsonRule(std::string_view input) {
  for (const ByteRange& range : tried(Language::json, input)) {
    const std::string_view value = input.substr(range.begin, range.end - range.begin);
    require(std::string_view(" \t\r\n").find(value.front()) == std::string_view::npos &&
                std::string_view(" \t\r\n").find(value.back()) == std::string_view::npos,
            "a value has blanks around it");
  }
}

void fuzzLineRule(std::string_view input) {
  for (const ByteRange& range : tried(Language::lines, input)) {
    require(range.begin == 0 || input[range.begin - 1] == '\n', "it begins within a line");
    require(range.end == input.size() || input[range.end - 1] == '\n', "it ends within a line");
  }
}

void fuzzRulesJudge(std::string_view input) {
  RuleSet set;
  std::string_view words = takePiece(input);
  while (!words.empty()) {
    const std::size_t end = words.find('\n');
    addLine(set, words.substr(0, end));
    words.remove_prefix(end == std::string_view::npos ? words.size() : end + 1);
  }
  std::erase_if(set.rules, [](const PageRule& rule) { return !whatIsFound(rule, {}); });
  const std::string_view baseline = takePiece(input);
  const std::string before = pageText(baseline);
  const std::string now = pageText(input);
  const CutPage left = cut(now, set.rules);
  requireOrder(left.kept, now);
  std::size_t length = left.kept.empty() ? 0 : left.gap * (left.kept.size() - 1);
  for (const ByteRange& kept : left.kept) {
    length += kept.end - kept.begin;
  }
  require(length == left.text.size(), "what is left is not what was kept");
  require(judgePage(input, input, set).same, "a page differs from itself");
  const PageVerdict verdict = judgePage(baseline, input, set);
  require(!set.empty() || verdict.same == (before == now), "without rules not every byte counts");
  require(verdict.same || (verdict.baselineAt <= before.size() && verdict.pageAt <= now.size()),
          "the difference is outside");
}

}  // namespace tarnwick::testing
