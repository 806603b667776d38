// SPDX-License-Identifier: MIT
#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "cli/terminal/input_file.h"
#include "cli/terminal/json_output.h"
#include "cli/terminal/text_grid.h"
#include "cli/verbs/rule_words.h"
#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"
#include "difference/first_difference.h"
#include "holes/classify.h"
#include "holes/date_form.h"
#include "holes/page_text.h"
#include "page_rules/found_ranges.h"
#include "page_rules/page_judge.h"

namespace tarnwick {
namespace {

constexpr std::size_t kMostShown = 5;
constexpr std::size_t kShown = 60;

struct RulesOptions {
  std::int16_t idSite = 0;
  std::string action = "list";
  std::vector<std::string> words;
  bool json = false;
};

std::string listOf(const PageRule& rule) {
  return std::string(wordOf(rule.use)) + " " + std::string(wordOf(rule.language)) + " " + rule.rule;
}

std::string baselineOf(Tool& tool, std::int16_t idSite) { return pageText(tool.data().getContentCompare(idSite)); }

int list(Tool& tool, const RulesOptions& options) {
  Console& console = tool.console();
  const RuleSet set = tool.data().rulesOf(options.idSite);
  const std::string baseline = baselineOf(tool, options.idSite);
  const PlacedHoles holes = holesOf(baseline, set.holes);
  if (options.json) {
    JsonValue rules = JsonValue::array();
    for (const PageRule& rule : set.rules) {
      rules.add(JsonValue{{"use", std::string(wordOf(rule.use))},
                          {"language", std::string(wordOf(rule.language))},
                          {"rule", jsonText(rule.rule)},
                          {"matches", foundBy(rule, baseline).size()}});
    }
    sayJson(console, {{"idSite", options.idSite},
                      {"rules", std::move(rules)},
                      {"holes", holesJson(baseline, holes.placed)},
                      {"lost", holes.lost.size()}});
    return exit_status::ok;
  }
  if (set.empty()) {
    console.complain("Site " + std::to_string(options.idSite) + " has no rules: its page is compared byte for byte.");
    return exit_status::ok;
  }
  std::size_t number = 0;
  for (const PageRule& rule : set.rules) {
    console.say(std::to_string(++number) + "  " + console.shown(listOf(rule)));
  }
  if (!holes.placed.empty()) {
    printHoles(console, baseline, holes.placed, set.rules.size() + 1);
  }
  if (!holes.lost.empty()) {
    console.complain("Of the places that may vary " + std::to_string(holes.lost.size()) +
                     (holes.lost.size() == 1 ? " is" : " are") + " not in the baseline any more.");
  }
  return exit_status::ok;
}

/// A hole of that class in which this text may stand, with the room that it implies.
Hole holeOfClass(HoleClass kind, const std::string& text) {
  if (kind == HoleClass::date) {
    const auto found = dateOver(text, 0, text.size());
    if (!found || found->length != text.size()) {
      throw std::runtime_error("\"" + visibleText(text, kShown) + "\" is no date or time whose form is known.");
    }
    return {.kind = kind, .form = found->form};
  }
  const std::string_view value = text;
  Hole hole = classified({&value, 1}, false);
  if (hole.kind != kind) {
    const bool mayBeEmpty = kind == HoleClass::anything || kind == HoleClass::text;
    hole = {.kind = kind, .least = mayBeEmpty ? 0U : 1U, .most = 4 * text.size() + 16};
  }
  return hole;
}

/// The place of that text in the baseline, of which there must be one.
Hole holeFor(const RulesOptions& options, const std::string& baseline) {
  const std::string& text = options.words[2];
  const auto kind = holeClassOf(options.words[1]);
  if (!kind) {
    throw std::runtime_error("\"" + visibleText(options.words[1]) +
                             "\" is no kind of hole: give one of digits, hex, base64, letters, date, list, text, "
                             "anything.");
  }
  const std::size_t begin = text.empty() ? std::string::npos : baseline.find(text);
  if (begin == std::string::npos) {
    throw std::runtime_error("The text \"" + visibleText(text, kShown) +
                             "\" stands nowhere in the baseline. Give the text that may vary as it stands there.");
  }
  if (baseline.find(text, begin + 1) != std::string::npos) {
    throw std::runtime_error("The text \"" + visibleText(text, kShown) +
                             "\" stands more than once in the baseline. Select the place in the window, or learn it.");
  }
  Hole hole = holeOfClass(*kind, text);
  if (*kind == HoleClass::list) {
    hole.choices = {options.words.begin() + 2, options.words.end()};
  }
  hole.begin = begin;
  hole.length = text.size();
  return hole;
}

void addHole(Tool& tool, const RulesOptions& options, RuleSet& set) {
  const std::string baseline = baselineOf(tool, options.idSite);
  set.holes = holesOf(baseline, set.holes).placed;
  const Hole hole = holeFor(options, baseline);
  for (const Hole& other : set.holes) {
    if (hole.begin <= other.end() && other.begin <= hole.end()) {
      throw std::runtime_error("This place touches another one that may vary, in " + placeOf(baseline, other) +
                               ". Remove that first: tarnwickctl rules " + std::to_string(options.idSite));
    }
  }
  set.holes.push_back(hole);
  std::ranges::sort(set.holes, {}, &Hole::begin);
  setAnchors(set.holes, baseline);
}

void addRule(Tool& tool, const RulesOptions& options, RuleSet& set) {
  std::string use = options.words[0];
  std::ranges::replace(use, '-', ' ');
  const auto wanted = useOf(use);
  const auto language = languageOf(options.words[1]);
  if (!wanted || !language || options.words.size() != 3) {
    throw std::runtime_error(
        "A rule is one of leave-out, compare-only and hole, then regex, css, xpath, json or lines, then the rule in "
        "quotes; see: tarnwickctl help rules");
  }
  const PageRule rule{*wanted, *language, options.words[2]};
  if (rule.rule.find_first_of(std::string_view("\n\r\0", 3)) != std::string::npos) {
    throw std::runtime_error("A rule is one line: write a line end in a regular expression as its escape.");
  }
  checkRule(rule);
  set.rules.push_back(rule);
  const std::string baseline = baselineOf(tool, options.idSite);
  if (!baseline.empty() && foundBy(rule, baseline).empty()) {
    tool.console().complain("Rule " + std::to_string(set.rules.size()) + " (" + visibleText(listOf(rule)) +
                            ") matches nothing on the page.");
  }
}

int add(Tool& tool, const RulesOptions& options) {
  if (options.words.size() < 3) {
    throw std::runtime_error("Say what to add, for instance: tarnwickctl rules " + std::to_string(options.idSite) +
                             " add leave-out css \"div.clock\"");
  }
  RuleSet set = tool.data().rulesOf(options.idSite);
  if (options.words[0] == "hole") {
    addHole(tool, options, set);
  } else {
    addRule(tool, options, set);
  }
  tool.data().storeRules(options.idSite, set);
  tool.console().tell("The rules of site " + std::to_string(options.idSite) + " are stored.");
  return exit_status::ok;
}

int remove(Tool& tool, const RulesOptions& options) {
  RuleSet set = tool.data().rulesOf(options.idSite);
  const std::size_t count = set.rules.size() + set.holes.size();
  const std::string word = options.words.size() == 1 ? options.words.front() : "";
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (word == "all") {
    set = {};
  } else if (error != std::errc() || end != word.data() + word.size() || number < 1 || number > count) {
    throw std::runtime_error("Name the rule by its number, or all of them: tarnwickctl rules " +
                             std::to_string(options.idSite) + " remove 1|all");
  } else if (number <= set.rules.size()) {
    set.rules.erase(set.rules.begin() + static_cast<std::ptrdiff_t>(number) - 1);
  } else {
    set.holes.erase(set.holes.begin() + static_cast<std::ptrdiff_t>(number - set.rules.size()) - 1);
  }
  tool.data().storeRules(options.idSite, set);
  tool.console().tell("The rules of site " + std::to_string(options.idSite) + " are stored.");
  return exit_status::ok;
}

void showMatches(Console& console, const PageRule& rule, const std::string& page) {
  const auto found = foundBy(rule, page);
  console.tell(listOf(rule) + ": " + std::to_string(found.size()) + (found.size() == 1 ? " match" : " matches"));
  for (std::size_t i = 0; i < std::min(found.size(), kMostShown); ++i) {
    const auto& [begin, end] = found[i];
    console.say("  " + std::to_string(lineAt(page, begin).number) + ": " +
                visibleText(std::string_view(page).substr(begin, end - begin), kShown));
  }
}

int test(Tool& tool, const RulesOptions& options) {
  const std::string fetched = options.words.empty() ? tool.data().getContentRuntime(options.idSite)
                                                    : readInput(tool.services().files, options.words.front());
  if (fetched.empty()) {
    throw std::runtime_error(
        "There is no page to try the rules on. Give a file, or fetch the page: tarnwickctl check " +
        std::to_string(options.idSite));
  }
  const RuleSet set = tool.data().rulesOf(options.idSite);
  const std::string baseline = tool.data().getContentCompare(options.idSite);
  const PageVerdict verdict = judgePage(baseline, fetched, set);
  const std::string page = pageText(fetched);
  if (options.json) {
    JsonValue rules = JsonValue::array();
    for (const PageRule& rule : set.rules) {
      rules.add(JsonValue{{"rule", jsonText(listOf(rule))}, {"matches", foundBy(rule, page).size()}});
    }
    sayJson(tool.console(), {{"idSite", options.idSite},
                             {"same", verdict.same},
                             {"line", verdict.same ? JsonValue() : JsonValue(lineAt(page, verdict.pageAt).number)},
                             {"remark", jsonText(verdict.remark)},
                             {"rules", std::move(rules)}});
  } else {
    for (const PageRule& rule : set.rules) {
      showMatches(tool.console(), rule, page);
    }
    tool.console().tell(verdict.same ? "By these rules the page is the same as the baseline."
                                     : "By these rules the page differs from the baseline, first in line " +
                                           std::to_string(lineAt(page, verdict.pageAt).number) + ".");
    if (!verdict.remark.empty()) {
      tool.console().complain(verdict.remark);
    }
  }
  return verdict.same ? exit_status::ok : exit_status::down;
}

int rules(Tool& tool, const RulesOptions& options) {
  requireListed(tool, options.idSite);
  if (options.action == "add") {
    return add(tool, options);
  }
  if (options.action == "remove") {
    return remove(tool, options);
  }
  return options.action == "test" ? test(tool, options) : list(tool, options);
}

}  // namespace

Verb rulesVerb() {
  auto options = std::make_shared<RulesOptions>();
  return Verb{
      "rules",
      "Show or change what of a site's page does not count",
      {siteIdOption(options->idSite),
       {.name = "ACTION",
        .target = &options->action,
        .meaning = "list (default), add, remove, test",
        .oneOf = {"list", "add", "remove", "test"}},
       {.name = "WHAT",
        .target = &options->words,
        .meaning =
            "for add: leave-out|compare-only LANGUAGE RULE, or hole CLASS TEXT; for remove: a number or all; for "
            "test: a FILE, without one the latest page",
        .type = "WHAT"},
       jsonOption(options->json)},
      "Languages: regex (RE2; its first group, where it has one), css, xpath, json (a pointer, RFC 6901), lines "
      "(3-7).\n"
      "Classes of holes: digits, hex, base64, letters, date, list, text, anything. TEXT is what the baseline has "
      "there.\n"
      "A site without rules is compared byte for byte.\n" +
          examples({{"rules 3", "what does not count on the page of site 3"},
                    {"rules 3 add leave-out css \"div.clock\"", "whole elements"},
                    {"rules 3 add compare-only regex \"price: (.*)\"", "nothing else"},
                    {"rules 3 add hole digits 18204", "this number may be another one"},
                    {"rules 3 test page.html", "what the rules do to a page"},
                    {"rules 3 remove 2", "as the list numbers them"}}),
      [options](Tool& tool) { return rules(tool, *options); }};
}

}  // namespace tarnwick
