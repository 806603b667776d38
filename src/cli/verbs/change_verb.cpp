// SPDX-License-Identifier: MIT
#include "cli/terminal/consent.h"
#include "cli/verbs/chosen_sites.h"
#include "cli/verbs/site_edit_verbs.h"
#include "cli/verbs/verbs.h"
#include "program/site_changes.h"

namespace tarnwick {
namespace {

struct ChangeOptions {
  std::vector<std::string> sites;
  std::optional<std::string> interval;
  bool active = false;
  bool inactive = false;
  std::vector<std::string> options;
  std::vector<std::string> tags;
  std::vector<std::string> untags;
  bool resetCounters = false;
  bool dryRun = false;
  bool yes = false;
};

SiteChanges changesOf(m& data, const ChangeOptions& options) {
  SiteChanges changes;
  if (options.active || options.inactive) {
    changes.active = options.active;
  }
  if (options.interval) {
    changes.interval = intervalOf(*options.interval);
  }
  for (const std::string& text : options.options) {
    const std::size_t sign = text.find('=');
    const OptionField& field = data.optionField(visibleText(text.substr(0, sign)));
    if (sign == std::string::npos) {
      throw std::runtime_error("--option takes NAME=VALUE, and \"" + visibleText(text) + "\" has no \"=\".");
    }
    if (!field.ofSite) {
      throw std::runtime_error("The option " + field.name +
                               " holds for all sites. Set it with: tarnwickctl option all " + visibleText(text));
    }
    changes.options[field.name] = text.substr(sign + 1);
  }
  for (const std::string& tag : options.tags) {
    if (const std::string fault = faultOfTag(tag); !fault.empty()) {
      throw std::runtime_error(fault);
    }
  }
  changes.addedTags = options.tags;
  changes.removedTags = options.untags;
  changes.resetsCounters = options.resetCounters;
  if (changes.none()) {
    throw std::runtime_error("Say what is to be changed. See: tarnwickctl change --help");
  }
  return changes;
}

std::string countText(std::size_t count) { return std::to_string(count) + (count == 1 ? " site" : " sites"); }

void preview(Tool& tool, const std::vector<PlannedChange>& plan) {
  for (const PlannedChange& planned : plan) {
    std::string what;
    for (const std::string& name : planned.what) {
      what += (what.empty() ? "" : ", ") + name;
    }
    tool.console().say(std::to_string(planned.idSite) + ": " + what);
  }
}

int changeSites(Tool& tool, const ChangeOptions& options) {
  m& data = tool.data();
  const SiteChanges changes = changesOf(data, options);
  const std::vector<std::int16_t> ids = chosenSites(tool, options.sites);
  const std::vector<PlannedChange> plan = planChanges(data, ids, changes);
  if (options.dryRun || (tool.console().canAsk() && !options.yes)) {
    preview(tool, plan);
  }
  if (plan.size() < ids.size()) {
    tool.console().complain(std::to_string(ids.size() - plan.size()) + " of " + std::to_string(ids.size()) +
                            " sites stay as they are.");
  }
  if (options.dryRun || plan.empty()) {
    return exit_status::ok;
  }
  if (!consents(tool.console(), options.yes, "Change " + countText(plan.size()) + "?")) {
    return exit_status::failed;
  }
  carryOutChanges(data, plan, changes);
  tool.console().tell(countText(plan.size()) + (plan.size() == 1 ? " is changed." : " are changed."));
  return exit_status::ok;
}

}  // namespace

Verb changeVerb() {
  auto options = std::make_shared<ChangeOptions>();
  return Verb{
      "change",
      "Change several sites at once",
      {chosenSitesOption(options->sites),
       {.name = "--interval",
        .target = &options->interval,
        .meaning = "The time between two checks, 1 to 32767 minutes",
        .type = "MINUTES"},
       {"--active", &options->active, "Let runs check them"},
       {.name = "--inactive",
        .target = &options->inactive,
        .meaning = "Leave them out of runs",
        .excludes = "--active"},
       {.name = "--option",
        .target = &options->options,
        .meaning = "Set an option, or remove it with NAME=; may be given several times",
        .type = "NAME=VALUE"},
       {.name = "--tag", .target = &options->tags, .meaning = "Add a tag; may be given several times", .type = "NAME"},
       {.name = "--untag",
        .target = &options->untags,
        .meaning = "Remove a tag; may be given several times",
        .type = "NAME"},
       {"--reset-counters", &options->resetCounters, "Set their counters to 0"},
       {"--dry-run", &options->dryRun, "Only show what would change"},
       {"--yes", &options->yes, "Do not ask; needed where nobody can be asked"}},
      "All of them are changed, or none.\n" +
          examples({{"change tag:shop --interval 5 --dry-run", "what would change of which site"},
                    {"change 'never -inactive' --inactive --yes", "without a question"}}),
      [options](Tool& tool) { return changeSites(tool, *options); }};
}

}  // namespace tarnwick
