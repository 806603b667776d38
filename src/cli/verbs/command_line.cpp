// SPDX-License-Identifier: MIT
#include "cli/verbs/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <functional>
#include <set>
#include <sstream>
#include <type_traits>
#include <utility>
#include <variant>

#include "cli/terminal/console.h"
#include "cli/terminal/help_text.h"

namespace tarnwick {
namespace {

constexpr const char* kDescription =
    "Tarnwick watches web sites for changes of their content: the terminal front end. It works on the list of sites of "
    "a program folder, with or without the window open on the same folder.";

constexpr const char* kFooter =
    "Exit status: 0 when all is well, 1 when a site is down or a page differs, 2 when the work failed.\n"
    "Each verb has a --help with examples.";

constexpr const char* kFolder = "--folder";

// Whole numbers in decimal only; the library alone reads 010 as 8.
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

template <typename Id>
CLI::Validator siteNumber() {
  return CLI::Validator(
      [](std::string& text) {
        const std::string fault = decimalNumber()(text);
        Id id = 0;
        const bool fits = std::from_chars(text.data(), text.data() + text.size(), id).ec == std::errc();
        return !fault.empty() || fits ? fault : "\"" + text + "\" is no id: ids are whole numbers from 1 to 32767";
      },
      "");
}

/// Makes an option of the library out of one of ours.
class OptionMaker {
 public:
  OptionMaker(CLI::App& verb, const VerbOption& option) : verb_(verb), option_(option) {}

  CLI::Option* make() const {
    CLI::Option* made = std::visit([this](auto* target) { return add(*target); }, option_.target);
    if (!option_.type.empty()) {
      made->type_name(option_.type);
    }
    if (!option_.oneOf.empty()) {
      made->check(CLI::IsMember(option_.oneOf));
    }
    return made->required(option_.required);
  }

 private:
  CLI::Option* add(bool& flag) const { return verb_.add_flag(option_.name, flag, option_.meaning); }
  CLI::Option* add(std::string& text) const { return verb_.add_option(option_.name, text, option_.meaning); }

  // The library would take an empty text for none at all.
  CLI::Option* add(std::optional<std::string>& text) const {
    return verb_
        .add_option(option_.name, CLI::callback_t([&text](const CLI::results_t& values) {
                      text = values.back();
                      return true;
                    }),
                    option_.meaning)
        ->type_name("TEXT");
  }

  CLI::Option* add(std::vector<std::string>& texts) const {
    CLI::Option* made = verb_.add_option(option_.name, CLI::callback_t([&texts](const CLI::results_t& values) {
                                           texts = values;
                                           return true;
                                         }),
                                         option_.meaning);
    const bool byPlace = !option_.name.starts_with('-');
    return made->type_name("TEXT")
        ->type_size(1)
        ->expected(byPlace ? 0 : 1, CLI::detail::expected_max_vector_size)
        ->allow_extra_args(byPlace)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  }

  CLI::Option* add(std::int16_t& id) const {
    return verb_.add_option(option_.name, id, option_.meaning)->check(siteNumber<std::int16_t>());
  }
  CLI::Option* add(std::optional<std::int16_t>& id) const {
    return verb_
        .add_option_function<std::int16_t>(
            option_.name, [&id](const std::int16_t& value) { id = value; }, option_.meaning)
        ->check(siteNumber<std::int16_t>());
  }
  CLI::Option* add(std::vector<std::int16_t>& ids) const {
    return verb_.add_option(option_.name, ids, option_.meaning)->check(siteNumber<std::int16_t>());
  }
  CLI::Option* add(std::vector<std::int64_t>& ids) const {
    return verb_.add_option(option_.name, ids, option_.meaning)->check(siteNumber<std::int64_t>());
  }
  CLI::Option* add(std::int64_t& number) const {
    return verb_.add_option(option_.name, number, option_.meaning)
        ->check(decimalNumber())
        ->check(CLI::Range(option_.least, option_.most));
  }

  CLI::App& verb_;
  const VerbOption& option_;
};

// Before the verb and behind it; each help names it.
void addFolder(CLI::App& app, std::string& folder) {
  app.add_option(kFolder, folder,
                 "The program folder, in which tarnwick.mdb lies (default: the tool's own, or yours where that one is "
                 "shared)")
      ->type_name("DIR");
}

void addVerb(CLI::App& app, const Verb& verb, std::string& folder, Action& chosen) {
  CLI::App& made = *app.add_subcommand(verb.name, verb.summary);
  made.group("Verbs");
  made.footer(verb.footer);
  for (const VerbOption& option : verb.options) {
    OptionMaker(made, option).make();
  }
  for (const VerbOption& option : verb.options) {
    CLI::Option* one = made.get_option(option.name);
    if (!option.excludes.empty()) {
      one->excludes(made.get_option(option.excludes));
    }
    if (!option.needs.empty()) {
      one->needs(made.get_option(option.needs));
    }
  }
  addFolder(made, folder);
  made.callback([&chosen, &verb] { chosen = verb.action; });
}

bool isFolderNamed(const CLI::App& app) {
  const auto verbs = app.get_subcommands();
  return app.count(kFolder) > 0 ||
         std::ranges::any_of(verbs, [](const CLI::App* verb) { return verb->count(kFolder) > 0; });
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

// The names of the options that take a value.
std::set<std::string, std::less<>> namesWithValue(const std::vector<Verb>& verbs) {
  std::set<std::string, std::less<>> names{kFolder};
  for (const Verb& verb : verbs) {
    for (const VerbOption& option : verb.options) {
      if (option.name.starts_with("--") && !std::holds_alternative<bool*>(option.target)) {
        names.insert(option.name);
      }
    }
  }
  return names;
}

// An option that is written "--name=" has an empty value; the library would give it the next argument. As two
// arguments, the name and an empty one, it understands them.
std::vector<std::string> withEmptyValues(const std::vector<std::string>& arguments, const std::vector<Verb>& verbs) {
  const auto names = namesWithValue(verbs);
  std::vector<std::string> result;
  bool isValue = false;
  bool byPlaceOnly = false;
  for (const std::string& argument : arguments) {
    const bool isOption = !isValue && !byPlaceOnly;
    if (isOption && argument.ends_with('=') && names.contains(argument.substr(0, argument.size() - 1))) {
      result.push_back(argument.substr(0, argument.size() - 1));
      result.emplace_back();
    } else {
      result.push_back(argument);
    }
    isValue = isOption && names.contains(argument);
    byPlaceOnly = byPlaceOnly || (isOption && argument == "--");
  }
  return result;
}

// Arguments that cannot be understood: the library's text, and where to read on.
std::vector<std::string> complaintsOf(const CLI::App& app, const CLI::ParseError& error) {
  const auto verbs = app.get_subcommands();
  const std::string verb = verbs.empty() ? std::string() : " " + verbs.front()->get_name();
  const bool lacksVerb = verbs.empty() && dynamic_cast<const CLI::RequiredError*>(&error) != nullptr;
  return {lacksVerb ? whatStandsForAVerb(app.remaining()) : visibleText(error.what()),
          "See: tarnwickctl" + verb + " --help"};
}

// The help of `app` and of all its verbs.
void translate(CLI::App& app, const Wording& wording) {
  for (const char* const label : {"Usage", "OPTIONS", "POSITIONALS", "Positionals", "REQUIRED", "Needs", "Excludes"}) {
    app.get_formatter()->label(label, wording(label));
  }
  app.description(wording(app.get_description()));
  app.footer(wording(app.get_footer()));
  for (CLI::Option* option : app.get_options()) {
    option->description(wording(option->get_description()));
    option->group(wording(option->get_group()));
  }
  for (CLI::App* verb : app.get_subcommands([](CLI::App*) { return true; })) {
    verb->group(wording(verb->get_group()));
    translate(*verb, wording);
  }
}

}  // namespace

CommandLine understand(const std::vector<std::string>& arguments, const std::vector<Verb>& verbs,
                       const Wording& wording) {
  CommandLine line;
  std::string folder;
  CLI::App app(kDescription, "tarnwickctl");
  app.footer(kFooter);
  app.set_version_flag("--version", std::string("tarnwickctl ") + TARNWICK_VERSION);
  app.require_subcommand(1);
  app.get_formatter()->label("SUBCOMMAND", "VERB");
  app.fallthrough();
  // On Windows, too, a word that begins with a slash is a path.
  app.allow_windows_style_options(false);
  addFolder(app, folder);
  for (const Verb& verb : verbs) {
    addVerb(app, verb, folder, line.action);
  }
  if (!wording.isEmpty()) {
    translate(app, wording);
  }
  try {
    std::vector<std::string> given = withEmptyValues(arguments, verbs);
    std::ranges::reverse(given);
    app.parse(std::move(given));
    if (isFolderNamed(app)) {
      line.folder = folder;
    }
  } catch (const CLI::Success& wish) {
    std::ostringstream text;
    app.exit(wish, text, text);
    line.text = withoutLineEnd(wrappedHelp(text.str()));
  } catch (const CLI::ParseError& error) {
    line.complaints = complaintsOf(app, error);
  }
  return line;
}

}  // namespace tarnwick
