// SPDX-License-Identifier: MIT
#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "base/text.h"
#include "cli/terminal/json_output.h"
#include "cli/terminal/moment.h"
#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"
#include "store/site_pauses.h"

namespace tarnwick {
namespace {

constexpr std::string_view kAll = "all";
constexpr std::chrono::hours kUsualPause{1};

struct PauseOptions {
  std::vector<std::string> sites;
  std::optional<std::string> forSpan;
  std::optional<std::string> until;
  bool forGood = false;
  bool json = false;
};

/// Nothing for all of them.
std::vector<std::int16_t> sitesOf(Tool& tool, const std::vector<std::string>& texts) {
  std::vector<std::int16_t> sites;
  for (const std::string& text : texts) {
    if (texts.size() == 1 && equalsIgnoringCase(text, kAll)) {
      return {};
    }
    std::int16_t id = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, fault] = std::from_chars(text.data(), end, id);
    if (fault != std::errc() || rest != end || id < 1) {
      throw std::runtime_error("\"" + visibleText(text) +
                               "\" is neither all nor the id of a site. The ids are listed by: tarnwickctl sites");
    }
    requireListed(tool, id);
    if (std::ranges::find(sites, id) == sites.end()) {
      sites.push_back(id);
    }
  }
  return sites;
}

Pause pauseOf(const PauseOptions& options, LocalTime now) {
  if (options.forGood) {
    return {true, std::nullopt};
  }
  if (options.until) {
    return {true, momentToCome(*options.until, now)};
  }
  return {true, now + (options.forSpan ? spanOf(*options.forSpan) : std::chrono::seconds(kUsualPause))};
}

std::string inWords(const std::vector<std::int16_t>& sites) {
  if (sites.empty()) {
    return "all sites";
  }
  std::string list;
  for (const std::int16_t site : sites) {
    list += (list.empty() ? "" : ", ") + std::to_string(site);
  }
  return (sites.size() == 1 ? "site " : "sites ") + list;
}

void tellAsJson(Console& console, const std::vector<std::int16_t>& sites, const Pause& pause) {
  JsonValue ids = JsonValue::array();
  for (const std::int16_t site : sites) {
    ids.add(JsonValue(site));
  }
  sayJson(console,
          {{"sites", sites.empty() ? JsonValue(std::string(kAll)) : ids}, {"pause", JsonValue(pauseText(pause))}});
}

int pauseSites(Tool& tool, const PauseOptions& options) {
  m& data = tool.data();
  const LocalTime now = tool.services().clock.localNow();
  const std::vector<std::int16_t> sites = sitesOf(tool, options.sites);
  const Pause pause = pauseOf(options, now);
  SitePauses pauses(data.database(), data);
  if (sites.empty()) {
    pauses.pauseAll(pause, now);
  } else {
    pauses.pause(sites, pause);
  }
  if (options.json) {
    tellAsJson(tool.console(), sites, pause);
  } else {
    tool.console().tell("The alerts of " + inWords(sites) + " are paused " + pauseText(pause) + ".");
  }
  return exit_status::ok;
}

int resumeSites(Tool& tool, const PauseOptions& options) {
  m& data = tool.data();
  const std::vector<std::int16_t> sites = sitesOf(tool, options.sites);
  SitePauses pauses(data.database(), data);
  if (sites.empty()) {
    pauses.resumeAll();
  } else {
    pauses.resume(sites, tool.services().clock.localNow());
  }
  if (options.json) {
    tellAsJson(tool.console(), sites, {});
  } else {
    tool.console().tell("The alerts of " + inWords(sites) + " are not paused any more.");
  }
  return exit_status::ok;
}

VerbOption sitesOption(std::vector<std::string>& sites) {
  return {.name = "SITE",
          .target = &sites,
          .meaning = "The ids of the sites, as the verb sites lists them; all of them without one",
          .type = "all|ID"};
}

Verb pauseVerb() {
  auto options = std::make_shared<PauseOptions>();
  return Verb{"pause",
              "Tell nothing of some sites, or of all, for a while",
              {sitesOption(options->sites),
               {.name = "--for",
                .target = &options->forSpan,
                .meaning = "So long: 30m, 2h, 1d; an hour without it",
                .type = "SPAN",
                .excludes = "--until"},
               {.name = "--until",
                .target = &options->until,
                .meaning = "Until then: \"2026-12-01 08:00\", 18:00, \"tomorrow 8:00\"",
                .type = "WHEN",
                .excludes = "--for-good"},
               {.name = "--for-good",
                .target = &options->forGood,
                .meaning = "Until the verb resume ends it",
                .excludes = "--for"},
               jsonOption(options->json)},
              "The sites are checked and recorded all the same. What is down then is told when the pause ends.\n" +
                  examples({{"pause", "all sites, for an hour"},
                            {"pause 3 7 --for 2d", "two sites, for two days"},
                            {"pause all --until \"tomorrow 8:00\"", "the night is quiet"}}),
              [options](Tool& tool) { return pauseSites(tool, *options); }};
}

Verb resumeVerb() {
  auto options = std::make_shared<PauseOptions>();
  return Verb{"resume",
              "End the pause of some sites, or of all",
              {sitesOption(options->sites), jsonOption(options->json)},
              "Without a site all pauses end, those of single sites too. A site that is named is told of again also\n"
              "while all others are paused.\n" +
                  examples({{"resume", "every pause that there is"}, {"resume 3", "that of one site"}}),
              [options](Tool& tool) { return resumeSites(tool, *options); }};
}

}  // namespace

std::vector<Verb> pauseVerbs() { return {pauseVerb(), resumeVerb()}; }

}  // namespace tarnwick
