// SPDX-License-Identifier: MIT
#include "page_rules/page_judge.h"

#include <optional>
#include <stdexcept>
#include <utility>

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

bool liesAt(std::string_view baseline, const Hole& hole) {
  return hole.begin >= hole.before.size() && hole.begin <= baseline.size() &&
         hole.length <= baseline.size() - hole.begin && baseline.substr(0, hole.begin).ends_with(hole.before) &&
         baseline.substr(hole.end()).starts_with(hole.after);
}

std::string remarkOn(const Holes& lost) {
  return lost.empty() ? std::string()
                      : "Of the places that may vary " + std::to_string(lost.size()) +
                            (lost.size() == 1 ? " is" : " are") + " not in the baseline any more.";
}

PageVerdict judgeWhole(const std::string& baseline, const std::string& page, const Holes& holes) {
  const Judgement judged = judge(baseline, holes, page);
  return {judged.same, judged.baselineAt, judged.pageAt};
}

PageVerdict judgeByRules(const std::string& before, const std::string& now, const std::vector<PageRule>& rules,
                         const Holes& holes) {
  if (rules.empty()) {
    return judgeWhole(before, now, holes);
  }
  try {
    const CutPage cutBefore = cut(before, rules);
    const CutPage cutNow = cut(now, rules);
    PageVerdict verdict = judgeWhole(cutBefore.text, cutNow.text, holesLeft(cutBefore, holes));
    verdict.baselineAt = cutBefore.inPage(verdict.baselineAt);
    verdict.pageAt = cutNow.inPage(verdict.pageAt);
    verdict.remark = remarkOn(cutNow, rules);
    return verdict;
  } catch (const std::runtime_error& fault) {
    PageVerdict verdict = judgeWhole(before, now, holes);
    verdict.remark = fault.what();
    return verdict;
  }
}

/// The page with the baseline's parts between what is kept of it; nothing when as many parts are not kept of both.
std::optional<std::string> withPartsOf(const CutPage& cutBefore, std::string_view before, const CutPage& cutNow,
                                       std::string_view now) {
  if (cutBefore.kept.size() != cutNow.kept.size()) {
    return std::nullopt;
  }
  std::string text;
  std::size_t at = 0;
  for (std::size_t i = 0; i < cutNow.kept.size(); ++i) {
    const ByteRange& kept = cutNow.kept[i];
    text += before.substr(at, cutBefore.kept[i].begin - at);
    text += now.substr(kept.begin, kept.end - kept.begin);
    at = cutBefore.kept[i].end;
  }
  text += before.substr(at);
  return text;
}

}  // namespace

PlacedHoles holesOf(std::string_view baseline, const Holes& holes) {
  std::size_t from = 0;
  for (const Hole& hole : holes) {
    if (hole.begin < from || !liesAt(baseline, hole)) {
      return placeIn(baseline, holes);
    }
    from = hole.end();
  }
  return {holes, {}};
}

std::string withoutVariation(std::string_view baseline, const Holes& holes, std::string_view page) {
  std::string text;
  std::size_t at = 0;
  const Holes found = placeIn(page, holes).placed;
  auto there = found.begin();
  for (const Hole& hole : holes) {
    if (there == found.end() || there->before != hole.before || there->after != hole.after) {
      continue;
    }
    text += page.substr(at, there->begin - at);
    text += baseline.substr(hole.begin, hole.length);
    at = there->end();
    ++there;
  }
  text += page.substr(at);
  return text;
}

ShownPages shownDifference(const std::string& baseline, const std::string& page, const RuleSet& set) {
  const Holes holes = holesOf(baseline, set.holes).placed;
  ShownPages shown{baseline, page};
  Holes left = holes;
  try {
    if (!set.rules.empty()) {
      CutPage cutBefore = cut(baseline, set.rules);
      CutPage cutNow = cut(page, set.rules);
      if (auto whole = withPartsOf(cutBefore, baseline, cutNow, page)) {
        shown.now = std::move(*whole);
      } else {
        left = holesLeft(cutBefore, holes);
        shown = {std::move(cutBefore.text), std::move(cutNow.text)};
      }
    }
  } catch (const std::runtime_error&) {
    // As it is judged.
  }
  shown.now = withoutVariation(shown.before, left, shown.now);
  return shown;
}

PageVerdict judgePage(std::string_view baseline, std::string_view page, const RuleSet& set) {
  const std::string before = pageText(baseline);
  const std::string now = pageText(page);
  const PlacedHoles holes = holesOf(before, set.holes);
  PageVerdict verdict = judgeByRules(before, now, set.rules, holes.placed);
  verdict.same = verdict.same || before == now;
  const std::string lost = remarkOn(holes.lost);
  verdict.remark += (verdict.remark.empty() || lost.empty() ? "" : " ") + lost;
  return verdict;
}

}  // namespace tarnwick
