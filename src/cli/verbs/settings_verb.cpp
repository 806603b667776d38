// SPDX-License-Identifier: MIT
#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>
#include <ostream>

#include "base/text.h"
#include "cli/terminal/json_output.h"
#include "cli/terminal/text_grid.h"
#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"

namespace tarnwick {
namespace {

struct SettingsOptions {
  std::optional<std::string> key;
  std::optional<std::string> value;
  bool json = false;
};

const SettingField& settingOf(const Fields& fields, const std::string& name) {
  const auto setting = std::ranges::find(fields.settings, lowerCase(name),
                                         [](const SettingField& known) { return lowerCase(known.name); });
  if (setting == fields.settings.end()) {
    const auto isIt = [&](const OptionField& option) { return equalsIgnoringCase(option.name, name); };
    if (const auto option = std::ranges::find_if(fields.options, isIt); option != fields.options.end()) {
      throw std::runtime_error(option->name + " is an option, and no setting. See: tarnwickctl option all " +
                               option->name);
    }
    std::string list;
    for (const SettingField& known : fields.settings) {
      list += (list.empty() ? "" : ", ") + known.name;
    }
    throw std::runtime_error("There is no setting \"" + visibleText(name) + "\". The settings are: " + list + ".");
  }
  return *setting;
}

void requireSettings(m& data) {
  if (data.getControl("id") == SqlValue(std::string())) {
    throw std::runtime_error("The database " + data.database().dbPath() +
                             " has no settings row. Put back a good copy, for instance backup.mdb.");
  }
}

std::string textOf(const SettingField& key, const SqlValue& value) {
  return key.kind == FieldKind::flag ? (value.toBool() ? "on" : "off") : value.toText();
}

JsonValue jsonOf(const SettingField& key, const SqlValue& value) {
  if (value.isNull()) {
    return {};
  }
  if (key.kind == FieldKind::flag) {
    return value.toBool();
  }
  if (key.kind == FieldKind::seconds) {
    return value.toInt64();
  }
  return jsonText(value.toText());
}

int listSettings(Tool& tool, bool json) {
  m& data = tool.data();
  requireSettings(data);
  JsonValue object = JsonValue::object();
  TextGrid grid({{"SETTING"}, {"VALUE"}});
  for (const SettingField& key : tool.fields().settings) {
    const SqlValue value = data.getControl(key.name);
    object[key.name] = jsonOf(key, value);
    grid.addRow({{key.name}, {textOf(key, value)}});
  }
  if (json) {
    sayJson(tool.console(), object);
  } else {
    grid.print(tool.console());
  }
  return exit_status::ok;
}

int showSetting(Tool& tool, const SettingField& key, bool json) {
  m& data = tool.data();
  requireSettings(data);
  const SqlValue value = data.getControl(key.name);
  Console& console = tool.console();
  if (json) {
    sayJson(console, {{key.name, jsonOf(key, value)}});
  } else {
    const std::string text = textOf(key, value);
    console.say(console.shown(text));
  }
  return exit_status::ok;
}

bool flagOf(const SettingField& key, const std::string& text) {
  const std::string word = lowerCase(text);
  for (const char* yes : {"on", "yes", "true", "1"}) {
    if (word == yes) {
      return true;
    }
  }
  for (const char* no : {"off", "no", "false", "0"}) {
    if (word == no) {
      return false;
    }
  }
  throw std::runtime_error("The setting " + key.name + " is on or off (also yes or no, true or false, 1 " +
                           "or 0), and \"" + visibleText(text) + "\" is neither.");
}

std::string secondsOf(const SettingField& key, const std::string& text) {
  std::int32_t seconds = 0;
  const char* end = text.data() + text.size();
  const auto [rest, fault] = std::from_chars(text.data(), end, seconds);
  if (fault != std::errc() || rest != end || seconds <= 0) {
    throw std::runtime_error("The setting " + key.name + " is a whole number of seconds from 1 to " +
                             std::to_string(std::numeric_limits<std::int32_t>::max()) + ", and \"" + visibleText(text) +
                             "\" is none.");
  }
  return std::to_string(seconds);
}

int storeSetting(Tool& tool, const SettingField& key, const std::string& text, bool json) {
  Setting setting{key.name, text};
  if (key.kind == FieldKind::flag) {
    setting.value = flagOf(key, text);
  } else if (key.kind == FieldKind::seconds) {
    setting.value = secondsOf(key, text);
  }
  tool.data().storeSettings({setting});
  if (json) {
    return showSetting(tool, key, true);
  }
  tool.console().tell("The setting " + key.name + " is stored.");
  return exit_status::ok;
}

int settings(Tool& tool, const SettingsOptions& options) {
  if (!options.key) {
    return listSettings(tool, options.json);
  }
  const SettingField& key = settingOf(tool.fields(), *options.key);
  return options.value ? storeSetting(tool, key, *options.value, options.json) : showSetting(tool, key, options.json);
}

std::string listOf(const std::vector<SettingField>& settings) {
  const auto longest = std::ranges::max_element(settings, {}, [](const SettingField& key) { return key.name.size(); });
  std::string list = "Settings:";
  for (const SettingField& key : settings) {
    list += "\n  " + key.name + std::string(longest->name.size() + 2 - key.name.size(), ' ') + key.meaning;
  }
  return list + "\n";
}

}  // namespace

Verb settingsVerb(const Fields& fields) {
  auto options = std::make_shared<SettingsOptions>();
  return Verb{"settings",
              "Show or change the program's settings",
              {{"KEY", &options->key, "A setting, in any letter case; all of them without one"},
               {"VALUE", &options->value, "Its new value: a text, seconds, or on or off"},
               jsonOption(options->json)},
              listOf(fields.settings) + "A change takes effect at the next check, also in a run that is on.\n" +
                  examples({{"settings", "all of them"},
                            {"settings timeout 60", "wait a minute for a page"},
                            {"settings cemail on", "send alert mails"},
                            {"settings smtp \"\"", "an empty text"}}),
              [options](Tool& tool) { return settings(tool, *options); }};
}

}  // namespace tarnwick
