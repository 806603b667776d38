// SPDX-License-Identifier: MIT
#include <algorithm>
#include <memory>
#include <stdexcept>

#include "cli/terminal/consent.h"
#include "cli/terminal/json_output.h"
#include "cli/terminal/moment.h"
#include "cli/verbs/rule_words.h"
#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"
#include "engine/page_learning.h"
#include "engine/result_recording.h"
#include "holes/page_text.h"
#include "page_rules/page_judge.h"
#include "platform/interrupts.h"

namespace tarnwick {
namespace {

struct LearnOptions {
  std::vector<std::int16_t> sites;
  std::int64_t fetches = PageLearning::Plan{}.fetches;
  std::optional<std::string> over;
  bool fromLast = false;
  bool yes = false;
  bool json = false;
};

/// What is learnt of one site; all of them learn side by side.
struct Pupil {
  Pupil(std::int16_t site, const PageLearning::Machine& machine) : idSite(site), learning(machine) {}

  std::int16_t idSite;
  PageLearning learning;
  std::string baseline{};
  std::optional<Learnt> learnt{};
  std::string fault{};
};

using Pupils = std::vector<std::unique_ptr<Pupil>>;

std::string nameOf(const Pupil& pupil) { return "Site " + std::to_string(pupil.idSite); }

Pupils pupilsOf(Tool& tool, const LearnOptions& options) {
  const Services& services = tool.services();
  Pupils pupils;
  for (const std::int16_t id : options.sites) {
    requireListed(tool, id);
    const bool isTwice = std::ranges::any_of(pupils, [&](const auto& pupil) { return pupil->idSite == id; });
    if (!isTwice) {
      pupils.push_back(std::make_unique<Pupil>(
          id, PageLearning::Machine{tool.data(), services.transfers, services.timers, services.clock}));
      pupils.back()->baseline = tool.data().getContentCompare(id);
    }
  }
  return pupils;
}

PageLearning::Handlers handlersOf(Console& console, const LearnOptions& options, Pupil& pupil) {
  return {.progressed =
              [&](int done) {
                console.live(console.worded(nameOf(pupil) + ": " + std::to_string(done) + " of " +
                                            std::to_string(options.fetches) + " fetches"));
              },
          .learnt = [&](Learnt learnt) { pupil.learnt = std::move(learnt); },
          .failed = [&](const std::string& why) { pupil.fault = why; }};
}

void compareWithLast(Tool& tool, const LearnOptions& options, Pupil& pupil) {
  const std::string page = tool.data().getContentRuntime(pupil.idSite);
  if (pupil.baseline.empty() || !isPage(page)) {
    pupil.fault = "There is no baseline yet, or the latest check brought no page.";
    return;
  }
  pupil.learning.compare(pupil.baseline, tool.data().rulesOf(pupil.idSite), page,
                         handlersOf(tool.console(), options, pupil));
}

// False when it was interrupted.
bool learnAll(Tool& tool, const LearnOptions& options, Pupils& pupils) {
  const Interrupts interrupts([&tool] { tool.services().pump.close(); });
  const PageLearning::Plan plan{static_cast<int>(options.fetches),
                                options.over ? spanOf(*options.over) : std::chrono::seconds(0)};
  Console& console = tool.console();
  for (const auto& pupil : pupils) {
    if (options.fromLast) {
      compareWithLast(tool, options, *pupil);
    } else {
      pupil->learning.start(pupil->idSite, pupil->baseline, plan, handlersOf(console, options, *pupil));
    }
  }
  const auto isUnderWay = [](const auto& pupil) { return pupil->learning.isUnderWay(); };
  while (std::ranges::any_of(pupils, isUnderWay) && !tool.services().pump.closing()) {
    tool.services().pump.waitForEvent();
  }
  console.endLive();
  return !tool.services().pump.closing();
}

std::string pageOf(const Pupil& pupil) {
  return pageText(pupil.baseline.empty() ? pupil.learnt->firstCopy : pupil.baseline);
}

// "3 places may vary; 99.2 % of the page stays watched."
void show(Console& console, const Pupil& pupil, const LearnOptions& options) {
  const Learnt& learnt = *pupil.learnt;
  const std::size_t count = learnt.holes.size();
  if (count == 0 && options.fromLast && !learnt.explains) {
    return;  // the refusal says it
  }
  if (count == 0 && learnt.explains) {
    console.tell(nameOf(pupil) + ": nothing has varied.");
  } else {
    console.tell(nameOf(pupil) + ": " + std::to_string(count) + (count == 1 ? " place varies; " : " places vary; ") +
                 percentText(learnt.watched) + " % of the page stays watched.");
    printHoles(console, pageOf(pupil), learnt.holes, 1);
  }
  for (const std::string& warning : learnt.warnings) {
    console.complain(warning);
  }
  if (options.fromLast && !learnt.explains) {
    console.complain(nameOf(pupil) + ": line " + std::to_string(learnt.line) +
                     " differs as well, and does not look like what always changes: it stays watched.");
  }
}

JsonValue jsonOf(const Pupil& pupil, bool stored) {
  JsonValue json{{"idSite", pupil.idSite}};
  if (!pupil.learnt) {
    json["error"] = jsonText(pupil.fault);
    return json;
  }
  const Learnt& learnt = *pupil.learnt;
  JsonValue warnings = JsonValue::array();
  for (const std::string& warning : learnt.warnings) {
    warnings.add(jsonText(warning));
  }
  json["holes"] = holesJson(pageOf(pupil), learnt.holes);
  json["watched"] = learnt.watched;
  json["warnings"] = std::move(warnings);
  json["explains"] = learnt.explains;
  json["stored"] = stored;
  return json;
}

/// Why what was learnt cannot be taken; empty when it can.
std::string refusalOf(const Pupil& pupil, const LearnOptions& options) {
  if (!pupil.learnt) {
    return nameOf(pupil) + ": nothing was learnt. " + pupil.fault;
  }
  if (options.fromLast) {
    return pupil.learnt->holes.empty() && !pupil.learnt->explains
               ? nameOf(pupil) + ": line " + std::to_string(pupil.learnt->line) +
                     " differs, and nothing of it looks like what always changes."
               : std::string();
  }
  const std::string id = std::to_string(pupil.idSite);
  return pupil.learnt->explains
             ? std::string()
             : nameOf(pupil) + ": the page differs from the baseline also in line " +
                   std::to_string(pupil.learnt->line) + ", so nothing is stored. Look at it with: tarnwickctl diff " +
                   id + "; if that is how the page shall be: tarnwickctl baseline " + id + " load, then learn again.";
}

void store(Tool& tool, const Pupil& pupil) {
  m& data = tool.data();
  Transaction whole(data.database());
  if (data.getContentCompare(pupil.idSite) != pupil.baseline) {
    throw std::runtime_error(nameOf(pupil) + ": the baseline was changed meanwhile. Learn again.");
  }
  if (pupil.baseline.empty()) {
    data.updateContentCompare(pupil.idSite, pupil.learnt->firstCopy);
  }
  RuleSet rules = data.rulesOf(pupil.idSite);
  rules.holes = united(holesOf(pageOf(pupil), rules.holes).placed, pupil.learnt->holes);
  data.storeRules(pupil.idSite, rules);
  whole.commit();
}

bool isTaken(Tool& tool, const LearnOptions& options, const Pupil& pupil) {
  const bool isWorthIt = !pupil.learnt->holes.empty() || pupil.baseline.empty();
  return isWorthIt && (options.yes || !options.json) &&
         consents(tool.console(), options.yes, "Let this vary in site " + std::to_string(pupil.idSite) + "?");
}

int learn(Tool& tool, const LearnOptions& options) {
  if (options.fromLast && (options.over || options.fetches != PageLearning::Plan{}.fetches)) {
    throw std::runtime_error("Nothing is fetched with --from-last: leave out --fetches and --over.");
  }
  Console& console = tool.console();
  Pupils pupils = pupilsOf(tool, options);
  if (!learnAll(tool, options, pupils)) {
    console.complain("Interrupted; nothing is learnt.");
    return exit_status::failed;
  }
  int status = exit_status::ok;
  JsonValue all = JsonValue::array();
  for (const auto& pupil : pupils) {
    if (pupil->learnt && !options.json) {
      show(console, *pupil, options);
    }
    const std::string refusal = refusalOf(*pupil, options);
    const bool stored = refusal.empty() && isTaken(tool, options, *pupil);
    if (stored) {
      store(tool, *pupil);
    }
    if (!refusal.empty()) {
      console.complain(refusal);
      status = exit_status::failed;
    }
    if (options.json) {
      all.add(jsonOf(*pupil, stored));
    } else if (stored) {
      console.tell("The rules of site " + std::to_string(pupil->idSite) + " are stored.");
    }
  }
  if (options.json) {
    sayJson(console, std::move(all));
  }
  return status;
}

}  // namespace

Verb learnVerb() {
  auto options = std::make_shared<LearnOptions>();
  return Verb{
      "learn",
      "Learn from several fetches what always changes on a page, and let it vary",
      {{.name = "ID", .target = &options->sites, .meaning = "The ids, as the verb sites lists them", .required = true},
       {.name = "--fetches",
        .target = &options->fetches,
        .meaning = "How many times each page is fetched, from 2 to 50; 5 without this",
        .type = "N",
        .least = 2,
        .most = 50},
       {.name = "--over",
        .target = &options->over,
        .meaning = "Spread the fetches over this time, as 30m, 2h or 1d; at once without this",
        .type = "TIME"},
       {"--from-last", &options->fromLast,
        "Fetch nothing: propose what of the latest page's difference looks like a number, a key, a date or a time"},
       {"--yes", &options->yes, "Store what was learnt without asking"},
       jsonOption(options->json)},
      "Numbers, keys, dates and words that vary become places where anything of their kind may stand; all around them\n"
      "stays compared byte for byte. With --json nothing is stored unless --yes is given.\n" +
          examples({{"learn 3", "fetch the page of site 3 five times, and ask"},
                    {"learn 3 --over 1d --yes", "the same over a day, which finds what changes with the date"},
                    {"learn 3 --from-last", "the page differs by what is no change: let that vary"},
                    {"rules 3", "what may vary in it"}}),
      [options](Tool& tool) { return learn(tool, *options); }};
}

}  // namespace tarnwick
