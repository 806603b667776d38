// SPDX-License-Identifier: MIT
#include <algorithm>
#include <ostream>

#include "cli/terminal/consent.h"
#include "cli/terminal/input_file.h"
#include "cli/terminal/json_output.h"
#include "cli/verbs/delivery_words.h"
#include "cli/verbs/tool.h"
#include "cli/verbs/unwatched.h"
#include "cli/verbs/verbs.h"
#include "delivery/delivery.h"
#include "exchange/foreign/any_list.h"
#include "exchange/foreign/list_reading.h"
#include "exchange/list/site_facts.h"
#include "exchange/list/site_import.h"

namespace tarnwick {
namespace {

constexpr const char* kStream = "-";

struct ImportVerbOptions {
  std::string file;
  std::string format;
  ImportOptions how;
  bool dryRun = false;
  bool yes = false;
  bool json = false;
};

std::string shownName(const std::string& file) { return file == kStream ? "standard input" : visibleText(file); }

/// The words between commas, the last one behind `last`.
std::string inWords(const std::vector<std::string>& words, std::string_view last) {
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    text += (i == 0 ? "" : i + 1 == words.size() ? std::string(last) : ", ") + words[i];
  }
  return text;
}

ReadList readFile(FileSystem& files, const ImportVerbOptions& options, const Fields& fields) {
  // Standard input is this process's own.
  const std::string typed = options.file == kStream ? readInput(files, options.file) : std::string();
  ListReading reading(
      options.file, options.format, [&] { return options.file == kStream ? typed : readInput(files, options.file); },
      fields);
  ReadList file = reading.finish();
  if (file.word.empty()) {
    throw std::runtime_error("What kind of file \"" + shownName(options.file) +
                             "\" is does not show in its content. Add --format with " + inWords(importWords(), " or ") +
                             ".");
  }
  return file;
}

std::vector<std::string> fieldNamesOf(const Fields& fields, const ImportStep& step) {
  std::vector<std::string> names;
  const ListForm form(fields);
  for (const ListField& field : form.all()) {
    if (step.fields.has(field.name) && field.role != ListField::Role::idSite) {
      names.push_back(field.name);
    }
  }
  return names;
}

std::string lineOf(const Fields& fields, const ImportStep& step) {
  std::string line =
      std::string(wordOf(step.action)) + " " + std::to_string(step.idSite) + " " + visibleText(step.listed.site.url);
  if (step.action == ImportStep::Action::change) {
    line += " (" + inWords(fieldNamesOf(fields, step), ", ") + ")";
  }
  return line;
}

JsonValue jsonOf(const Fields& fields, const ImportPlan& plan, bool dryRun) {
  using enum ImportStep::Action;
  JsonValue sites = JsonValue::array();
  for (const ImportStep& step : plan.steps) {
    JsonValue site{{"action", wordOf(step.action)}, {"idSite", step.idSite}, {"url", jsonText(step.listed.site.url)}};
    if (step.action == change) {
      site["fields"] = JsonValue::array(fieldNamesOf(fields, step));
    }
    sites.add(std::move(site));
  }
  return {{"dryRun", dryRun},
          {"added", plan.count(add)},
          {"changed", plan.count(change)},
          {"deleted", plan.count(remove)},
          {"unchanged", plan.unchanged},
          {"sites", std::move(sites)}};
}

/// What the list has no place for: `notTaken` of sites and of the whole file, and the entries that are `leftOut`.
void addNotes(JsonValue& json, const std::vector<ForeignNote>& notes) {
  JsonValue notTaken = JsonValue::array();
  JsonValue leftOut = JsonValue::array();
  for (const ForeignNote& note : notes) {
    JsonValue place{{"line", note.line == 0 ? JsonValue() : JsonValue(note.line)}, {"url", jsonText(note.subject)}};
    if (note.leftOut) {
      place["why"] = jsonText(note.things.front());
      leftOut.add(std::move(place));
    } else {
      JsonValue things = JsonValue::array();
      for (const std::string& thing : note.things) {
        things.add(jsonText(thing));
      }
      place["things"] = std::move(things);
      notTaken.add(std::move(place));
    }
  }
  json["notTaken"] = std::move(notTaken);
  json["leftOut"] = std::move(leftOut);
}

std::vector<std::string> channelNames(const ImportPlan& plan) {
  std::vector<std::string> names;
  std::ranges::transform(plan.channels, std::back_inserter(names),
                         [](const ListedChannel& listed) { return listed.channel.name; });
  return names;
}

void tellJson(Tool& tool, const ImportPlan& plan, const ReadList& file, const ImportVerbOptions& options) {
  JsonValue json = jsonOf(tool.fields(), plan, options.dryRun);
  if (const HistoryTaken history = plan.history(); history.sites > 0) {
    json["history"] = JsonValue{{"sites", history.sites}, {"hours", history.hours}, {"outages", history.outages}};
  }
  if (plan.optionsOfAll) {
    json["optionsOfAll"] = optionsJson(*plan.optionsOfAll);
  }
  if (!plan.channels.empty()) {
    json["channels"] = JsonValue::array(channelNames(plan));
  }
  if (file.list.foreign) {
    json["format"] = file.word;
    json["settings"] = file.list.content.settings.size();
    json["log"] = file.list.content.log.size();
    addNotes(json, file.list.content.notes);
  }
  sayJson(tool.console(), std::move(json));
}

std::string counted(std::size_t count, const char* one, const char* more) {
  return std::to_string(count) + (count == 1 ? one : more);
}

void tell(Tool& tool, const ImportPlan& plan, const ReadList& file, const ImportVerbOptions& options) {
  using enum ImportStep::Action;
  if (options.json) {
    return tellJson(tool, plan, file, options);
  }
  Console& console = tool.console();
  if (options.dryRun && plan.optionsOfAll) {
    console.tell("change the options of all sites");
  }
  if (options.dryRun && !plan.channels.empty()) {
    console.tell("store the channels: " + inWords(channelNames(plan), ", "));
  }
  for (const ImportStep& step : plan.steps) {
    if (options.dryRun) {
      console.out() << lineOf(tool.fields(), step) << '\n';
    }
  }
  std::size_t leftOut = 0;
  std::size_t inPart = 0;
  for (const ForeignNote& note : file.list.content.notes) {
    console.tell(lineOf(note));
    ++(note.leftOut ? leftOut : inPart);
  }
  if (!options.dryRun && plan.optionsOfAll) {
    console.tell("The options of all sites are changed.");
  }
  if (!options.dryRun && !plan.channels.empty()) {
    console.tell("The channels are stored: " + inWords(channelNames(plan), ", "));
  }
  const char* const to = options.dryRun ? " to " : " ";
  const auto part = [&](ImportStep::Action action, const char* coming, const char* done) {
    return std::to_string(plan.count(action)) + to + (options.dryRun ? coming : done) + ", ";
  };
  console.tell(part(add, "add", "added") + part(change, "change", "changed") + part(remove, "delete", "deleted") +
               std::to_string(plan.unchanged) + " unchanged.");
  if (const HistoryTaken history = plan.history(); history.sites > 0) {
    console.tell(std::string(options.dryRun ? "The history would be taken in, too" : "The history is taken in, too") +
                 " (sites: " + std::to_string(history.sites) + ", hours: " + std::to_string(history.hours) +
                 ", outages: " + std::to_string(history.outages) + ").");
  }
  if (const ForeignList& list = file.list.content; !list.settings.empty() || !list.log.empty()) {
    console.tell(std::string("The settings and ") + counted(list.log.size(), " result", " results") + " of the log " +
                 (options.dryRun ? "would be taken, too." : "are taken, too."));
  }
  if (leftOut + inPart > 0) {
    console.tell(counted(inPart, " note tells", " notes tell") + " what was not taken over, " +
                 counted(leftOut, " entry was left out.", " entries were left out."));
  }
}

void complainOfLines(Console& console, const std::string& file, const ListFaults& faults) {
  for (const ListFaults::Fault& fault : faults.kept()) {
    const std::string line = fault.line == 0 ? std::string() : ", line " + std::to_string(fault.line);
    console.complain(shownName(file) + line + ": " + fault.text + ".");
  }
}

void complainOfDoubts(Console& console, const std::string& file, const ListFaults& doubts) {
  complainOfLines(console, file, doubts);
  if (const std::size_t kept = doubts.kept().size(); doubts.count() > kept) {
    console.complain(std::to_string(doubts.count() - kept) + " more like these are not shown.");
  }
}

void complainOf(Console& console, const std::string& file, const ListFaults& faults) {
  complainOfLines(console, file, faults);
  const std::size_t kept = faults.kept().size();
  console.complain("Nothing was imported" +
                   (faults.count() > kept ? "; " + std::to_string(faults.count() - kept) + " more faults are not shown."
                                          : std::string(".")));
}

ImportPlan planOrRaise(m& data, AnyList& list, const ImportOptions& how, ListFaults& faults) {
  ImportPlan plan = planAnyList(data, list, how, faults);
  if (!faults.none()) {
    throw SiteListError(faults);
  }
  return plan;
}

// A file without a site is more often a slip than the wish to have none.
bool mayReplace(Tool& tool, const ImportVerbOptions& options, const std::vector<ListedSite>& sites) {
  const bool none = std::ranges::all_of(sites, [](const ListedSite& site) { return site.idSite == kAllSites; });
  const std::size_t stored = none && options.how.replace ? tool.data().getArraySites(0).lastRow() : 0;
  return stored == 0 || consents(tool.console(), options.yes,
                                 "The file has no site. Delete all that are in the list (" + std::to_string(stored) +
                                     ") with their POST variables and baselines?");
}

/// The sites that it adds, switches on or gives another address.
std::vector<std::int16_t> takenIn(const ImportPlan& plan) {
  std::vector<std::int16_t> ids;
  for (const ImportStep& step : plan.steps) {
    if (step.action == ImportStep::Action::add ||
        (step.action == ImportStep::Action::change && (step.fields.has(list_name::url) || step.fields.has("active")))) {
      ids.push_back(step.idSite);
    }
  }
  return ids;
}

/// What the list itself does not hold; a channel that is left without is named.
void storeSecrets(Tool& tool, const ImportPlan& plan) {
  m& data = tool.data();
  for (const auto& [channel, secret] : channelsWithSecret(data, plan)) {
    const std::string why = storeSecret(data, tool.services(), channel.id, secret.value());
    if (!why.empty()) {
      tool.console().complain("The channel " + channel.name + " is stored, but not its password or token: " + why);
    }
  }
  for (const ListedChannel& listed : plan.channels) {
    if (listed.channel.id == 0 && !listed.secret && needsSecret(listed.channel)) {
      hintAtSecret(tool.console(), listed.channel);
    }
  }
}

int importList(Tool& tool, const ImportVerbOptions& options) {
  ReadList file = readFile(tool.services().files, options, tool.fields());
  ListFaults& faults = file.faults;
  m& data = tool.data();
  if (!options.dryRun && faults.none() && !mayReplace(tool, options, file.list.content.sites)) {
    return exit_status::failed;
  }
  try {
    if (options.dryRun) {
      const Snapshot oneState(data.database());
      const ImportPlan plan = planOrRaise(data, file.list, options.how, faults);
      tell(tool, plan, file, options);
      complainOfDoubts(tool.console(), options.file, plan.doubts);
      return exit_status::ok;
    }
    Transaction whole(data.database());
    const ImportPlan plan = planOrRaise(data, file.list, options.how, faults);
    carryOut(data, plan, file.list);
    whole.commit();
    tell(tool, plan, file, options);
    complainOfDoubts(tool.console(), options.file, plan.doubts);
    storeSecrets(tool, plan);
    hintAtUnwatched(tool, takenIn(plan));
    return exit_status::ok;
  } catch (const SiteListError& error) {
    complainOf(tool.console(), options.file, error.faults());
    return exit_status::failed;
  }
}

}  // namespace

Verb importVerb() {
  auto options = std::make_shared<ImportVerbOptions>();
  return Verb{
      "import",
      "Take sites into the list from a file of Tarnwick or of another program",
      {{.name = "FILE", .target = &options->file, .meaning = "The file; - is standard input", .required = true},
       {.name = "--format",
        .target = &options->format,
        .meaning = "The kind of the file, where its content does not show it: " + inWords(importWords(), " or "),
        .oneOf = importWords()},
       {"--as-new", &options->how.asNew,
        "Add every site as a new one, whatever its id in the file; the options of all sites stay"},
       {"--replace", &options->how.replace, "Delete the sites that the file does not name"},
       {.name = "--yes",
        .target = &options->yes,
        .meaning = "Do not ask when the file has no site, so that --replace deletes every one",
        .needs = "--replace"},
       {"--dry-run", &options->dryRun, "Only say what would be done"},
       jsonOption(options->json)},
      "A site whose id is in the list is changed, in the fields that the file has; one with another id is added under "
      "it, and one without an id is added as a new one. A channel takes the place of one that has its name. All of the "
      "file is taken, or nothing: each fault is told with "
      "its line.\n"
      "A CSV file names its columns in the first line, separated by commas. Only url must be there; the others are "
      "idSite, method (get or post), active, tInterval (minutes), alertEmail, email, sUserName, sPassWord, postVars "
      "(name=value&name=value, other bytes than letters and digits as %XX), baseline (base64). An empty idSite, "
      "method, tInterval or yes/no is as one left out. A JSON file has the form {\"tarnwick\": 1, \"sites\": "
      "[{\"url\": ...}, ...]}.\n"
      "Also taken are a list of addresses, one a line, the bookmarks of a browser (HTML), OPML, the lists of urlwatch, "
      "the list or the backup of changedetection.io, and a Jet database of the same tables. A site of theirs whose "
      "address is in the list is that site. "
      "What has no place in the list is named, site by site.\n" +
          examples({{"import sites.csv --dry-run", "what would be added and changed"},
                    {"import sites.csv", "do it"},
                    {"import sites.json --replace", "make the list as the file has it"},
                    {"import more.csv --as-new", "the list of somebody else, beside one's own"},
                    {"import bookmarks.html --dry-run", "what of a browser's bookmarks would be watched"}}),
      [options](Tool& tool) { return importList(tool, *options); }};
}

}  // namespace tarnwick
