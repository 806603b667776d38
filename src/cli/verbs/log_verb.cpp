// SPDX-License-Identifier: MIT
#include <optional>
#include <ostream>

#include "cli/terminal/consent.h"
#include "cli/terminal/json_output.h"
#include "cli/terminal/moment.h"
#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"

namespace tarnwick {
namespace {

// More than a disk holds; the library names the limit in its message.
constexpr std::int64_t kMostRows = 1000000000;

struct LogOptions {
  std::string action = "show";
  std::optional<std::string> since;
  std::optional<std::int16_t> idSite;
  bool down = false;
  std::int64_t limit = 0;
  bool content = false;
  bool json = false;
  bool yes = false;

  bool chooses() const { return since || idSite || down || limit != 0 || content || json; }
};

LogChoice choiceOf(Tool& tool, const LogOptions& options) {
  LogChoice choice;
  if (options.since) {
    choice.since = momentOf(*options.since, tool.services().clock.localNow());
  }
  choice.idSite = options.idSite;  // the log may hold sites that are gone
  choice.failures = options.down;
  if (options.limit > 0) {
    choice.newest = options.limit;
  }
  choice.content = options.content;
  return choice;
}

JsonValue jsonOf(const std::optional<std::string>& text) { return text ? jsonText(*text) : JsonValue(); }

template <typename Value>
JsonValue jsonOf(const std::optional<Value>& value) {
  return value ? JsonValue(*value) : JsonValue();
}

JsonValue rowJson(const LogRow& row, bool content) {
  JsonValue json{{"dateStamp", jsonOf(row.dateStamp)},
                 {"idSite", jsonOf(row.idSite)},
                 {"url", jsonOf(row.url)},
                 {"status", jsonOf(row.status)},
                 {"errCode", jsonOf(row.errCode)},
                 {"errDescription", jsonOf(row.errDescription)}};
  if (content) {
    json["content"] = jsonOf(row.content);
  }
  return json;
}

std::string stateText(const Console& console, const LogRow& row) {
  if (!row.status) {
    return "-   ";
  }
  return *row.status ? console.coloured(Console::Colour::green, "up  ")
                     : console.coloured(Console::Colour::red, "down");
}

// A page, its lines set off from those of the log.
void printPage(std::ostream& out, std::string_view page) {
  while (!page.empty()) {
    const auto end = page.find('\n');
    std::string_view line = page.substr(0, end);
    page.remove_prefix(end == std::string_view::npos ? page.size() : end + 1);
    if (line.ends_with('\r')) {
      line.remove_suffix(1);
    }
    out << "    " << visibleText(line) << '\n';
  }
}

void printRow(Console& console, const LogRow& row) {
  std::ostream& out = console.out();
  out << visibleText(row.dateStamp.value_or("-")) << "  " << stateText(console, row) << "  "
      << (row.idSite ? std::to_string(*row.idSite) : "-") << "  " << visibleText(row.url.value_or(""));
  if (row.errDescription && !row.errDescription->empty()) {
    out << ": " << visibleText(console.worded(*row.errDescription));
  }
  out << '\n';
  printPage(out, row.content.value_or(""));
}

int showLog(Tool& tool, const LogOptions& options) {
  if (options.yes) {
    throw std::runtime_error("Only \"log clear\" takes --yes.");
  }
  Console& console = tool.console();
  JsonArray array(console);
  bool any = false;
  tool.data().readLog(choiceOf(tool, options), [&](const LogRow& row) {
    any = true;
    if (options.json) {
      array.add(rowJson(row, options.content));
    } else {
      printRow(console, row);
    }
    return console.good();  // who reads a pipe may have seen enough
  });
  if (options.json) {
    array.end();
  } else if (!any) {
    console.complain(tool.data().getControl("clogs").toBool()
                         ? "The log holds no such result."
                         : "The log holds no such result, and none is written. To write them: tarnwickctl settings "
                           "clogs on");
  }
  return exit_status::ok;
}

int clearLog(Tool& tool, const LogOptions& options) {
  if (options.chooses()) {
    throw std::runtime_error("\"log clear\" empties the whole log; it takes no option but --yes.");
  }
  m& data = tool.data();
  if (!consents(tool.console(), options.yes, "Delete the whole log?")) {
    return exit_status::failed;
  }
  data.clearLog();
  tool.console().tell("The log is empty now.");
  return exit_status::ok;
}

}  // namespace

Verb logVerb() {
  auto options = std::make_shared<LogOptions>();
  return Verb{
      "log",
      "Show the log of check results, the oldest first, or empty it",
      {{.name = "ACTION", .target = &options->action, .meaning = "show (default), clear", .oneOf = {"show", "clear"}},
       {.name = "--since",
        .target = &options->since,
        .meaning = "From this moment on: " + std::string(kMomentForms),
        .type = "WHEN"},
       {.name = "--site",
        .target = &options->idSite,
        .meaning = "Only this site, also one that is deleted",
        .type = "ID"},
       {"--down", &options->down, "Only checks that failed"},
       {.name = "--limit",
        .target = &options->limit,
        .meaning = "Only the N newest of them",
        .type = "N",
        .least = 1,
        .most = kMostRows},
       {"--content", &options->content, "The pages of the checks that failed as well; none is kept of the others"},
       jsonOption(options->json),
       {"--yes", &options->yes, "For \"clear\": do not ask; needed where nobody can be asked"}},
      "The setting clogs says whether results are written to the log.\n" +
          examples({{"log --since today --down", "what has failed today"},
                    {"log --site 3 --limit 20", "the last 20 checks of a site"},
                    {"log --since 2h --json | jq -r '.[] | select(.status == false) | .url' | sort | uniq -c",
                     "how often each address has failed in the last two hours"},
                    {"log clear --yes", "empty it, without a question"}}),
      [options](Tool& tool) {
        return options->action == "clear" ? clearLog(tool, *options) : showLog(tool, *options);
      }};
}

}  // namespace tarnwick
