#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <optional>
#include <ostream>

#include "base/text.h"
#include "cli/terminal/json_text.h"
#include "cli/terminal/text_grid.h"
#include "cli/verbs/verbs.h"

namespace tarnwick {
namespace {

enum class Kind { text, seconds, flag };

struct Key {
  const char* name;
  Kind kind;
  const char* meaning;
};

constexpr std::array kKeys = {
    Key{"email", Kind::text, "the address that alert mails come from"},
    Key{"smtp", Kind::text, "the mail server that alert mails are handed to"},
    Key{"audio", Kind::text, "the .wav file that an alert plays"},
    Key{"program", Kind::text, "the program that an alert starts"},
    Key{"timeout", Kind::seconds, "how long a fetch may take, in seconds"},
    Key{"clogs", Kind::flag, "write every result to the log"},
    Key{"creports", Kind::flag, "write the daily report during a run"},
    Key{"cemail", Kind::flag, "send alert mails"},
    Key{"caudio", Kind::flag, "play the alert sound"},
    Key{"cprogram", Kind::flag, "start the alert program"},
};

struct SettingsOptions {
  std::optional<std::string> key;
  std::optional<std::string> value;
  bool json = false;
};

const Key& keyOf(const std::string& name) {
  const auto key = std::ranges::find(kKeys, lowerCase(name), &Key::name);
  if (key == kKeys.end()) {
    std::string list;
    for (const Key& known : kKeys) {
      list += (list.empty() ? "" : ", ") + std::string(known.name);
    }
    throw std::runtime_error("There is no setting \"" + visibleText(name) + "\". The settings are: " + list + ".");
  }
  return *key;
}

void requireSettings(m& data) {
  if (data.getControl("id") == SqlValue(std::string())) {
    throw std::runtime_error("The database " + data.database().dbPath() +
                             " has no settings row. Put back a good copy, for instance backup.mdb.");
  }
}

std::string textOf(const Key& key, const SqlValue& value) {
  return key.kind == Kind::flag ? (value.toBool() ? "on" : "off") : value.toText();
}

Json jsonOf(const Key& key, const SqlValue& value) {
  if (value.isNull()) {
    return {};
  }
  switch (key.kind) {
    case Kind::flag:
      return value.toBool();
    case Kind::seconds:
      return value.toInt64();
    case Kind::text:
      break;
  }
  return jsonText(value.toText());
}

int listSettings(Tool& tool, bool json) {
  m& data = tool.data();
  requireSettings(data);
  Json object = Json::object();
  TextGrid grid({{"SETTING"}, {"VALUE"}});
  for (const Key& key : kKeys) {
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

int showSetting(Tool& tool, const Key& key, bool json) {
  m& data = tool.data();
  requireSettings(data);
  const SqlValue value = data.getControl(key.name);
  Console& console = tool.console();
  if (json) {
    sayJson(console, {{key.name, jsonOf(key, value)}});
  } else {
    const std::string text = textOf(key, value);
    console.say(console.isTerminal() ? visibleText(text) : text);
  }
  return exit_status::ok;
}

bool flagOf(const Key& key, const std::string& text) {
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
  throw std::runtime_error("The setting " + std::string(key.name) + " is on or off (also yes or no, true or false, 1 " +
                           "or 0), and \"" + visibleText(text) + "\" is neither.");
}

std::string secondsOf(const Key& key, const std::string& text) {
  std::int32_t seconds = 0;
  const char* end = text.data() + text.size();
  const auto [rest, fault] = std::from_chars(text.data(), end, seconds);
  if (fault != std::errc() || rest != end || seconds <= 0) {
    throw std::runtime_error("The setting " + std::string(key.name) + " is a whole number of seconds from 1 to " +
                             std::to_string(std::numeric_limits<std::int32_t>::max()) + ", and \"" + visibleText(text) +
                             "\" is none.");
  }
  return std::to_string(seconds);
}

int storeSetting(Tool& tool, const Key& key, const std::string& text, bool json) {
  Setting setting{key.name, text};
  if (key.kind == Kind::flag) {
    setting.value = flagOf(key, text);
  } else if (key.kind == Kind::seconds) {
    setting.value = secondsOf(key, text);
  }
  tool.data().storeSettings({setting});
  if (json) {
    return showSetting(tool, key, true);
  }
  tool.console().say("The setting " + std::string(key.name) + " is stored.");
  return exit_status::ok;
}

int settings(Tool& tool, const SettingsOptions& options) {
  if (!options.key) {
    return listSettings(tool, options.json);
  }
  const Key& key = keyOf(*options.key);
  return options.value ? storeSetting(tool, key, *options.value, options.json) : showSetting(tool, key, options.json);
}

std::string listOfKeys() {
  std::string list = "Settings:";
  for (const Key& key : kKeys) {
    const std::string name = key.name;
    list += "\n  " + name + std::string(10 - name.size(), ' ') + key.meaning;
  }
  return list + "\n";
}

// The library would take an empty text for none at all.
void addText(CLI::App& verb, const char* name, std::optional<std::string>& text, const char* meaning) {
  verb.add_option(name, CLI::callback_t([&text](const CLI::results_t& values) {
                    text = values.back();
                    return true;
                  }),
                  meaning)
      ->type_name("TEXT");
}

}  // namespace

void addSettingsVerb(CLI::App& app, Action& chosen) {
  auto options = std::make_shared<SettingsOptions>();
  CLI::App* verb = app.add_subcommand("settings", "Show or change the program's settings");
  addText(*verb, "KEY", options->key, "A setting, in any letter case; all of them without one");
  addText(*verb, "VALUE", options->value, "Its new value: a text, seconds, or on or off");
  addJsonFlag(*verb, options->json);
  verb->footer(listOfKeys() + "A change takes effect at the next check, also in a run that is on.\n" +
               examples({{"settings", "all of them"},
                         {"settings timeout 60", "wait a minute for a page"},
                         {"settings cemail on", "send alert mails"},
                         {"settings smtp \"\"", "an empty text"}}));
  verb->callback([options, &chosen] { chosen = [options](Tool& tool) { return settings(tool, *options); }; });
}

}  // namespace tarnwick
