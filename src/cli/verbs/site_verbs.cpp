// SPDX-License-Identifier: MIT
#include <algorithm>
#include <charconv>
#include <iterator>
#include <ostream>
#include <set>
#include <utility>

#include "cli/terminal/consent.h"
#include "cli/terminal/json_output.h"
#include "cli/terminal/text_grid.h"
#include "cli/verbs/alarm_words.h"
#include "cli/verbs/chosen_sites.h"
#include "cli/verbs/site_edit_verbs.h"
#include "cli/verbs/verbs.h"
#include "exchange/list/site_facts.h"

namespace tarnwick {
namespace {

// A question stays one that can be read.
constexpr std::size_t kMostNamed = 10;

struct SitesOptions {
  std::vector<std::string> query;
  bool down = false;
  bool active = false;
  bool inactive = false;
  bool json = false;
};

struct ShowOptions {
  std::int16_t idSite = 0;
  bool json = false;
  bool showPassword = false;
};

struct DeleteOptions {
  std::vector<std::string> sites;
  bool dryRun = false;
  bool yes = false;
};

bool isWanted(const SiteFacts& facts, const SitesOptions& options) {
  return (!options.down || facts.down()) && (!options.active || facts.site.active) &&
         (!options.inactive || !facts.site.active);
}

/// "up", "not a page", "down" or "-", in its colour, and whether the site is left out of runs.
struct StateText {
  std::string text;
  Console::Colour colour = Console::Colour::plain;
};

StateText stateOf(const SiteFacts& facts, const AlarmView& alarm) {
  StateText state{"-", Console::Colour::plain};
  if (facts.status) {
    state = *facts.status ? StateText{"up", Console::Colour::green} : StateText{"down", Console::Colour::red};
  }
  if (facts.notAPage) {
    state.text = "not a page";
  }
  // A warning is the word for a site that is up.
  const bool isWarning = alarm.state == AlarmView::State::slow || alarm.state == AlarmView::State::certificate;
  if (alarm.state != AlarmView::State::none && facts.site.active && !(isWarning && facts.status == false)) {
    state.text = wordsOf(alarm);
  }
  if ((isWarning && facts.status != false) || alarm.state == AlarmView::State::unknown) {
    state.colour = Console::Colour::cyan;
  }
  if (!facts.site.active) {
    state.text += " (inactive)";
  } else if (alarm.pause) {
    state.text += " (paused)";
  }
  return state;
}

std::string tagsText(const Tags& tags) {
  std::string text;
  for (const std::string& tag : tags) {
    text += (text.empty() ? "" : " ") + tag;
  }
  return text.empty() ? "-" : text;
}

/// The tags are a column where any site has some.
void printSites(Console& console, const std::vector<SiteFacts>& sites, const SiteFinder& finder) {
  using enum TextGrid::Align;
  std::vector<TextGrid::Column> columns{{"ID", right}, {"STATE"},     {"METHOD"},     {"INTERVAL", right},
                                        {"LAST TEST"}, {"UP", right}, {"DOWN", right}};
  if (finder.anyTags()) {
    columns.push_back({"TAGS"});
  }
  columns.push_back({"URL"});
  TextGrid grid(columns);
  for (const SiteFacts& facts : sites) {
    const StateText state = stateOf(facts, finder.watches().of(facts).alarm);
    std::vector<TextGrid::Cell> row{{std::to_string(facts.idSite)},
                                    {console.worded(state.text), state.colour},
                                    {facts.site.method},
                                    {facts.site.tInterval},
                                    {facts.lastChecked.empty() ? "-" : facts.lastChecked},
                                    {std::to_string(facts.success)},
                                    {std::to_string(facts.failure)}};
    if (finder.anyTags()) {
      row.push_back({tagsText(finder.tagsOf(facts.idSite))});
    }
    row.push_back({facts.site.url});
    grid.addRow(row);
  }
  grid.print(console);
}

int listSites(Tool& tool, const SitesOptions& options) {
  Console& console = tool.console();
  const SiteQuery query = queryOf(options.query);
  const SiteFinder finder(tool);
  const SiteWatches& watches = finder.watches();
  std::vector<SiteFacts> sites = finder.sites();
  UnwatchedCount unwatched;
  for (const SiteFacts& facts : sites) {
    unwatched.add(facts.idSite, watches.of(facts).unwatched);
  }
  const bool empty = sites.empty();
  std::erase_if(sites,
                [&](const SiteFacts& facts) { return !isWanted(facts, options) || !finder.finds(query, facts); });
  if (options.json) {
    JsonArray array(console);
    for (const SiteFacts& facts : sites) {
      JsonValue json = siteJson(tool.fields(), facts);
      addTo(json, watches.of(facts));
      if (const Tags& tags = finder.tagsOf(facts.idSite); !tags.empty()) {
        json["tags"] = tagsJson(tags);
      }
      array.add(std::move(json));
    }
    array.end();
  } else if (!sites.empty()) {
    printSites(console, sites, finder);
    unwatched.complain(tool);
  } else if (empty) {
    console.complain("There is no site in the list yet. Add the first one with: tarnwickctl add URL");
  } else {
    console.complain("No site of the list is like that.");
  }
  return exit_status::ok;
}

std::string yesNo(const Console& console, bool flag) { return console.worded(flag ? "yes" : "no"); }

std::string orNone(const Console& console, const std::string& text) {
  return text.empty() ? console.worded("none") : visibleText(text);
}

std::string passwordText(const Console& console, const std::string& password, bool show) {
  return password.empty() || show ? orNone(console, password) : console.worded("set; --show-password shows it");
}

std::string baselineText(std::size_t size) {
  return size == 0 ? "none yet: the next page that is fetched becomes it"
                   : std::to_string(size) + (size == 1 ? " byte" : " bytes");
}

std::string alertText(const Console& console, const SiteDraft& site) {
  return yesNo(console, site.alertEmail) + (site.email.empty() ? "" : ", " + visibleText(site.email));
}

void printSite(Console& console, const Fields& fields, const SiteFacts& facts, const SiteWatch& watch, const Tags& tags,
               const std::vector<PostVar>& vars, std::size_t baselineSize, bool showPassword) {
  const SiteDraft& site = facts.site;
  const StateText state = stateOf(facts, watch.alarm);
  std::vector<std::pair<std::string, std::string>> lines = {
      {"Site", std::to_string(facts.idSite)},
      {"URL", visibleText(site.url)},
      {"State", console.coloured(state.colour, console.worded(state.text))},
      {"Active", yesNo(console, site.active)},
      {"Method", visibleText(site.method)},
      {"Interval", site.tInterval.empty() ? console.worded("none") : visibleText(site.tInterval) + " min"},
      {"Last test", facts.lastChecked.empty() ? console.worded("never") : visibleText(facts.lastChecked)},
      {"Up", std::to_string(facts.success)},
      {"Down", std::to_string(facts.failure)},
      {"Alert mail", alertText(console, site)},
      {"User name", orNone(console, site.sUserName)},
      {"Password", passwordText(console, site.sPassWord, showPassword)},
      {"Baseline", console.worded(baselineText(baselineSize))},
      {"Variables", vars.empty() ? console.worded("none") : std::to_string(vars.size())}};
  if (!tags.empty()) {
    lines.emplace_back("Tags", visibleText(tagsText(tags)));
  }
  std::ranges::copy(linesOf(console, watch), std::back_inserter(lines));
  for (const SiteField& field : fields.site) {
    if (std::holds_alternative<std::monostate>(field.member)) {
      const FieldValue value = valueOf(field, site);
      const auto* const text = std::get_if<std::string>(&value);
      lines.emplace_back(field.label, text == nullptr                   ? yesNo(console, std::get<bool>(value))
                                      : field.kind == FieldKind::secret ? passwordText(console, *text, showPassword)
                                                                        : orNone(console, *text));
    }
  }
  for (auto& [label, text] : lines) {
    label = console.worded(label);
  }
  const auto labelSize = [](const auto& line) { return characterCount(line.first); };
  const std::size_t width = labelSize(*std::ranges::max_element(lines, {}, labelSize));
  std::ostream& out = console.out();
  for (const auto& [label, text] : lines) {
    out << label << ':' << std::string(width + 2 - characterCount(label), ' ') << text << '\n';
  }
  for (const PostVar& var : vars) {
    out << "  " << visibleText(var.name) << '=' << visibleText(var.value) << '\n';
  }
}

int showSite(Tool& tool, const ShowOptions& options) {
  m& data = tool.data();
  requireListed(tool, options.idSite);
  std::vector<SiteFacts> sites = readSiteFacts(data, options.idSite);
  markThoseWithoutPage(data, sites);
  const auto facts = std::ranges::find(sites, options.idSite, &SiteFacts::idSite);
  if (facts == sites.end()) {
    throw noSuchSite(options.idSite);
  }
  const std::vector<PostVar> vars = readPostVars(data, options.idSite);
  const std::size_t baselineSize = data.getContentCompare(options.idSite).size();
  const SiteWatch watch = SiteWatches(tool).of(*facts);
  if (!options.json) {
    printSite(tool.console(), tool.fields(), *facts, watch, data.tagsOf(options.idSite), vars, baselineSize,
              options.showPassword);
    return exit_status::ok;
  }
  JsonValue json = siteJson(tool.fields(), *facts, options.showPassword);
  addTo(json, watch);
  if (const Tags tags = data.tagsOf(options.idSite); !tags.empty()) {
    json["tags"] = tagsJson(tags);
  }
  json["postVars"] = postVarsJson(vars);
  json["hasBaseline"] = baselineSize != 0;
  json["baselineSize"] = baselineSize;
  if (const OptionValues set = knownOptions(data, options.idSite); !set.empty()) {
    json["options"] = optionsJson(set);
  }
  sayJson(tool.console(), std::move(json));
  return exit_status::ok;
}

// What other tools have given an id outside 16 bits nothing but its removal can reach.
std::string addressOf(m& data, std::int64_t id) {
  return std::in_range<std::int16_t>(id) ? ", " + visibleText(readSite(data, static_cast<std::int16_t>(id)).url) : "";
}

std::runtime_error noId(const std::string& text) {
  return std::runtime_error("\"" + text + "\" is no id: ids are whole numbers from 1 to 32767");
}

void requireAnyListed(m& data, std::int64_t id) {
  if (data.anyIdExists(id)) {
    return;
  }
  if (!std::in_range<std::int16_t>(id)) {
    throw noId(std::to_string(id));
  }
  throw noSuchSite(id);
}

std::string questionOf(m& data, const std::set<std::int64_t>& ids) {
  if (ids.size() == 1) {
    return "Delete site " + std::to_string(*ids.begin()) + addressOf(data, *ids.begin()) +
           ", with its POST variables and its baseline?";
  }
  std::string list;
  std::size_t named = 0;
  for (const std::int64_t id : ids) {
    if (++named > kMostNamed) {
      list += " and " + std::to_string(ids.size() - kMostNamed) + " more";
      break;
    }
    list += (list.empty() ? "" : ", ") + std::to_string(id);
  }
  return "Delete " + std::to_string(ids.size()) + " sites (" + list + ") with their POST variables and baselines?";
}

/// Ids that another tool has given are named one by one; nothing but their removal can reach them.
std::set<std::int64_t> idsToDelete(Tool& tool, const std::vector<std::string>& words) {
  std::set<std::int64_t> ids;
  for (const std::string& word : words) {
    std::int64_t id = 0;
    const char* const end = word.data() + word.size();
    const auto [rest, fault] = std::from_chars(word.data(), end, id);
    if (fault == std::errc::result_out_of_range && rest == end) {
      throw noId(word);
    }
    if (fault != std::errc() || rest != end) {
      const std::vector<std::int16_t> chosen = chosenSites(tool, words);
      return {chosen.begin(), chosen.end()};
    }
    requireAnyListed(tool.data(), id);
    ids.insert(id);
  }
  return ids;
}

int deleteSites(Tool& tool, const DeleteOptions& options) {
  m& data = tool.data();
  const std::set<std::int64_t> ids = idsToDelete(tool, options.sites);
  if (options.dryRun) {
    for (const std::int64_t id : ids) {
      tool.console().say(std::to_string(id) + addressOf(data, id));
    }
    return exit_status::ok;
  }
  if (!consents(tool.console(), options.yes, questionOf(data, ids))) {
    return exit_status::failed;
  }
  data.runFreeing([&] {
    Transaction whole(data.database());
    for (const std::int64_t id : ids) {
      requireAnyListed(data, id);  // another program may have been faster than the answer
      data.deleteSiteOfAnyId(id);
    }
    whole.commit();
  });
  for (const std::int64_t id : ids) {
    tool.console().tell("Site " + std::to_string(id) + " is deleted.");
  }
  return exit_status::ok;
}

Verb sitesVerb() {
  auto options = std::make_shared<SitesOptions>();
  return Verb{
      "sites",
      "List the sites",
      {{.name = "QUERY",
        .target = &options->query,
        .meaning = "Only those that all its words find; a - before a word excludes what it finds"},
       {"--down", &options->down, "Only those whose last check failed"},
       {"--active", &options->active, "Only those that a run checks"},
       {.name = "--inactive",
        .target = &options->inactive,
        .meaning = "Only those that a run leaves out",
        .excludes = "--active"},
       jsonOption(options->json)},
      "STATE is \"up\" or \"down\" as the last check found, and \"-\" where none has been made. It is \"not a page\"\n"
      "where a site is up only because the text of a fetch that fails is its baseline, which the log tells.\n"
      "By options of the alarm it may be \"unconfirmed (1 of 3)\", \"unsteady\", \"slow\" or \"12 days\", as long as\n"
      "its certificate still holds, and \"unknown\" while this machine is offline; \"(paused)\" behind it says that\n"
      "nothing is told.\n" +
          examples({{"sites", "all of them"},
                    {"sites --down --active", "what needs a look"},
                    {"sites --json | jq -r '.[] | select(.status == false) | .url'", "the addresses that are down"}}),
      [options](Tool& tool) { return listSites(tool, *options); }};
}

Verb siteVerb() {
  auto options = std::make_shared<ShowOptions>();
  return Verb{"site",
              "Show all about one site",
              {siteIdOption(options->idSite),
               {"--show-password", &options->showPassword, "Show the password too"},
               jsonOption(options->json)},
              examples({{"site 3", "its settings, counters, POST variables, and the size of its baseline"},
                        {"site 3 --json --show-password", "the same for a script, with the password"}}),
              [options](Tool& tool) { return showSite(tool, *options); }};
}

}  // namespace

std::vector<Verb> siteVerbs() { return {sitesVerb(), siteVerb()}; }

Verb deleteVerb() {
  auto options = std::make_shared<DeleteOptions>();
  return Verb{"delete",
              "Delete sites with their POST variables and baselines",
              {chosenSitesOption(options->sites),
               {"--dry-run", &options->dryRun, "Only show which sites would be deleted"},
               {"--yes", &options->yes, "Do not ask; needed where nobody can be asked"}},
              "All of them are deleted, or none when one is not in the list. What the log says of them stays.\n" +
                  examples({{"delete 3", "asks first"}, {"delete 3 7 12 --yes", "three sites, without a question"}}),
              [options](Tool& tool) { return deleteSites(tool, *options); }};
}

}  // namespace tarnwick
