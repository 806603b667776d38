// SPDX-License-Identifier: MIT
#include <algorithm>
#include <ostream>

#include "cli/verbs/delivery_words.h"
#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"
#include "delivery/delivery.h"
#include "exchange/list/site_export.h"
#include "exchange/list/site_import.h"

namespace tarnwick {
namespace {

constexpr const char* kStream = "-";

struct ExportOptions {
  std::string file;
  std::string format;
  bool noPasswords = false;
  bool baselines = false;
  bool withSecrets = false;
  bool withHistory = false;
};

ListFormat formatOf(const std::string& file, const std::string& format) {
  if (const auto known = listFormatOf(format.empty() ? file : "." + format)) {
    return *known;
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

std::optional<std::string> secretOf(Tool& tool, const Channel& channel) {
  const auto answer = awaited<SecretStore::Answer>(
      tool.services(), {.why = "The key ring has not answered."},
      [&](auto answered) { tool.data().delivery().secrets().read(secretName(channel.id), answered); });
  if (!answer.secret) {
    tool.console().complain("The password or token of the channel " + channel.name +
                            " is not in the file: " + (answer.why.empty() ? "none is kept." : answer.why));
  }
  return answer.secret;
}

std::vector<ListedChannel> channelsOf(Tool& tool, ListFormat format, bool withSecrets) {
  std::vector<ListedChannel> listed;
  for (Channel& channel : tool.data().channels()) {
    const bool hasSecret = withSecrets && format == ListFormat::json && needsSecret(channel);
    std::optional<std::string> secret = hasSecret ? secretOf(tool, channel) : std::nullopt;
    listed.push_back({std::move(channel), std::move(secret)});
  }
  if (!listed.empty() && format == ListFormat::csv) {
    tool.console().complain("A CSV file has no place for channels. They are in one whose name ends in .json.");
  } else if (withSecrets) {
    tool.console().complain(
        "The file holds the passwords and tokens of the channels in clear. Keep it where nobody else can read it.");
  }
  return listed;
}

std::size_t writeList(Tool& tool, ListFormat format, const ListColumns& columns,
                      const std::vector<ListedChannel>& channels, const ByteSink& sink) {
  ImportWarnings warnings(tool.console(), tool.fields());
  const std::size_t count = writeSiteList(tool.data(), format, columns, channels, sink,
                                          [&warnings](const ListedSite& site) { warnings.look(site); });
  warnings.end();
  return count;
}

int exportList(Tool& tool, const ExportOptions& options) {
  const ListFormat format = formatOf(options.file, options.format);
  const ListColumns columns{
      .passwords = !options.noPasswords, .baselines = options.baselines, .history = options.withHistory};
  Console& console = tool.console();
  const std::vector<ListedChannel> channels = channelsOf(tool, format, options.withSecrets);
  if (options.file == kStream) {
    ListOutput out(console);
    writeList(tool, format, columns, channels, [&out](std::string_view bytes) { out.write(bytes); });
    out.end();
    return exit_status::ok;
  }
  // Also a folder without a list is told before anything is made.
  if (tool.services().files.isSameFile(options.file, tool.data().database().dbPath())) {
    throw std::runtime_error("The file \"" + visibleText(options.file) +
                             "\" is the list itself. Export to a file of another name.");
  }
  std::size_t count = 0;
  tool.services().files.writePrivately(
      options.file, [&](const ByteSink& sink) { count = writeList(tool, format, columns, channels, sink); });
  console.tell("Exported " + countText(count) + " to " + shownName(options.file) + ".");
  return exit_status::ok;
}

}  // namespace

Verb exportVerb() {
  auto options = std::make_shared<ExportOptions>();
  return Verb{
      "export",
      "Write the list of sites to a CSV or JSON file",
      {{.name = "FILE",
        .target = &options->file,
        .meaning = "The file, whose name ends in .csv or .json; - is standard output",
        .required = true},
       {.name = "--format",
        .target = &options->format,
        .meaning = "The file's format, whatever its name: csv or json",
        .oneOf = {"csv", "json"}},
       {"--no-passwords", &options->noPasswords, "Leave the passwords out; an import then keeps those stored"},
       {"--with-secrets", &options->withSecrets, "Write the passwords and tokens of the channels as well, in clear"},
       {"--baselines", &options->baselines, "Write the pages that the sites are compared with as well"},
       {"--with-history", &options->withHistory,
        "Write the history of each site as well: its hours, days and months, and its outages"}},
      "The file holds what has been set for each site, with its POST variables, and as JSON the channels; what checks "
      "have found is part of it only where the history is wanted. Only you can read it, and one that is there already "
      "is replaced when the new one is complete.\n" +
          examples({{"export sites.csv", "for a spreadsheet, or for another computer"},
                    {"export --baselines --with-history sites.json", "a copy of the whole list"},
                    {"export - --format json --no-passwords", "to standard output"}}),
      [options](Tool& tool) { return exportList(tool, *options); }};
}

}  // namespace tarnwick
