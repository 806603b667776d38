// SPDX-License-Identifier: MIT
#include "fuzz/entries/hole_entries.h"

#include <algorithm>
#include <string>
#include <vector>

#include "holes/hole_values.h"
#include "holes/judge.h"
#include "holes/learn.h"
#include "holes/page_rule.h"
#include "holes/page_text.h"

namespace tarnwick::testing {
namespace {

constexpr std::size_t kMostCopies = 5;
constexpr std::size_t kLongest = 4096;

void requireOrder(const Holes& holes, std::string_view baseline) {
  std::size_t last = 0;
  for (const Hole& hole : holes) {
    require(hole.begin >= last && hole.end() <= baseline.size(), "the holes are out of order");
    last = hole.end();
  }
}

}  // namespace

void fuzzHolesLearn(std::string_view input) {
  std::vector<std::string> copies;
  while (copies.size() < kMostCopies && (!input.empty() || copies.size() < 2)) {
    copies.push_back(pageText(takePiece(input, kLongest)));
  }
  const Lesson lesson = learn(copies, *parseDateTime("2026-11-22 18:40:10"));
  requireOrder(lesson.holes, copies.front());
  for (const std::string& copy : copies) {
    require(judge(copies.front(), lesson.holes, copy).same, "what was learnt does not explain a copy");
  }
}

void fuzzHolesJudge(std::string_view input) {
  const auto hole = holeOfText(takePiece(input, kLongest));
  const std::string baseline(takePiece(input, kLongest));
  const std::string page(takePiece(input, kLongest));
  const bool isExact = judge(baseline, {}, page).same == (baseline == page);
  require(isExact, "a page without holes is not compared byte for byte");
  if (!hole || hole->begin > baseline.size() || hole->length > baseline.size() - hole->begin) {
    return;
  }
  const Judgement judged = judge(baseline, {*hole}, page);
  if (judged.same) {
    const Judgement::Part part = judged.values.front();
    const std::string rest = page.substr(0, part.begin) + page.substr(part.begin + part.length);
    require(rest == baseline.substr(0, hole->begin) + baseline.substr(hole->end()), "a byte outside the hole differs");
    require(fits(*hole, std::string_view(page).substr(part.begin, part.length)),
            "what stands in the hole does not fit");
  } else {
    require(judged.baselineAt <= baseline.size() && judged.pageAt <= page.size(), "the difference is outside");
  }
}

void fuzzHoleText(std::string_view input) {
  const auto hole = holeOfText(input);
  if (!hole) {
    return;
  }
  const std::string stored = holeText(*hole);
  const auto again = holeOfText(stored);
  require(again == hole, "a stored hole is another one");
  require(holeText(*again) == stored, "a stored hole is written in another way");
}

}  // namespace tarnwick::testing
