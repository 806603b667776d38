// SPDX-License-Identifier: MIT
#include <algorithm>
#include <ostream>

#include "base/text.h"
#include "cli/list/site_import.h"
#include "cli/list/site_list_csv.h"
#include "cli/list/site_list_json.h"
#include "cli/list/site_list_stored.h"
#include "cli/terminal/consent.h"
#include "cli/terminal/input_file.h"
#include "cli/terminal/json_text.h"
#include "cli/verbs/tool.h"
#include "cli/verbs/unwatched.h"
#include "cli/verbs/verbs.h"

namespace tarnwick {
namespace {

constexpr const char* kStream = "-";

enum class Format { csv, json };

struct ExportOptions {
  std::string file;
  std::string format;
  bool noPasswords = false;
  bool baselines = false;
};

struct ImportVerbOptions {
  std::string file;
  std::string format;
  ImportOptions how;
  bool dryRun = false;
  bool yes = false;
  bool json = false;
};

Format formatOf(const std::string& file, const std::string& format) {
  const std::string end =
      format.empty() ? lowerCase(file.substr(std::min(file.rfind('.'), file.size()))) : "." + format;
  if (end == ".csv") {
    return Format::csv;
  }
  if (end == ".json") {
    return Format::json;
  }
  throw std::runtime_error("The format of \"" + visibleText(file) +
                           "\" does not show in its name. Add --format csv or --format json.");
}

std::string shownName(const std::string& file) { return file == kStream ? "standard input" : visibleText(file); }

std::string countText(std::size_t count) { return std::to_string(count) + (count == 1 ? " site" : " sites"); }

/// Tells which of the sites that are exported an import would refuse, since the list has not only been edited here.
class ImportWarnings {
 public:
  ImportWarnings(Console& console, const Fields& fields) : console_(console), fields_(fields) {}

  void look(const ListedSite& site) {
    ListFaults faults;
    ListValues values(0, faults);
    values.id(std::to_string(site.idSite.value_or(0)));
    for (const SiteField& field : fields_.site) {
      const FieldValue value = valueOf(field, site.site);
      if (const auto* const text = std::get_if<std::string>(&value)) {
        values.value(field, *text);
      }
    }
    checkTexts(site.site, values);
    if (!faults.none() && ++count_ <= ListFaults::kMostKept) {
      console_.complain("An import will refuse site " + std::to_string(site.idSite.value_or(0)) + ": " +
                        faults.kept().front().text + ".");
    }
  }

  void end() {
    if (count_ > ListFaults::kMostKept) {
      console_.complain("An import will refuse " + countText(count_) + "; the first " +
                        std::to_string(ListFaults::kMostKept) + " are named.");
    }
  }

 private:
  Console& console_;
  const Fields& fields_;
  std::size_t count_ = 0;
};

/// A list on its way to standard output: every byte into a file or a pipe, so that an import finds it as it was, and
/// lines that act on nothing to a terminal.
class ListOutput {
 public:
  explicit ListOutput(Console& console) : console_(console) {}

  void write(std::string_view bytes) {
    if (!console_.isTerminal()) {
      console_.out() << bytes;
      return;
    }
    line_ += bytes;
    std::size_t begin = 0;
    for (auto end = line_.find('\n'); end != std::string::npos; end = line_.find('\n', begin)) {
      std::string_view line = std::string_view(line_).substr(begin, end - begin);
      if (line.ends_with('\r')) {
        line.remove_suffix(1);
      }
      console_.out() << visibleText(line) << '\n';
      begin = end + 1;
    }
    line_.erase(0, begin);
  }
  void end() { console_.out() << visibleText(line_); }

 private:
  Console& console_;
  std::string line_;
};

std::size_t writeList(Tool& tool, Format format, ListColumns columns, const ByteSink& sink) {
  m& data = tool.data();
  // Whether options are columns is of the same state as the options, whoever sets one meanwhile.
  const Snapshot oneState(data.database());
  columns.options = hasOptions(data);
  const auto writer = format == Format::csv ? makeCsvWriter(columns, sink, tool.fields())
                                            : makeJsonWriter(columns, sink, tool.fields());
  ImportWarnings warnings(tool.console(), tool.fields());
  std::size_t count = 0;
  writer->begin(columns.options ? knownOptions(data, kAllSites) : OptionValues());
  readListedSites(data, columns, [&](const ListedSite& site) {
    writer->add(site);
    warnings.look(site);
    ++count;
  });
  writer->end();
  warnings.end();
  return count;
}

int exportList(Tool& tool, const ExportOptions& options) {
  const Format format = formatOf(options.file, options.format);
  const ListColumns columns{.passwords = !options.noPasswords, .baselines = options.baselines};
  Console& console = tool.console();
  if (options.file == kStream) {
    ListOutput out(console);
    writeList(tool, format, columns, [&out](std::string_view bytes) { out.write(bytes); });
    out.end();
    return exit_status::ok;
  }
  // Also a folder without a list is told before anything is made.
  if (tool.services().files.isSameFile(options.file, tool.data().database().dbPath())) {
    throw std::runtime_error("The file \"" + visibleText(options.file) +
                             "\" is the list itself. Export to a file of another name.");
  }
  std::size_t count = 0;
  tool.services().files.writePrivately(options.file,
                                       [&](const ByteSink& sink) { count = writeList(tool, format, columns, sink); });
  console.say("Exported " + countText(count) + " to " + shownName(options.file) + ".");
  return exit_status::ok;
}

std::vector<ListedSite> readList(FileSystem& files, const ImportVerbOptions& options, const Fields& fields,
                                 ListFaults& faults) {
  const Format format = formatOf(options.file, options.format);
  const std::string text = readInput(files, options.file);
  return format == Format::csv ? readSiteListCsv(text, faults, fields) : readSiteListJson(text, faults, fields);
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
    std::string names;
    for (const std::string& name : fieldNamesOf(fields, step)) {
      names += (names.empty() ? "" : ", ") + name;
    }
    line += " (" + names + ")";
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

void tell(Console& console, const Fields& fields, const ImportPlan& plan, const ImportVerbOptions& options) {
  using enum ImportStep::Action;
  if (options.json) {
    JsonValue json = jsonOf(fields, plan, options.dryRun);
    if (plan.optionsOfAll) {
      json["optionsOfAll"] = optionsJson(*plan.optionsOfAll);
    }
    sayJson(console, std::move(json));
    return;
  }
  const auto count = [&](ImportStep::Action action) { return std::to_string(plan.count(action)); };
  const std::string unchanged = std::to_string(plan.unchanged) + " unchanged.";
  if (options.dryRun) {
    if (plan.optionsOfAll) {
      console.out() << "change the options of all sites\n";
    }
    for (const ImportStep& step : plan.steps) {
      console.out() << lineOf(fields, step) << '\n';
    }
    console.say(count(add) + " to add, " + count(change) + " to change, " + count(remove) + " to delete, " + unchanged);
    return;
  }
  if (plan.optionsOfAll) {
    console.say("The options of all sites are changed.");
  }
  console.say(count(add) + " added, " + count(change) + " changed, " + count(remove) + " deleted, " + unchanged);
}

void complainOfLines(Console& console, const std::string& file, const ListFaults& faults) {
  for (const ListFaults::Fault& fault : faults.kept()) {
    console.complain(shownName(file) + ", line " + std::to_string(fault.line) + ": " + fault.text + ".");
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

ImportPlan planOrRaise(m& data, std::vector<ListedSite> sites, const ImportOptions& how, ListFaults& faults) {
  ImportPlan plan = planImport(data, std::move(sites), how, faults);
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

int importList(Tool& tool, const ImportVerbOptions& options) {
  ListFaults faults;
  std::vector<ListedSite> sites = readList(tool.services().files, options, tool.fields(), faults);
  m& data = tool.data();
  if (!options.dryRun && faults.none() && !mayReplace(tool, options, sites)) {
    return exit_status::failed;
  }
  try {
    if (options.dryRun) {
      const Snapshot oneState(data.database());
      const ImportPlan plan = planOrRaise(data, std::move(sites), options.how, faults);
      tell(tool.console(), tool.fields(), plan, options);
      complainOfDoubts(tool.console(), options.file, plan.doubts);
      return exit_status::ok;
    }
    Transaction whole(data.database());
    const ImportPlan plan = planOrRaise(data, std::move(sites), options.how, faults);
    carryOut(data, plan);
    whole.commit();
    tell(tool.console(), tool.fields(), plan, options);
    complainOfDoubts(tool.console(), options.file, plan.doubts);
    hintAtUnwatched(tool, takenIn(plan));
    return exit_status::ok;
  } catch (const SiteListError& error) {
    complainOf(tool.console(), options.file, error.faults());
    return exit_status::failed;
  }
}

VerbOption fileOption(std::string& file, const std::string& stream) {
  return {.name = "FILE",
          .target = &file,
          .meaning = "The file, whose name ends in .csv or .json; - is " + stream,
          .required = true};
}

VerbOption formatOption(std::string& format) {
  return {.name = "--format",
          .target = &format,
          .meaning = "The file's format, whatever its name: csv or json",
          .oneOf = {"csv", "json"}};
}

Verb exportVerb() {
  auto options = std::make_shared<ExportOptions>();
  return Verb{
      "export",
      "Write the list of sites to a CSV or JSON file",
      {fileOption(options->file, "standard output"),
       formatOption(options->format),
       {"--no-passwords", &options->noPasswords, "Leave the passwords out; an import then keeps those stored"},
       {"--baselines", &options->baselines, "Write the pages that the sites are compared with as well"}},
      "The file holds what has been set for each site, with its POST variables; what checks have found is not part "
      "of it. Only you can read it, and one that is there already is replaced when the new one is complete.\n" +
          examples({{"export sites.csv", "for a spreadsheet, or for another computer"},
                    {"export --baselines sites.json", "a copy of the whole list"},
                    {"export - --format json --no-passwords", "to standard output"}}),
      [options](Tool& tool) { return exportList(tool, *options); }};
}

Verb importVerb() {
  auto options = std::make_shared<ImportVerbOptions>();
  return Verb{
      "import",
      "Take sites from a CSV or JSON file into the list",
      {fileOption(options->file, "standard input"),
       formatOption(options->format),
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
      "it, and one without an id is added as a new one. All of the file is taken, or nothing: each fault is told with "
      "its line.\n"
      "A CSV file names its columns in the first line, separated by commas. Only url must be there; the others are "
      "idSite, method (get or post), active, tInterval (minutes), alertEmail, email, sUserName, sPassWord, postVars "
      "(name=value&name=value, other bytes than letters and digits as %XX), baseline (base64). An empty idSite, "
      "method, tInterval or yes/no is as one left out. A JSON file has the form {\"tarnwick\": 1, \"sites\": "
      "[{\"url\": ...}, ...]}.\n" +
          examples({{"import sites.csv --dry-run", "what would be added and changed"},
                    {"import sites.csv", "do it"},
                    {"import sites.json --replace", "make the list as the file has it"},
                    {"import more.csv --as-new", "the list of somebody else, beside one's own"}}),
      [options](Tool& tool) { return importList(tool, *options); }};
}

}  // namespace

std::vector<Verb> exchangeVerbs() { return {exportVerb(), importVerb()}; }

}  // namespace tarnwick
