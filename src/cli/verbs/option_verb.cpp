// SPDX-License-Identifier: MIT
#include <algorithm>
#include <charconv>
#include <optional>
#include <stdexcept>
#include <utility>

#include "base/text.h"
#include "cli/terminal/json_output.h"
#include "cli/terminal/text_grid.h"
#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"

namespace tarnwick {
namespace {

constexpr std::string_view kAll = "all";
constexpr const char* kUnset = "-";

struct OptionVerbOptions {
  std::string site;
  std::vector<std::string> wishes;
  bool json = false;
};

/// An option that is asked for, and what is to become of it.
struct Wish {
  const OptionField* option = nullptr;
  /// Empty to remove it; nothing to show it.
  std::optional<std::string> value;
};

std::int16_t siteOf(Tool& tool, const std::string& text) {
  if (equalsIgnoringCase(text, kAll)) {
    return kAllSites;
  }
  std::int16_t id = 0;
  const char* const end = text.data() + text.size();
  const auto [rest, fault] = std::from_chars(text.data(), end, id);
  if (fault != std::errc() || rest != end || id < 1) {
    throw std::runtime_error("\"" + visibleText(text) +
                             "\" is neither all nor the id of a site. The ids are listed by: tarnwickctl sites");
  }
  requireListed(tool, id);
  return id;
}

std::string nameOf(std::int16_t idSite) {
  return idSite == kAllSites ? std::string("all sites") : "site " + std::to_string(idSite);
}

std::string howToSet(const std::string& name, const std::string& value) {
  return "To set the option " + name + ", write: " + name + "=" + visibleText(value);
}

std::vector<Wish> wishesOf(m& data, std::int16_t idSite, const std::vector<std::string>& texts) {
  std::vector<Wish> wishes;
  for (const std::string& text : texts) {
    const std::size_t sign = text.find('=');
    try {
      wishes.push_back({&data.optionField(visibleText(text.substr(0, sign))), std::nullopt});
    } catch (const std::runtime_error&) {
      // The settings are given so.
      if (sign == std::string::npos && wishes.size() == 1 && !wishes.front().value) {
        throw std::runtime_error(howToSet(wishes.front().option->name, text));
      }
      throw;
    }
    if (sign != std::string::npos) {
      wishes.back().value = text.substr(sign + 1);
    }
  }
  if (wishes.empty()) {
    for (const OptionField& option : data.optionFields()) {
      if (idSite == kAllSites || option.ofSite) {
        wishes.push_back({&option, std::nullopt});
      }
    }
  }
  return wishes;
}

// All of them are stored, or none when one is refused.
void store(m& data, std::int16_t idSite, const std::vector<Wish>& wishes) {
  Transaction whole(data.database());
  for (const auto& [option, value] : wishes) {
    if (value && value->empty()) {
      data.removeOption(idSite, option->name);
    } else if (value) {
      data.setOption(idSite, option->name, *value);
    }
  }
  whole.commit();
}

void tellWhatIsStored(Console& console, std::int16_t idSite, const std::vector<Wish>& wishes) {
  for (const auto& [option, value] : wishes) {
    if (value) {
      console.tell("The option " + option->name + " of " + nameOf(idSite) +
                   (value->empty() ? " is removed." : " is stored."));
    }
  }
}

std::optional<std::string> ownValue(const OptionValues& own, const OptionField& option) {
  const auto found = own.find(option.name);
  return found == own.end() ? std::nullopt : std::optional(found->second);
}

JsonValue jsonOf(const std::optional<std::string>& value) { return value ? jsonText(*value) : JsonValue(); }

void showAsJson(Console& console, m& data, std::int16_t idSite, const std::vector<Wish>& wishes) {
  const OptionValues own = data.options(idSite);
  const OptionsInForce inForce = data.optionsInForce();
  JsonValue json = JsonValue::object();
  for (const Wish& wish : wishes) {
    json[wish.option->name] = JsonValue{{"own", jsonOf(ownValue(own, *wish.option))},
                                        {"effective", jsonOf(inForce.valueOf(idSite, wish.option->name))}};
  }
  sayJson(console, std::move(json));
}

void list(Console& console, m& data, std::int16_t idSite, const std::vector<Wish>& wishes) {
  const OptionValues own = data.options(idSite);
  const OptionsInForce inForce = data.optionsInForce();
  TextGrid grid({{"OPTION"}, {"OWN"}, {"EFFECTIVE"}});
  for (const Wish& wish : wishes) {
    grid.addRow({{wish.option->name},
                 {ownValue(own, *wish.option).value_or(kUnset)},
                 {inForce.valueOf(idSite, wish.option->name).value_or(kUnset)}});
  }
  grid.print(console);
}

// For a script: the value alone where one option is asked for.
void show(Console& console, m& data, std::int16_t idSite, const std::vector<Wish>& wishes) {
  const OptionsInForce inForce = data.optionsInForce();
  for (const auto& [option, wished] : wishes) {
    if (wished) {
      continue;
    }
    const auto value = inForce.valueOf(idSite, option->name);
    const std::string text = value.value_or("");
    console.say((wishes.size() > 1 ? option->name + "=" : "") + console.shown(text));
    if (!value) {
      console.complain("The option " + option->name + " is not set: " + option->original + ".");
    }
  }
}

int option(Tool& tool, const OptionVerbOptions& options) {
  m& data = tool.data();
  const std::int16_t idSite = siteOf(tool, options.site);
  const std::vector<Wish> wishes = wishesOf(data, idSite, options.wishes);
  const bool stores = std::ranges::any_of(wishes, [](const Wish& wish) { return wish.value.has_value(); });
  if (stores) {
    store(data, idSite, wishes);
  }
  if (options.json) {
    showAsJson(tool.console(), data, idSite, wishes);
  } else if (options.wishes.empty()) {
    list(tool.console(), data, idSite, wishes);
  } else {
    tellWhatIsStored(tool.console(), idSite, wishes);
    show(tool.console(), data, idSite, wishes);
  }
  return exit_status::ok;
}

std::string listOf(const std::vector<OptionField>& fields) {
  std::string list = "Names, and what they take:";
  for (const OptionField& field : fields) {
    list += "\n  " + field.name + (field.ofSite ? " (all|ID)" : " (all)") + "\n      " + field.meaning +
            ".\n      Takes " + field.values() + "." +
            (field.recommended.empty() ? "" : " In a new list: \"" + field.recommended + "\".") +
            "\n      Not set: " + field.original + ".";
  }
  return list + "\n";
}

}  // namespace

Verb optionVerb(const Fields& fields) {
  auto options = std::make_shared<OptionVerbOptions>();
  return Verb{
      "option",
      "Show or change what a site, or the program, does otherwise than originally",
      {{.name = "SITE",
        .target = &options->site,
        .meaning = "all, or the id of a site as the verb sites lists it",
        .type = "all|ID",
        .required = true},
       {.name = "NAME",
        .target = &options->wishes,
        .meaning = "NAME shows an option, NAME=VALUE sets it, NAME= removes it; all are listed without one",
        .type = "NAME[=VALUE]"},
       jsonOption(options->json)},
      "A site without a value of its own goes by the one for all. Where neither is set, the program does as it did "
      "originally.\n" +
          listOf(fields.options) +
          examples({{"option all", "what is set for all sites"},
                    {"option all mailLimit=30", "hand over a mail in half a minute at most"},
                    {"option 3 adopt=anything", "one site does otherwise"},
                    {"option 3 adopt=", "and again as all others"}}),
      [options](Tool& tool) { return option(tool, *options); }};
}

}  // namespace tarnwick
