// SPDX-License-Identifier: MIT
#include <algorithm>
#include <charconv>
#include <ostream>

#include "cli/terminal/input_file.h"
#include "cli/terminal/json_output.h"
#include "cli/terminal/text_grid.h"
#include "cli/verbs/page_diff.h"
#include "cli/verbs/settling_words.h"
#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"
#include "page_rules/page_judge.h"
#include "platform/interrupts.h"

namespace tarnwick {
namespace {

constexpr std::string_view kFailedFetch = "11:";

struct BaselineOptions {
  std::int16_t idSite = 0;
  std::string action = "show";
  std::string file;
  bool force = false;
  bool json = false;
};

struct DiffOptions {
  std::int16_t idSite = 0;
  bool json = false;
};

std::string sizeText(std::size_t bytes) { return std::to_string(bytes) + (bytes == 1 ? " byte" : " bytes"); }

int told(Tool& tool, const BaselineOptions& options, const std::string& text) {
  const std::size_t size = tool.data().getContentCompare(options.idSite).size();
  if (options.json) {
    sayJson(tool.console(), {{"idSite", options.idSite}, {"size", size}});
  } else {
    tool.console().tell(text + (size == 0 ? "" : " (" + sizeText(size) + ")"));
  }
  return exit_status::ok;
}

int showBaseline(Tool& tool, const BaselineOptions& options) {
  const std::string page = tool.data().getContentCompare(options.idSite);
  if (options.json) {
    sayJson(tool.console(), {{"idSite", options.idSite}, {"size", page.size()}, {"baseline", jsonText(page)}});
    return exit_status::ok;
  }
  if (page.empty()) {
    tool.console().complain("Site " + std::to_string(options.idSite) +
                            " has no baseline yet: the next page that is fetched becomes it.");
  }
  if (tool.console().isTerminal()) {
    // Nothing of a page may act on the terminal.
    for (std::string_view rest = page; !rest.empty();) {
      const std::string_view line = rest.substr(0, rest.find('\n'));
      tool.console().out() << visibleText(line) << '\n';
      rest.remove_prefix(std::min(rest.size(), line.size() + 1));
    }
  } else {
    // Every byte as it is stored, so that it can be piped into a file and set again.
    tool.console().out() << page;
  }
  return exit_status::ok;
}

int loadBaseline(Tool& tool, const BaselineOptions& options) {
  const Interrupts interrupts([&tool] { tool.services().pump.close(); });
  const std::string page = tool.data().getHtmlFromSite(options.idSite);
  if (tool.services().pump.closing()) {
    tool.console().complain("Interrupted; the baseline is as it was.");
    return exit_status::failed;
  }
  const TransferResult& result = tool.data().single().result();
  if (result.fault != TransferFault::none) {
    throw std::runtime_error("The page of site " + std::to_string(options.idSite) +
                             " could not be fetched; the baseline is as it was. " + visibleText(result.cause));
  }
  if (page.empty()) {
    throw std::runtime_error("The page of site " + std::to_string(options.idSite) +
                             " is empty, which cannot be a baseline; the baseline is as it was.");
  }
  tool.data().updateContentCompare(options.idSite, page);
  return told(tool, options, "The page that was fetched now is the baseline.");
}

int setBaseline(Tool& tool, const BaselineOptions& options) {
  const std::string page = readInput(tool.services().files, options.file);
  if (page.empty()) {
    throw std::runtime_error(options.file + " is empty. To remove the baseline, use: tarnwickctl baseline " +
                             std::to_string(options.idSite) + " clear");
  }
  if (page.size() > kLargestPage) {
    throw std::runtime_error(options.file + " is larger than the largest page that is fetched, 64 MiB.");
  }
  tool.data().updateContentCompare(options.idSite, page);
  return told(tool, options, "The file is the baseline.");
}

int acceptLatest(Tool& tool, const BaselineOptions& options) {
  const ToSettle found = tool.data().toSettle(options.idSite);
  const std::string& page = found.page;
  const std::string nothing = nothingToAccept(options.idSite, found);
  if (page.empty() || (!nothing.empty() && found.state != ToSettle::State::same)) {
    throw std::runtime_error(nothing);
  }
  if (page.starts_with(kFailedFetch) && !options.force) {
    throw std::runtime_error("The latest check of site " + std::to_string(options.idSite) + " brought no page but \"" +
                             visibleText(page, 100) + "\". Check again with: " + checkCommand(options.idSite) +
                             "; if that is the page's own text, use --force.");
  }
  tool.data().accept(options.idSite, page, AcceptAs::baseline);
  return told(tool, options, "The latest page is the baseline.");
}

int undoAccept(Tool& tool, const BaselineOptions& options) {
  if (!tool.data().undoAccept(options.idSite)) {
    throw std::runtime_error("Site " + std::to_string(options.idSite) +
                             " has no earlier baseline: none was kept, since no page was accepted.");
  }
  return told(tool, options, "The baseline before is the baseline again.");
}

int listBaselines(Tool& tool, const BaselineOptions& options) {
  const std::vector<KeptBaseline> kept = tool.data().baselinesOf(options.idSite);
  if (options.json) {
    JsonArray array(tool.console());
    for (const KeptBaseline& one : kept) {
      array.add({{"number", one.number},
                 {"taken", jsonText(one.taken)},
                 {"origin", jsonText(std::string(wordOf(one.origin)))},
                 {"size", one.size}});
    }
    array.end();
    return exit_status::ok;
  }
  if (kept.empty()) {
    tool.console().complain("Site " + std::to_string(options.idSite) +
                            " has no baseline beside that which the verb baseline shows.");
    return exit_status::ok;
  }
  using enum TextGrid::Align;
  TextGrid grid({{"NUMBER", right}, {"KEPT"}, {"BYTES", right}, {"WHAT"}});
  for (const KeptBaseline& one : kept) {
    grid.addRow({{std::to_string(one.number)},
                 {one.taken},
                 {std::to_string(one.size)},
                 {tool.console().worded(one.origin == BaselineOrigin::also ? "good, too" : "replaced")}});
  }
  grid.print(tool.console());
  return exit_status::ok;
}

int dropBaseline(Tool& tool, const BaselineOptions& options) {
  std::int64_t number = 0;
  const char* const end = options.file.data() + options.file.size();
  const auto [rest, fault] = std::from_chars(options.file.data(), end, number);
  if (fault != std::errc() || rest != end || !tool.data().dropBaseline(options.idSite, number)) {
    throw std::runtime_error("Site " + std::to_string(options.idSite) + " has no baseline of the number \"" +
                             visibleText(options.file) + "\". See them with: tarnwickctl baseline " +
                             std::to_string(options.idSite) + " list");
  }
  tool.console().tell("Baseline " + std::to_string(number) + " of site " + std::to_string(options.idSite) +
                      " is removed.");
  return exit_status::ok;
}

int baseline(Tool& tool, const BaselineOptions& options) {
  requireListed(tool, options.idSite);
  if (!options.file.empty() && options.action != "set" && options.action != "drop") {
    throw std::runtime_error("Only \"set\" takes a file, and \"drop\" a number.");
  }
  if (options.force && options.action != "accept") {
    throw std::runtime_error("Only \"accept\" takes --force.");
  }
  if (options.action == "load") {
    return loadBaseline(tool, options);
  }
  if (options.action == "set") {
    if (options.file.empty()) {
      throw std::runtime_error("Name the file: tarnwickctl baseline " + std::to_string(options.idSite) +
                               " set FILE (- for standard input)");
    }
    return setBaseline(tool, options);
  }
  if (options.action == "clear") {
    tool.data().clearContentCompare(options.idSite);
    return told(tool, options, "The baseline is cleared: the next page that is fetched becomes it.");
  }
  if (options.action == "undo") {
    return undoAccept(tool, options);
  }
  if (options.action == "list") {
    return listBaselines(tool, options);
  }
  if (options.action == "drop") {
    return dropBaseline(tool, options);
  }
  return options.action == "accept" ? acceptLatest(tool, options) : showBaseline(tool, options);
}

int diff(Tool& tool, const DiffOptions& options) {
  requireListed(tool, options.idSite);
  using State = ToSettle::State;
  const ToSettle found = tool.data().toSettle(options.idSite);
  if (found.state == State::never || found.state == State::notKept) {
    throw std::runtime_error(nothingToSettle(options.idSite, found));
  }
  const std::string& before = found.baseline;
  const std::string& after = found.page;
  const RuleSet rules = tool.data().rulesOf(options.idSite);
  const bool same = before == after || (!rules.empty() && judgePage(before, after, rules).same);
  const PagesOfSite pages{options.idSite, before, after, rules};
  if (options.json) {
    JsonValue json{{"idSite", options.idSite}, {"equal", before == after}};
    if (!rules.empty()) {
      json["same"] = same;
    }
    json["diff"] = differenceJson(pages);
    sayJson(tool.console(), std::move(json));
  } else if (!same) {
    printDifference(tool.console(), pages);
  }
  return same ? exit_status::ok : exit_status::down;
}

Verb baselineVerb() {
  auto options = std::make_shared<BaselineOptions>();
  return Verb{"baseline",
              "Show or change the page that a site is compared with",
              {siteIdOption(options->idSite),
               {.name = "ACTION",
                .target = &options->action,
                .meaning = "show (default), load (fetch it from the URL now), set FILE, clear, accept (take the latest "
                           "page), undo (the one before accept), list (those that are kept), drop NUMBER",
                .oneOf = {"show", "load", "set", "clear", "accept", "undo", "list", "drop"}},
               {"FILE", &options->file, "The file for \"set\", - is standard input; the number for \"drop\""},
               {"--force", &options->force, "For \"accept\": also a latest page that looks like a failed fetch"},
               jsonOption(options->json)},
              examples({{"baseline 3 > page.html", "the baseline, byte for byte"},
                        {"baseline 3 set page.html", "an edited one"},
                        {"baseline 3 accept", "what the last check fetched is how the page shall be"},
                        {"baseline 3 load", "fetch the page now and take it"},
                        {"baseline 3 undo", "the one before it was accepted"}}),
              [options](Tool& tool) { return baseline(tool, *options); }};
}

Verb diffVerb() {
  auto options = std::make_shared<DiffOptions>();
  return Verb{"diff",
              "Compare a site's baseline with its latest page, as a unified diff",
              {siteIdOption(options->idSite), jsonOption(options->json)},
              "The latest page is that of the last check. What may vary or is left out by rules is no difference. Exit "
              "status: 0 when equal, 1 when they differ.\n" +
                  examples({{"diff 3", "what has changed, coloured on a terminal"},
                            {"diff 3 > page.patch", "for the program patch"}}),
              [options](Tool& tool) { return diff(tool, *options); }};
}

}  // namespace

std::vector<Verb> pageVerbs() { return {baselineVerb(), diffVerb()}; }

}  // namespace tarnwick
