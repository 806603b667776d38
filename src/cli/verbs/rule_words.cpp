// SPDX-License-Identifier: MIT
#include "cli/verbs/rule_words.h"

#include <cmath>

#include "base/visible_text.h"
#include "cli/terminal/json_output.h"
#include "cli/terminal/text_grid.h"
#include "difference/first_difference.h"
#include "holes/hole_words.h"

namespace tarnwick {
namespace {

constexpr std::size_t kShown = 40;

}  // namespace

std::string placeOf(std::string_view baseline, const Hole& hole) {
  return "line " + std::to_string(lineAt(baseline, hole.begin).number);
}

std::string percentText(double share) {
  // Never up to 100: what may vary is not watched, however little it is.
  constexpr double kRounding = 1e-9;
  const auto tenths = static_cast<int>(std::floor(share * 1000 + kRounding));
  return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

void printHoles(Console& console, std::string_view baseline, const Holes& holes, std::size_t first) {
  TextGrid grid({{"RULE", TextGrid::Align::right}, {"PLACE"}, {"WHAT MAY STAND THERE"}, {"IN THE BASELINE"}});
  for (const Hole& hole : holes) {
    grid.addRow({{std::to_string(first++)},
                 {console.worded(placeOf(baseline, hole))},
                 {console.worded(describe(hole))},
                 {visibleText(baseline.substr(hole.begin, hole.length), kShown)}});
  }
  grid.print(console);
}

JsonValue holesJson(std::string_view baseline, const Holes& holes) {
  JsonValue all = JsonValue::array();
  for (const Hole& hole : holes) {
    JsonValue choices = JsonValue::array();
    for (const std::string& choice : hole.choices) {
      choices.add(jsonText(choice));
    }
    all.add(JsonValue{{"line", lineAt(baseline, hole.begin).number},
                      {"begin", hole.begin},
                      {"length", hole.length},
                      {"class", std::string(holeWord(hole.kind))},
                      {"least", hole.least},
                      {"most", hole.most},
                      {"form", jsonText(hole.form)},
                      {"choices", std::move(choices)},
                      {"value", jsonText(std::string(baseline.substr(hole.begin, hole.length)))}});
  }
  return all;
}

}  // namespace tarnwick
