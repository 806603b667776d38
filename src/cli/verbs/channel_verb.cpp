// SPDX-License-Identifier: MIT
#include <algorithm>
#include <map>
#include <optional>

#include "base/text.h"
#include "cli/terminal/consent.h"
#include "cli/terminal/input_file.h"
#include "cli/terminal/json_output.h"
#include "cli/terminal/text_grid.h"
#include "cli/verbs/delivery_words.h"
#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"
#include "delivery/channel_preset.h"
#include "delivery/delivery.h"
#include "delivery/refusal_advice.h"
#include "platform/interrupts.h"
#include "store/channel_table.h"

namespace tarnwick {
namespace {

/// How a kind is chosen: an option whose value is that of the field which has to be set, if there is one.
struct KindOption {
  std::string_view kind;
  const char* name;
  std::string_view field;
  const char* type;
};
constexpr KindOption kKindOptions[]{{channel_kind::mail, "--mail", channel_field::to, "ADDRESS"},
                                    {channel_kind::hook, "--webhook", channel_field::address, "URL"},
                                    {channel_kind::notice, "--notice", "", ""},
                                    {channel_kind::program, "--program", channel_field::command, "COMMAND"},
                                    {channel_kind::sound, "--sound", channel_field::file, "FILE"}};

/// What the words of `set` take beside the fields.
constexpr std::string_view kNewName = "name";
constexpr std::string_view kDefault = "default";

struct ChannelVerbOptions {
  std::string action = "list";
  std::vector<std::string> words;
  bool notice = false;
  std::map<std::string, std::optional<std::string>, std::less<>> kinds;
  std::map<std::string, std::optional<std::string>, std::less<>> fields;
  std::vector<std::string> headers;
  std::optional<std::string> preset;
  std::optional<std::string> passwordFile;
  std::string forAll;
  bool yes = false;
  bool json = false;
};

/// "tokenCommand" as an option: "--token-command".
std::string optionName(const std::string& field) {
  std::string name = "--";
  for (const char c : field) {
    const bool isUpper = c >= 'A' && c <= 'Z';
    name += isUpper ? "-" + lowerCase(std::string(1, c)) : std::string(1, c);
  }
  return name;
}

const KindOption& optionOf(std::string_view kind) { return *std::ranges::find(kKindOptions, kind, &KindOption::kind); }

Channel named(Tool& tool, const ChannelVerbOptions& options) {
  if (options.words.empty()) {
    throw std::runtime_error("Which channel is meant? Name it, as in: tarnwickctl channel " + options.action +
                             " office. They are listed by: tarnwickctl channel");
  }
  auto channel = tool.data().channelNamed(options.words.front());
  if (!channel) {
    throw std::runtime_error("There is no channel \"" + visibleText(options.words.front()) +
                             "\". They are listed by: tarnwickctl channel");
  }
  return *std::move(channel);
}

void refuseFurtherWords(const ChannelVerbOptions& options, std::size_t most) {
  if (options.words.size() > most) {
    throw std::runtime_error("\"" + visibleText(options.words[most]) +
                             "\" is one word too many. A name of several words stands between quotes.");
  }
}

JsonValue jsonOf(const Channel& channel) {
  JsonValue settings = JsonValue::object();
  for (const auto& [name, value] : channel.settings) {
    settings[name] = jsonText(value);
  }
  return {{"name", jsonText(channel.name)},
          {"kind", jsonText(channel.kind)},
          {"on", channel.on},
          {"forAll", channel.forAll},
          {"settings", std::move(settings)}};
}

int list(Tool& tool, const ChannelVerbOptions& options) {
  refuseFurtherWords(options, 0);
  const std::vector<Channel> channels = tool.data().channels();
  Console& console = tool.console();
  if (options.json) {
    JsonArray array(console);
    std::ranges::for_each(channels, [&](const Channel& channel) { array.add(jsonOf(channel)); });
    array.end();
    return exit_status::ok;
  }
  if (channels.empty()) {
    console.complain(
        "There is no channel, so that alerts leave as the settings say. Add one, for instance: tarnwickctl channel add "
        "phone --webhook https://ntfy.sh/YOUR-TOPIC --preset ntfy");
    return exit_status::ok;
  }
  TextGrid grid({{"NAME"}, {"KIND"}, {"STATE"}, {"SITES"}, {"TO"}});
  for (const Channel& channel : channels) {
    grid.addRow({{channel.name},
                 {channel.kind},
                 {channel.on ? "on" : "off"},
                 {channel.forAll ? "all" : "named"},
                 {channel.setting(optionOf(channel.kind).field)}});
  }
  grid.print(console);
  return exit_status::ok;
}

std::string typedSecret(Tool& tool, const Channel& channel) {
  const std::string what = channelKind(channel.kind).secret;
  return tool.console().askSecret(what + " of the channel " + channel.name + " (nothing is shown):");
}

void keepSecret(Tool& tool, const Channel& channel, const std::string& secret) {
  if (const std::string why = storeSecret(tool.data(), tool.services(), channel.id, secret); !why.empty()) {
    throw std::runtime_error("The channel " + channel.name +
                             " is stored, but not its password or token: " + visibleText(why));
  }
}

/// From the file that is named or, where `asks`, from who sits there.
std::optional<std::string> givenSecret(Tool& tool, const ChannelVerbOptions& options, const Channel& channel,
                                       bool asks) {
  if (options.passwordFile) {
    if (channelKind(channel.kind).secret.empty()) {
      throw std::runtime_error("A channel of the kind " + channel.kind + " has no password or token.");
    }
    return readLineOf(tool.services().files, *options.passwordFile);
  }
  return asks && tool.console().canAsk() ? std::optional(typedSecret(tool, channel)) : std::nullopt;
}

void keep(Tool& tool, const ChannelVerbOptions& options, Channel channel, bool asks) {
  const std::optional<std::string> secret = givenSecret(tool, options, channel, asks);
  channel.id = tool.data().storeChannel(channel);
  if (secret) {
    keepSecret(tool, channel, *secret);
  }
  if (options.json) {
    sayJson(tool.console(), jsonOf(channel));
    return;
  }
  tool.console().tell("The channel " + channel.name + " is stored.");
  if (asks && !secret) {
    hintAtSecret(tool.console(), channel);
  }
}

std::string joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) {
    text += (text.empty() ? "" : "\n") + line;
  }
  return text;
}

/// What the options say of the fields of that kind.
OptionValues settingsOf(const ChannelVerbOptions& options) {
  OptionValues settings;
  for (const auto& [name, value] : options.fields) {
    if (value) {
      settings[name] = *value;
    }
  }
  if (!options.headers.empty()) {
    settings[std::string(channel_field::headers)] = joined(options.headers);
  }
  return settings;
}

const KindOption& chosenKind(const ChannelVerbOptions& options) {
  const KindOption* chosen = options.notice ? &optionOf(channel_kind::notice) : nullptr;
  for (const KindOption& kind : kKindOptions) {
    const auto given = options.kinds.find(kind.name);
    if (given != options.kinds.end() && given->second) {
      if (chosen != nullptr) {
        throw std::runtime_error("A channel is of one kind: leave out " + std::string(chosen->name) + " or " +
                                 kind.name + ".");
      }
      chosen = &kind;
    }
  }
  if (chosen == nullptr) {
    throw std::runtime_error("How is it to tell? Add --mail, --webhook, --notice, --program or --sound.");
  }
  return *chosen;
}

ChannelPresets presetsOf(Tool& tool) {
  return readPresets(tool.services().files, tool.installation(), tool.programFolder());
}

bool isOn(const std::string& word) { return word != option_value::off; }

int add(Tool& tool, const ChannelVerbOptions& options) {
  refuseFurtherWords(options, 1);
  Channel channel;
  channel.name = options.words.empty() ? "" : options.words.front();
  const KindOption& kind = chosenKind(options);
  channel.kind = kind.kind;
  channel.settings = settingsOf(options);
  if (!kind.field.empty()) {
    channel.settings[std::string(kind.field)] = options.kinds.at(kind.name).value();
  }
  if (options.preset) {
    if (kind.kind != channel_kind::hook) {
      throw std::runtime_error("A preset is one of a web hook: leave --preset out, or give --webhook.");
    }
    channel.settings = withPreset(presetsOf(tool).preset(*options.preset), std::move(channel.settings));
  }
  channel.forAll = isOn(options.forAll);
  channel = checkedChannel(std::move(channel));
  if (tool.data().channelNamed(channel.name)) {
    throw std::runtime_error("There is a channel \"" + channel.name + "\" already. Give this one another name.");
  }
  const bool asks = needsSecret(channel);
  keep(tool, options, std::move(channel), asks);
  return exit_status::ok;
}

bool flagOf(const std::string& name, const std::string& word) {
  if (!equalsIgnoringCase(word, option_value::on) && !equalsIgnoringCase(word, option_value::off)) {
    throw std::runtime_error("\"" + visibleText(name) + "\" is on or off, and \"" + visibleText(word) +
                             "\" is neither.");
  }
  return equalsIgnoringCase(word, option_value::on);
}

void apply(Channel& channel, const std::string& name, const std::string& value) {
  if (equalsIgnoringCase(name, kNewName)) {
    channel.name = value;
  } else if (equalsIgnoringCase(name, kDefault)) {
    channel.forAll = flagOf(name, value);
  } else if (const OptionField& field = channelField(channelKind(channel.kind), visibleText(name)); value.empty()) {
    channel.settings.erase(field.name);
  } else {
    channel.settings[field.name] = value;
  }
}

int set(Tool& tool, const ChannelVerbOptions& options) {
  Channel channel = named(tool, options);
  OptionValues changes = settingsOf(options);
  for (const std::string& word : std::vector<std::string>(options.words.begin() + 1, options.words.end())) {
    const std::size_t sign = word.find('=');
    if (sign == std::string::npos) {
      throw std::runtime_error("\"" + visibleText(word) +
                               "\" has no \"=\": what is to be set stands as FIELD=VALUE, and FIELD= takes it away.");
    }
    changes[word.substr(0, sign)] = word.substr(sign + 1);
  }
  for (const KindOption& kind : kKindOptions) {
    if (const auto given = options.kinds.find(kind.name); given != options.kinds.end() && given->second) {
      changes[std::string(kind.field)] = *given->second;
    }
  }
  for (const auto& [name, value] : changes) {
    apply(channel, name, value);
  }
  if (!options.forAll.empty()) {
    channel.forAll = isOn(options.forAll);
  }
  const bool saysNothing = changes.empty() && options.forAll.empty() && !options.passwordFile;
  if (saysNothing && (channelKind(channel.kind).secret.empty() || !tool.console().canAsk())) {
    throw std::runtime_error("What is to be changed? For instance: tarnwickctl channel set \"" + channel.name +
                             "\" default=off");
  }
  keep(tool, options, checkedChannel(std::move(channel)), saysNothing);
  return exit_status::ok;
}

int turn(Tool& tool, const ChannelVerbOptions& options) {
  refuseFurtherWords(options, 1);
  Channel channel = named(tool, options);
  channel.on = options.action == option_value::on;
  tool.data().storeChannel(channel);
  if (options.json) {
    sayJson(tool.console(), jsonOf(channel));
  } else {
    tool.console().tell("The channel " + channel.name + (channel.on ? " is on." : " is off: its alerts wait."));
  }
  return exit_status::ok;
}

int remove(Tool& tool, const ChannelVerbOptions& options) {
  refuseFurtherWords(options, 1);
  const Channel channel = named(tool, options);
  const auto waiting = tool.data().outboxRows(OutboxRow::State::waiting);
  const auto count = std::ranges::count(waiting, channel.id, &OutboxRow::idChannel);
  if (count > 0 && !consents(tool.console(), options.yes,
                             "Remove the channel " + channel.name + " with the alerts that wait for it (" +
                                 std::to_string(count) + ")?")) {
    return exit_status::failed;
  }
  const std::int64_t naming = tool.data().sitesNaming(channel.name);
  tool.data().removeChannel(channel.id);
  awaited<bool>(tool.services(), false, [&](const std::function<void(bool)>& answered) {
    tool.data().delivery().secrets().remove(secretName(channel.id), [answered] { answered(true); });
  });
  if (options.json) {
    sayJson(tool.console(), {{"removed", jsonText(channel.name)}, {"sites", naming}});
    return exit_status::ok;
  }
  tool.console().tell("The channel " + channel.name + " is removed.");
  if (naming > 0) {
    tool.console().complain(std::to_string(naming) + (naming == 1 ? " site names" : " sites name") + " the channel " +
                            channel.name + " still. Who names no other one tells through those for all sites.");
  }
  return exit_status::ok;
}

int test(Tool& tool, const ChannelVerbOptions& options) {
  refuseFurtherWords(options, 1);
  const Channel channel = named(tool, options);
  const Interrupts interrupts([&tool] { tool.services().pump.close(); });
  const auto reply = awaited<SendReply>(tool.services(), {false, "The test was interrupted."}, [&](auto answered) {
    tool.data().delivery().test(channel, std::nullopt, answered);
  });
  if (options.json) {
    sayJson(tool.console(), {{"sent", reply.sent}, {"answer", jsonText(reply.words)}});
  } else {
    tool.console().tell((reply.sent ? "The test message is sent: " : "The test message is not sent: ") +
                        visibleText(reply.words));
    if (const std::string advice(adviceOn(reply.words)); !advice.empty()) {
      tool.console().tell(advice);
    }
  }
  return reply.sent ? exit_status::ok : exit_status::down;
}

int presets(Tool& tool, const ChannelVerbOptions& options) {
  refuseFurtherWords(options, 0);
  const ChannelPresets all = presetsOf(tool);
  std::ranges::for_each(all.faults, [&](const std::string& fault) { tool.console().complain(fault); });
  if (options.json) {
    JsonArray array(tool.console());
    for (const ChannelPreset& preset : all.presets) {
      Channel channel{.name = preset.name, .kind = std::string(channel_kind::hook), .settings = preset.settings};
      array.add({{"name", jsonText(preset.name)},
                 {"label", jsonText(preset.label)},
                 {"about", jsonText(preset.about)},
                 {"secret", jsonText(preset.secret)},
                 {"settings", *jsonOf(channel).find("settings")}});
    }
    array.end();
  } else {
    TextGrid grid({{"NAME"}, {"FOR"}, {"ADDRESS"}});
    for (const ChannelPreset& preset : all.presets) {
      grid.addRow({{preset.name}, {preset.about}, {preset.settings.at(std::string(channel_field::address))}});
    }
    grid.print(tool.console());
  }
  return all.faults.empty() ? exit_status::ok : exit_status::failed;
}

int channel(Tool& tool, const ChannelVerbOptions& options) {
  using Act = int (*)(Tool&, const ChannelVerbOptions&);
  static const std::map<std::string_view, Act> acts{{"list", &list},     {"add", &add},        {"set", &set},
                                                    {"remove", &remove}, {"on", &turn},        {"off", &turn},
                                                    {"test", &test},     {"presets", &presets}};
  return acts.at(options.action)(tool, options);
}

void addFieldOptions(std::vector<VerbOption>& all, ChannelVerbOptions& options) {
  for (const KindOption& kind : kKindOptions) {
    const ChannelKind& facts = channelKind(kind.kind);
    if (kind.field.empty()) {
      all.push_back({kind.name, &options.notice, facts.meaning});
    } else {
      all.push_back(
          {.name = kind.name, .target = &options.kinds[kind.name], .meaning = facts.meaning, .type = kind.type});
    }
  }
  for (const ChannelKind& kind : channelKinds()) {
    for (const OptionField& field : kind.fields) {
      if (field.name == optionOf(kind.name).field || options.fields.contains(field.name)) {
        continue;
      }
      if (field.name == channel_field::headers) {
        all.push_back({.name = "--header",
                       .target = &options.headers,
                       .meaning = field.meaning + "; may be given again",
                       .type = "\"NAME: VALUE\""});
        continue;
      }
      all.push_back({.name = optionName(field.name), .target = &options.fields[field.name], .meaning = field.meaning});
    }
  }
}

std::string listOf(const std::vector<ChannelKind>& kinds) {
  std::string list = "Fields, for set, and what they take:";
  for (const ChannelKind& kind : kinds) {
    list += "\n " + kind.label + ":";
    for (const OptionField& field : kind.fields) {
      list += "\n  " + field.name + "\n      " + field.meaning + ".\n      Takes " + field.values() + "." +
              (field.original.empty() ? " It has to be set." : "\n      Not set: " + field.original + ".");
    }
  }
  return list + "\n";
}

}  // namespace

Verb channelVerb() {
  auto options = std::make_shared<ChannelVerbOptions>();
  std::vector<VerbOption> all{{.name = "ACTION",
                               .target = &options->action,
                               .meaning = "list (default), add, set, remove, on, off, test, presets",
                               .oneOf = {"list", "add", "set", "remove", "on", "off", "test", "presets"}},
                              {.name = "NAME",
                               .target = &options->words,
                               .meaning = "The channel; for set, behind it FIELD=VALUE, or FIELD= to take it away",
                               .type = "NAME [FIELD=VALUE]"}};
  addFieldOptions(all, *options);
  all.insert(all.end(), {{.name = "--preset",
                          .target = &options->preset,
                          .meaning = "How the service wants to be told, as presets lists it",
                          .type = "NAME"},
                         {.name = "--default",
                          .target = &options->forAll,
                          .meaning = "Whether it tells of all sites that name no channels of their own: on or off",
                          .type = "on|off",
                          .oneOf = {"on", "off"}},
                         {.name = "--password-file",
                          .target = &options->passwordFile,
                          .meaning = "The password or token, in a file of one line; - is standard input",
                          .type = "FILE"},
                         {"--yes", &options->yes, "Do not ask before alerts that wait are removed"},
                         jsonOption(options->json)});
  return Verb{"channel", "Show or change the channels by which alerts leave, and try them", std::move(all),
              "A password or token never stands on the command line: it is read from a file, or asked for, and kept in "
              "a file of "
              "the program folder that only you can read.\n"
              "Exit status of test: 0 when the message was sent, 1 when it was not.\n" +
                  listOf(channelKinds()) +
                  examples({{"channel add office --mail me@example.org --server smtp.example.org --user me@example.org",
                             "mail through a provider; the password is asked for"},
                            {"channel add phone --webhook https://ntfy.sh/YOUR-TOPIC --preset ntfy", "a web hook"},
                            {"channel test phone", "send a message, and see the answer"},
                            {"channel set office bundle=5 default=off", "change it"},
                            {"option 3 channels=office,phone", "the channels of one site"}}),
              [options](Tool& tool) { return channel(tool, *options); }};
}

}  // namespace tarnwick
