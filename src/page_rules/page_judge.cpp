// SPDX-License-Identifier: MIT
#include "page_rules/page_judge.h"

#include <stdexcept>

#include "base/visible_text.h"
#include "holes/judge.h"
#include "holes/page_text.h"
#include "page_rules/cut_page.h"

namespace tarnwick {
namespace {

std::string remarkOn(const CutPage& page, const std::vector<PageRule>& rules) {
  std::string remark;
  for (const std::size_t index : page.idle) {
    const PageRule& rule = rules[index];
    remark += remark.empty() ? "" : " ";
    remark += "Rule " + std::to_string(index + 1) + " (" + std::string(wordOf(rule.use)) + " " +
              std::string(wordOf(rule.language)) + " " + visibleText(rule.rule) + ") matches nothing on the page.";
  }
  return remark;
}

PageVerdict judgeWhole(const std::string& baseline, const std::string& page, const Holes& holes) {
  const Judgement judged = judge(baseline, holes, page);
  return {judged.same, judged.baselineAt, judged.pageAt};
}

}  // namespace

PageVerdict judgePage(std::string_view baseline, std::string_view page, const RuleSet& set) {
  const std::string before = pageText(baseline);
  const std::string now = pageText(page);
  if (set.rules.empty()) {
    return judgeWhole(before, now, set.holes);
  }
  try {
    const CutPage cutBefore = cut(before, set.rules);
    const CutPage cutNow = cut(now, set.rules);
    PageVerdict verdict = judgeWhole(cutBefore.text, cutNow.text, holesLeft(cutBefore, set.holes));
    verdict.baselineAt = cutBefore.inPage(verdict.baselineAt);
    verdict.pageAt = cutNow.inPage(verdict.pageAt);
    verdict.remark = remarkOn(cutNow, set.rules);
    return verdict;
  } catch (const std::runtime_error& fault) {
    PageVerdict verdict = judgeWhole(before, now, set.holes);
    verdict.remark = fault.what();
    return verdict;
  }
}

}  // namespace tarnwick
