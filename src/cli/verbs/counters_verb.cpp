// SPDX-License-Identifier: MIT
#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"

namespace tarnwick {
namespace {

constexpr std::int16_t kEverySite = -1;

struct CountersOptions {
  std::string action;
  std::optional<std::int16_t> idSite;
};

int clearCounters(Tool& tool, const CountersOptions& options) {
  if (!options.idSite) {
    tool.data().clearCounters(kEverySite);
    tool.console().tell("The counters of all sites are 0 now.");
    return exit_status::ok;
  }
  // An id below 0 would mean every site.
  if (*options.idSite < 0) {
    throw noSuchSite(*options.idSite);
  }
  requireListed(tool, *options.idSite);
  tool.data().clearCounters(*options.idSite);
  tool.console().tell("The counters of site " + std::to_string(*options.idSite) + " are 0 now.");
  return exit_status::ok;
}

}  // namespace

Verb countersVerb() {
  auto options = std::make_shared<CountersOptions>();
  return Verb{"counters",
              "Set the counters of successes and failures to 0",
              {{.name = "ACTION", .target = &options->action, .meaning = "clear", .required = true, .oneOf = {"clear"}},
               {"ID", &options->idSite, "The site's id, as the verb sites lists it; every site without one"}},
              "Whether a site is up or down stays as it is; the log stays too.\n" +
                  examples({{"counters clear 3", "of one site"}, {"counters clear", "of all sites"}}),
              [options](Tool& tool) { return clearCounters(tool, *options); }};
}

}  // namespace tarnwick
