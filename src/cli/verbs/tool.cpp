#include "cli/verbs/tool.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <new>
#include <ostream>
#include <sstream>

#include "base/errors.h"
#include "cli/terminal/help_text.h"
#include "cli/terminal/tool_prompts.h"
#include "cli/verbs/verbs.h"
#include "platform/file_access.h"
#include "platform/program_folder.h"

namespace tarnwick {
namespace {

constexpr const char* kDescription =
    "Tarnwick watches web sites for changes of their content: the terminal front end. It works on the list of sites of "
    "a program folder, with or without the window open on the same folder.";

constexpr const char* kFooter =
    "Exit status: 0 when all is well, 1 when a site is down or a page differs, 2 when the work failed.\n"
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
  for (CLI::App* verb : app.get_subcommands({})) {
    verb->group("Verbs");
  }
}

// Before the verb and behind it; each help names it.
void addFolder(CLI::App& app, std::string& folder) {
  app.add_option("--folder", folder,
                 "The program folder, in which tarnwick.mdb lies (default: the tool's own, or yours where that one is "
                 "shared)")
      ->type_name("DIR");
}

void addFolderEverywhere(CLI::App& app, std::string& folder) {
  addFolder(app, folder);
  for (CLI::App* verb : app.get_subcommands({})) {
    addFolder(*verb, folder);
  }
}

bool isFolderNamed(const CLI::App& app) {
  const auto verbs = app.get_subcommands();
  return app.count("--folder") > 0 ||
         std::ranges::any_of(verbs, [](const CLI::App* verb) { return verb->count("--folder") > 0; });
}

// As messages name it: they may be read elsewhere than where the tool was started.
std::string absoluteFolder(const std::string& folder) {
  if (folder.empty()) {
    throw std::runtime_error("--folder names no folder. Give the one in which tarnwick.mdb lies.");
  }
  std::filesystem::path path = std::filesystem::absolute(pathOf(folder));
  // Behind a link "x/.." may be another folder than this one, so only what is surely the same is taken away.
  if (std::ranges::find(path, "..") == path.end()) {
    path = path.lexically_normal();
  }
  std::string text = textOf(path);
  while (text.size() > 1 && text.ends_with('/')) {
    text.pop_back();
  }
  return text;
}

std::string withoutLineEnd(std::string text) {
  while (text.ends_with('\n')) {
    text.pop_back();
  }
  return text;
}

// `unknown` is what the command line holds beside options that are known.
std::string whatStandsForAVerb(const std::vector<std::string>& unknown) {
  if (unknown.empty()) {
    return "A verb is missing, for instance: tarnwickctl sites";
  }
  const std::string& first = unknown.front();
  return std::string("There is no ") + (first.starts_with("-") ? "option" : "verb") + " \"" + visibleText(first) +
         "\".";
}

// Arguments that cannot be understood: the library's text, and where to read on.
void complainOfUsage(Console& console, const CLI::App& app, const CLI::ParseError& error) {
  const auto verbs = app.get_subcommands();
  const std::string verb = verbs.empty() ? std::string() : " " + verbs.front()->get_name();
  const bool lacksVerb = verbs.empty() && dynamic_cast<const CLI::RequiredError*>(&error) != nullptr;
  console.complain(lacksVerb ? whatStandsForAVerb(app.remaining()) : visibleText(error.what()));
  console.complain("See: tarnwickctl" + verb + " --help");
}

// What was written is part of the work. A reader that has gone has seen as much as it wanted.
int statusWithOutput(Console& console, int status) {
  const std::error_code fault = console.flush();
  if (!fault || fault == std::errc::broken_pipe) {
    return status;
  }
  console.complain("Standard output took not all of it: " + fault.message() + ".");
  return exit_status::failed;
}

// A folder that is named wrongly looks like one whose database is gone.
std::string adviceOn(const std::string& folder) {
  return !folder.empty() && kindOf(folder + "/tarnwick.mdb") == FileKind::none
             ? " Or name the right folder with --folder."
             : "";
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

CLI::Validator siteNumber() {
  return CLI::Validator(
      [](std::string& text) {
        const std::string fault = decimalNumber()(text);
        std::int16_t id = 0;
        const bool fits = std::from_chars(text.data(), text.data() + text.size(), id).ec == std::errc();
        return !fault.empty() || fits ? fault : "\"" + text + "\" is no id: ids are whole numbers from 1 to 32767";
      },
      "");
}

CLI::Option* addSiteId(CLI::App& verb, std::int16_t& idSite) {
  return verb.add_option("ID", idSite, "The site's id, as the verb sites lists it")->check(siteNumber());
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
  std::string folder;
  try {
    CLI::App app(kDescription, "tarnwickctl");
    app.footer(kFooter);
    app.set_version_flag("--version", std::string("tarnwickctl ") + TARNWICK_VERSION);
    app.require_subcommand(1);
    app.get_formatter()->label("SUBCOMMAND", "VERB");
    app.fallthrough();
    Action chosen;
    addVerbs(app, chosen);
    addFolderEverywhere(app, folder);
    try {
      std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
      app.parse(reversed);
    } catch (const CLI::Success& wish) {
      std::ostringstream text;
      app.exit(wish, text, text);
      console.say(withoutLineEnd(wrappedHelp(text.str())));
      return statusWithOutput(console, exit_status::ok);
    } catch (const CLI::ParseError& error) {
      complainOfUsage(console, app, error);
      return exit_status::failed;
    }
    folder = absoluteFolder(isFolderNamed(app) ? folder : programFolderFor(programFolder));
    ToolPrompts prompts(console);
    Tool tool(folder, services.with({.prompts = &prompts}), console);
    return statusWithOutput(console, chosen(tool));
  } catch (const DataAccessError& error) {
    console.complain(error.what() + adviceOn(folder));
    return exit_status::failed;
  } catch (const std::bad_alloc&) {
    console.complain(kNotEnoughMemory);
    return exit_status::failed;
  } catch (const std::exception& error) {
    console.complain(error.what());
    return exit_status::failed;
  }
}

}  // namespace tarnwick
