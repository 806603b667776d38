// SPDX-License-Identifier: MIT
#include "engine/cause.h"

#include <algorithm>

#include "base/text.h"
#include "base/visible_text.h"
#include "difference/first_difference.h"
#include "holes/page_text.h"
#include "page_rules/page_judge.h"

namespace tarnwick {
namespace {

constexpr std::size_t kExcerpt = 48;
constexpr std::size_t kBeforeDifference = 16;

// What a line holds around its byte `at`: a page may be one line of many thousand characters.
std::string excerpt(std::string_view line, std::size_t at) {
  std::size_t begin = at > kBeforeDifference ? at - kBeforeDifference : 0;
  while (begin > 0 && begin < line.size() && continuesCharacter(line[begin])) {
    --begin;  // not in the middle of a character
  }
  line.remove_prefix(std::min(begin, line.size()));
  return (begin > 0 ? "\"..." : "\"") + visibleText(line, kExcerpt) + "\"";
}

std::string behindRemark(const std::string& cause, std::string_view remark) {
  return remark.empty() ? cause : cause + " (" + std::string(remark) + ")";
}

std::string causeByRules(const CheckResult& failed, std::string_view baseline, const RuleSet& rules) {
  const PageVerdict verdict = judgePage(baseline, failed.page, rules);
  if (verdict.same) {
    return "the baseline was changed meanwhile";
  }
  const std::string before = pageText(baseline);
  const std::string now = pageText(failed.page);
  const LineOfText expected = lineAt(before, verdict.baselineAt);
  const LineOfText found = lineAt(now, verdict.pageAt);
  return behindRemark("line " + std::to_string(expected.number) + ": expected " +
                          excerpt(expected.text, expected.column) + ", found " + excerpt(found.text, found.column),
                      verdict.remark);
}

}  // namespace

std::string causeOf(const CheckResult& failed, std::string_view baseline, const RuleSet& rules) {
  if (failed.errCode != 0 || !failed.errDescription.empty()) {
    return visibleText(failed.errDescription);
  }
  if (baseline.empty()) {
    return failed.remark.empty() ? "there is no baseline yet" : std::string(failed.remark);
  }
  if (!rules.empty()) {
    return causeByRules(failed, baseline, rules);
  }
  const FirstDifference difference = firstDifference(baseline, failed.page);
  if (difference.line == 0) {
    return "the baseline was changed meanwhile";
  }
  const std::size_t column = commonBytes(difference.before, difference.after);
  const std::string line = "line " + std::to_string(difference.line);
  if (difference.before == difference.after) {
    return line + ": the page " + (baseline.size() < failed.page.size() ? "goes on behind" : "ends with") +
           " this line, the baseline " + (baseline.size() < failed.page.size() ? "ends with it" : "goes on");
  }
  return line + ": expected " + excerpt(difference.before, column) + ", found " + excerpt(difference.after, column);
}

std::size_t lineOfDifference(std::string_view baseline, std::string_view page, const RuleSet& rules) {
  if (rules.empty()) {
    return firstDifference(baseline, page).line;
  }
  const PageVerdict verdict = judgePage(baseline, page, rules);
  return verdict.same ? 0 : lineAt(pageText(baseline), verdict.baselineAt).number;
}

bool hasFailureAsBaseline(const CheckResult& result) {
  return result.passed && (result.errCode != 0 || !result.errDescription.empty());
}

std::string noteOf(const CheckResult& passed) {
  return hasFailureAsBaseline(passed)
             ? "the fetch fails, and its text is the baseline: " + visibleText(passed.errDescription)
             : std::string(passed.remark);
}

}  // namespace tarnwick
