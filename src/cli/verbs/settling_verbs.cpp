// SPDX-License-Identifier: MIT
#include <algorithm>
#include <ostream>

#include "cli/terminal/consent.h"
#include "cli/terminal/json_output.h"
#include "cli/verbs/chosen_sites.h"
#include "cli/verbs/page_diff.h"
#include "cli/verbs/settling_words.h"
#include "cli/verbs/verbs.h"

namespace tarnwick {
namespace {

using State = ToSettle::State;

constexpr std::size_t kMostPhrases = 3;
constexpr std::size_t kLongestPhrase = 60;

struct AcceptOptions {
  std::vector<std::string> sites;
  std::int64_t sameAs = 0;
  bool also = false;
  bool anyway = false;
  bool show = false;
  bool yes = false;
};

struct AcknowledgeOptions {
  std::vector<std::string> sites;
  bool off = false;
};

struct ChangesOptions {
  std::vector<std::string> query;
  bool json = false;
};

/// Why a page is not taken without being asked for twice; empty for most.
std::string doubtOf(std::int16_t id, const ToSettle& found) {
  if (found.state == State::failedFetch) {
    return "The latest check of site " + std::to_string(id) + " brought no page but \"" + visibleText(found.page, 100) +
           "\". Check again with: " + checkCommand(id) + "; if that is the page's own text, use --anyway.";
  }
  if (!found.errorWords.empty()) {
    return "The latest page of site " + std::to_string(id) + " looks like an error page (" + found.errorWords +
           "). If it is how the page shall be, use --anyway.";
  }
  return "The latest page of site " + std::to_string(id) + " has less than half the size of the baseline (" +
         std::to_string(found.page.size()) + " bytes instead of " + std::to_string(found.baseline.size()) +
         "). If it is how the page shall be, use --anyway.";
}

struct Candidate {
  std::int16_t idSite;
  ToSettle found;
};

/// Those whose pages can be accepted. What cannot is complained of, and remembered.
class Candidates {
 public:
  Candidates(Tool& tool, const AcceptOptions& options) : tool_(tool), options_(options) {}

  void add(std::int16_t id) {
    ToSettle found = tool_.data().toSettle(id);
    const std::string nothing = nothingToAccept(id, found);
    const bool isRefused = nothing.empty() && found.isDoubtful() && !options_.anyway;
    if (!nothing.empty()) {
      ++unfit_;
      why_ = nothing;
    } else if (isRefused) {
      ++refused_;
      tool_.console().complain(doubtOf(id, found));
    } else {
      taken_.push_back({id, std::move(found)});
    }
  }

  /// Tells of those that there is nothing to be done about; raises the reason where it is the only site.
  void finish(std::size_t asked) {
    if (asked == 1 && unfit_ == 1) {
      throw std::runtime_error(why_);
    }
    if (unfit_ > 0) {
      tool_.console().complain(std::to_string(unfit_) + " of " + std::to_string(asked) +
                               " sites stay as they are: they have no page that could be accepted.");
    }
  }

  const std::vector<Candidate>& taken() const { return taken_; }
  bool anyRefused() const { return refused_ > 0; }

 private:
  Tool& tool_;
  const AcceptOptions& options_;
  std::vector<Candidate> taken_;
  std::size_t unfit_ = 0;
  std::size_t refused_ = 0;
  std::string why_;
};

std::string quoted(const std::string& bytes) { return "\"" + visibleText(bytes, kLongestPhrase) + "\""; }

std::string phraseText(const Console& console, const ChangePhrase& phrase) {
  return console.worded(phrase.before.empty()  ? quoted(phrase.after) + " is new"
                        : phrase.after.empty() ? quoted(phrase.before) + " is gone"
                                               : quoted(phrase.before) + " became " + quoted(phrase.after));
}

std::string phrasesText(const Console& console, const ChangePhrases& phrases) {
  std::string text;
  for (std::size_t i = 0; i < std::min(phrases.size(), kMostPhrases); ++i) {
    text += (i == 0 ? "" : ", ") + phraseText(console, phrases[i]);
  }
  if (phrases.size() > kMostPhrases) {
    text += ", " + console.worded("and " + std::to_string(phrases.size() - kMostPhrases) + " more");
  }
  return text;
}

std::string idsText(const std::vector<std::int16_t>& ids) {
  std::string text;
  for (const std::int16_t id : ids) {
    text += (text.empty() ? "" : " ") + std::to_string(id);
  }
  return text;
}

struct SitesAlike {
  ChangePhrases phrases;
  std::vector<std::int16_t> ids;
};

std::vector<SitesAlike> sitesAlike(m& data, const std::vector<std::int16_t>& ids) {
  std::vector<ChangePhrases> changes;
  changes.reserve(ids.size());
  for (const std::int16_t id : ids) {
    changes.push_back(data.changeOf(id));
  }
  std::vector<SitesAlike> alike;
  for (ChangeGroup& group : groupsOf(changes)) {
    SitesAlike& sites = alike.emplace_back();
    sites.phrases = std::move(group.phrases);
    for (const std::size_t place : group.pages) {
      sites.ids.push_back(ids[place]);
    }
  }
  return alike;
}

void printAlike(Console& console, const std::vector<SitesAlike>& groups) {
  for (const SitesAlike& group : groups) {
    const std::size_t count = group.ids.size();
    console.say(console.worded(std::to_string(count) + (count == 1 ? " site" : " sites")) + ": " +
                phrasesText(console, group.phrases));
    console.say("  " + idsText(group.ids));
  }
}

std::vector<std::int16_t> sitesToAccept(Tool& tool, const AcceptOptions& options) {
  if (options.sites.empty() && options.sameAs == 0) {
    throw std::runtime_error("Say which sites. See: tarnwickctl accept --help");
  }
  std::vector<std::int16_t> ids =
      chosenSites(tool, options.sites.empty() ? std::vector<std::string>{"all"} : options.sites);
  if (options.sameAs != 0) {
    const auto model = static_cast<std::int16_t>(options.sameAs);
    requireListed(tool, model);
    const ChangePhrases wanted = tool.data().changeOf(model);
    if (wanted.empty()) {
      throw std::runtime_error(siteName(model) + " has not changed, so no site has changed as it has.");
    }
    std::erase_if(ids, [&](std::int16_t id) { return id != model && tool.data().changeOf(id) != wanted; });
  }
  return ids;
}

void preview(Tool& tool, const std::vector<Candidate>& taken) {
  if (taken.size() == 1) {
    const Candidate& site = taken.front();
    printDifference(tool.console(),
                    {site.idSite, site.found.baseline, site.found.page, tool.data().rulesOf(site.idSite)});
    if (site.found.placesLost > 0) {
      tool.console().complain("Of the places that may vary " + std::to_string(site.found.placesLost) +
                              (site.found.placesLost == 1 ? " is not in this page." : " are not in this page."));
    }
    return;
  }
  std::vector<std::int16_t> ids;
  std::ranges::transform(taken, std::back_inserter(ids), &Candidate::idSite);
  printAlike(tool.console(), sitesAlike(tool.data(), ids));
}

std::string acceptQuestion(const std::vector<Candidate>& taken, bool also) {
  if (taken.size() == 1) {
    const std::string id = std::to_string(taken.front().idSite);
    const std::string size = std::to_string(taken.front().found.page.size());
    return also ? "Is that page (" + size + " bytes) good for site " + id + ", too?"
                : "Is that page (" + size + " bytes) the new baseline of site " + id + "?";
  }
  const std::string count = std::to_string(taken.size());
  return also ? "Are these pages of " + count + " sites good, too?"
              : "Are these pages the new baselines of " + count + " sites?";
}

int acceptPages(Tool& tool, const AcceptOptions& options) {
  m& data = tool.data();
  const std::vector<std::int16_t> ids = sitesToAccept(tool, options);
  Candidates candidates(tool, options);
  std::ranges::for_each(ids, [&](std::int16_t id) { candidates.add(id); });
  candidates.finish(ids.size());
  const std::vector<Candidate>& taken = candidates.taken();
  const int status = candidates.anyRefused() ? exit_status::failed : exit_status::ok;
  if (taken.empty()) {
    return status;
  }
  if (options.show || (tool.console().canAsk() && !options.yes)) {
    preview(tool, taken);
  }
  if (options.show) {
    return status;
  }
  if (!consents(tool.console(), options.yes, acceptQuestion(taken, options.also))) {
    return exit_status::failed;
  }
  Transaction whole(data.database());
  for (const Candidate& site : taken) {
    requireListed(tool, site.idSite);
    // The bytes that were shown, whatever has been fetched since.
    data.accept(site.idSite, site.found.page, options.also ? AcceptAs::also : AcceptAs::baseline);
  }
  whole.commit();
  for (const Candidate& site : taken) {
    tool.console().tell(options.also ? "Site " + std::to_string(site.idSite) + ": the latest page is good, too."
                                     : "Site " + std::to_string(site.idSite) + ": the latest page is the baseline.");
  }
  return status;
}

int acknowledge(Tool& tool, const AcknowledgeOptions& options) {
  m& data = tool.data();
  const std::vector<std::int16_t> ids = chosenSites(tool, options.sites);
  std::vector<std::pair<std::int16_t, std::string>> pages;
  for (const std::int16_t id : ids) {
    ToSettle found = data.toSettle(id);
    if (options.off) {
      pages.emplace_back(id, "");
    } else if (const std::string nothing = nothingToSettle(id, found); nothing.empty()) {
      pages.emplace_back(id, std::move(found.page));
    } else if (ids.size() == 1) {
      throw std::runtime_error(nothing);
    } else {
      tool.console().complain(nothing);
    }
  }
  Transaction whole(data.database());
  for (const auto& [id, page] : pages) {
    if (options.off) {
      data.removeAcknowledgement(id);
    } else {
      data.acknowledgePage(id, page);
    }
  }
  whole.commit();
  for (const auto& [id, page] : pages) {
    tool.console().tell(options.off ? siteName(id) + " is told of again."
                                    : siteName(id) + " is known: nothing is told of it while exactly this page stays.");
  }
  return exit_status::ok;
}

int showChanges(Tool& tool, const ChangesOptions& options) {
  const SiteQuery query = queryOf(options.query);
  const SiteFinder finder(tool);
  std::vector<std::int16_t> ids;
  for (const SiteFacts& facts : finder.sites()) {
    if (std::in_range<std::int16_t>(facts.idSite) && finder.finds(query, facts)) {
      ids.push_back(static_cast<std::int16_t>(facts.idSite));
    }
  }
  std::ranges::sort(ids);
  const std::vector<SitesAlike> groups = sitesAlike(tool.data(), ids);
  if (!options.json) {
    if (groups.empty()) {
      tool.console().complain("No site has another page than its baseline.");
    }
    printAlike(tool.console(), groups);
    return exit_status::ok;
  }
  JsonArray array(tool.console());
  for (const SitesAlike& group : groups) {
    JsonValue sites = JsonValue::array();
    for (const std::int16_t id : group.ids) {
      sites.add(JsonValue(id));
    }
    JsonValue changes = JsonValue::array();
    for (const ChangePhrase& phrase : group.phrases) {
      changes.add({{"before", jsonText(phrase.before)}, {"after", jsonText(phrase.after)}});
    }
    array.add({{"sites", std::move(sites)}, {"changes", std::move(changes)}});
  }
  array.end();
  return exit_status::ok;
}

Verb acceptVerb() {
  auto options = std::make_shared<AcceptOptions>();
  VerbOption sites = chosenSitesOption(options->sites);
  sites.required = false;
  return Verb{
      "accept",
      "Take the latest pages of sites as their baselines",
      {std::move(sites),
       {.name = "--same-as",
        .target = &options->sameAs,
        .meaning = "Only sites that have changed as this one has; of all sites where none are named",
        .type = "ID",
        .least = 1,
        .most = 32767},
       {"--also", &options->also, "Keep the baseline as well: either page is good"},
       {"--show", &options->show, "Only show what would be accepted"},
       {"--anyway", &options->anyway, "Also a page that looks like an error, or is much shorter than the baseline"},
       {"--yes", &options->yes, "Do not ask; needed where nobody can be asked"}},
      "Exactly the bytes of the last check are taken. The baseline before is kept, ten of a site: the verb baseline\n"
      "lists them and gives the last one back.\n" +
          examples({{"accept 3", "shows what has changed, and asks"},
                    {"accept 3 --also", "two servers, two good pages"},
                    {"accept --same-as 3 --show", "which sites have changed as site 3 has"},
                    {"accept 'changed tag:shop' --yes", "all of them, without a question"}}),
      [options](Tool& tool) { return acceptPages(tool, *options); }};
}

Verb acknowledgeVerb() {
  auto options = std::make_shared<AcknowledgeOptions>();
  return Verb{"acknowledge",
              "Say nothing of sites as long as exactly the wrong page stays that they have",
              {chosenSitesOption(options->sites), {"--off", &options->off, "Tell of them again"}},
              "Any other wrong page is told at once. As soon as a site is up again its acknowledgement is over.\n" +
                  examples({{"acknowledge 3", "somebody is at it"}, {"acknowledge 3 --off", "and is not any more"}}),
              [options](Tool& tool) { return acknowledge(tool, *options); }};
}

Verb changesVerb() {
  auto options = std::make_shared<ChangesOptions>();
  return Verb{
      "changes",
      "Show which sites have changed, those together that have changed alike",
      {{.name = "QUERY", .target = &options->query, .meaning = "Only of these sites, as the verb sites takes it"},
       jsonOption(options->json)},
      examples({{"changes", "298 sites have a new year in the foot, and one a new price"},
                {"changes tag:shop", "the same of some sites"}}),
      [options](Tool& tool) { return showChanges(tool, *options); }};
}

}  // namespace

std::vector<Verb> settlingVerbs() { return {acceptVerb(), acknowledgeVerb(), changesVerb()}; }

}  // namespace tarnwick
