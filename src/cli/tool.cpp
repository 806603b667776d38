#include "cli/tool.h"

#include <algorithm>
#include <ostream>
#include <sstream>

#include "cli/tool_prompts.h"
#include "cli/verbs.h"
#include "platform/program_folder.h"

namespace tarnwick {
namespace {

constexpr const char* kDescription =
    "Tarnwick watches web sites for changes of their content: the terminal front end.\n"
    "It works on the list of sites of a program folder, with or without the window open on the same folder.";

constexpr const char* kFooter =
    "Exit status: 0 when all is well, 1 when a site is down or a page differs, 2 when the work could not be done.\n"
    "Each verb has a --help with examples.";

void addVerbs(CLI::App& app, Action& chosen) {
  addSiteVerbs(app, chosen);
  addPostVerb(app, chosen);
  addPageVerbs(app, chosen);
  addCountersVerb(app, chosen);
  addCheckVerb(app, chosen);
  addRunVerb(app, chosen);
  addSettingsVerb(app, chosen);
  addLogVerb(app, chosen);
  addUpkeepVerbs(app, chosen);
  addExchangeVerbs(app, chosen);
}

std::string withoutLineEnd(std::string text) {
  while (text.ends_with('\n')) {
    text.pop_back();
  }
  return text;
}

// Arguments that cannot be understood: the library's text, and where to read on.
void complainOfUsage(Console& console, const CLI::App& app, const CLI::ParseError& error,
                     const std::vector<std::string>& arguments) {
  const auto verbs = app.get_subcommands();
  if (verbs.empty() && !arguments.empty() && !arguments.front().starts_with("-")) {
    console.complain("There is no verb \"" + visibleText(arguments.front()) + "\".");
    console.complain("See: tarnwickctl --help");
    return;
  }
  const std::string verb = verbs.empty() ? std::string() : " " + verbs.front()->get_name();
  console.complain(visibleText(error.what()));
  console.complain("See: tarnwickctl" + verb + " --help");
}

}  // namespace

std::runtime_error noSuchSite(std::int16_t idSite) {
  return std::runtime_error("There is no site " + std::to_string(idSite) +
                            ". The ids are listed by: tarnwickctl sites");
}

void requireListed(Tool& tool, std::int16_t idSite) {
  if (!tool.data().idExists(idSite)) {
    throw noSuchSite(idSite);
  }
}

CLI::Validator decimalNumber() {
  return CLI::Validator(
      [](std::string& text) {
        const std::size_t digits = text.starts_with('-') ? 1 : 0;
        const bool good = (text.size() == digits + 1 || (text.size() > digits && text[digits] != '0')) &&
                          text.find_first_not_of("0123456789", digits) == std::string::npos;
        return good ? std::string() : "\"" + text + "\" is no whole number";
      },
      "");
}

CLI::Option* addSiteId(CLI::App& verb, std::int16_t& idSite) {
  return verb.add_option("ID", idSite, "The site's id, as the verb sites lists it")->check(decimalNumber());
}

CLI::Option* addJsonFlag(CLI::App& verb, bool& json) { return verb.add_flag("--json", json, "Print JSON"); }

std::string examples(std::initializer_list<std::pair<const char*, const char*>> lines) {
  std::string text = "Examples:";
  for (const auto& [arguments, purpose] : lines) {
    text += std::string("\n  tarnwickctl ") + arguments + "\n      " + purpose;
  }
  return text;
}

int runTool(const std::vector<std::string>& arguments, const std::string& programFolder, const Services& services,
            Console& console) {
  try {
    CLI::App app(kDescription, "tarnwickctl");
    app.footer(kFooter);
    app.set_version_flag("--version", std::string("tarnwickctl ") + TARNWICK_VERSION);
    app.require_subcommand(1);
    app.fallthrough();
    std::string folder = programFolder;
    app.add_option("--folder", folder,
                   "The program folder, in which tarnwick.mdb lies (default: the tool's own, or yours where that one "
                   "is shared)")
        ->type_name("DIR");
    Action chosen;
    addVerbs(app, chosen);
    try {
      std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
      app.parse(reversed);
    } catch (const CLI::Success& wish) {
      std::ostringstream text;
      app.exit(wish, text, text);
      console.say(withoutLineEnd(text.str()));
      return exit_status::ok;
    } catch (const CLI::ParseError& error) {
      complainOfUsage(console, app, error, arguments);
      return exit_status::failed;
    }
    if (app.count("--folder") == 0) {
      folder = programFolderFor(programFolder);
    }
    while (folder.size() > 1 && folder.back() == '/') {
      folder.pop_back();
    }
    ToolPrompts prompts(console);
    const Services withPrompts{services.clock,   services.pump, services.timers, services.databases, services.transfers,
                               services.sockets, prompts,       services.sound,  services.programs,  services.opener};
    Tool tool(folder, withPrompts, console);
    return chosen(tool);
  } catch (const std::exception& error) {
    console.complain(error.what());
    return exit_status::failed;
  }
}

}  // namespace tarnwick
