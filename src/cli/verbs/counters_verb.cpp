#include "cli/verbs/verbs.h"

namespace tarnwick {
namespace {

constexpr std::int16_t kEverySite = -1;

struct CountersOptions {
  std::string action;
  std::int16_t idSite = kEverySite;
  bool oneSite = false;
};

int clearCounters(Tool& tool, const CountersOptions& options) {
  if (!options.oneSite) {
    tool.data().clearCounters(kEverySite);
    tool.console().say("The counters of all sites are 0 now.");
    return exit_status::ok;
  }
  // An id below 0 would mean every site.
  if (options.idSite < 0) {
    throw noSuchSite(options.idSite);
  }
  requireListed(tool, options.idSite);
  tool.data().clearCounters(options.idSite);
  tool.console().say("The counters of site " + std::to_string(options.idSite) + " are 0 now.");
  return exit_status::ok;
}

}  // namespace

void addCountersVerb(CLI::App& app, Action& chosen) {
  auto options = std::make_shared<CountersOptions>();
  CLI::App* verb = app.add_subcommand("counters", "Set the counters of successes and failures to 0");
  verb->add_option("ACTION", options->action, "clear")->required()->check(CLI::IsMember({"clear"}));
  CLI::Option* id = addSiteId(*verb, options->idSite);
  id->description("The site's id, as the verb sites lists it; every site without one");
  verb->footer("Whether a site is up or down stays as it is; the log stays too.\n" +
               examples({{"counters clear 3", "of one site"}, {"counters clear", "of all sites"}}));
  verb->callback([options, id, &chosen] {
    options->oneSite = id->count() > 0;
    chosen = [options](Tool& tool) { return clearCounters(tool, *options); };
  });
}

}  // namespace tarnwick
