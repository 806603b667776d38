// SPDX-License-Identifier: MIT
#include "cli/verbs/page_diff.h"

#include <ostream>

#include "cli/terminal/json_output.h"
#include "difference/unified_diff.h"
#include "holes/page_text.h"
#include "page_rules/page_judge.h"

namespace tarnwick {
namespace {

void printDiffLine(Console& console, const DiffLine& line) {
  using enum Console::Colour;
  const Console::Colour colour = line.mark == '-' ? red : line.mark == '+' ? green : line.mark == '@' ? cyan : plain;
  // A hunk's head brings its marks along; on a terminal nothing of a page may act on it.
  const std::string mark = line.mark == '@' ? "" : std::string(1, line.mark);
  console.out() << console.coloured(colour, mark + console.shown(line.text)) << '\n';
}

/// What is to be shown of the difference by the rules of the site. Pages in UTF-16 are shown as they are.
ShownPages shownPages(const PagesOfSite& pages) {
  const bool isText = pageText(pages.baseline) == pages.baseline && pageText(pages.page) == pages.page;
  return isText && !pages.rules.empty() ? shownDifference(pages.baseline, pages.page, pages.rules)
                                        : ShownPages{pages.baseline, pages.page};
}

}  // namespace

void printDifference(Console& console, const PagesOfSite& pages) {
  const std::string id = std::to_string(pages.idSite);
  const ShownPages shown = shownPages(pages);
  console.out() << console.coloured(Console::Colour::bold, console.worded("--- baseline of site " + id)) << '\n'
                << console.coloured(Console::Colour::bold, console.worded("+++ latest page of site " + id)) << '\n';
  unifiedDiff(shown.before, shown.now, [&](const DiffLine& line) { printDiffLine(console, line); });
}

JsonValue differenceJson(const PagesOfSite& pages) {
  const ShownPages shown = shownPages(pages);
  JsonValue lines = JsonValue::array();
  unifiedDiff(shown.before, shown.now, [&](const DiffLine& line) {
    lines.add(jsonText(std::string(line.mark == '@' ? "" : std::string(1, line.mark)) + std::string(line.text)));
  });
  return lines;
}

}  // namespace tarnwick
