// SPDX-License-Identifier: MIT
#include "exchange/list/site_list_channels.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "base/text.h"
#include "exchange/list/site_facts.h"

namespace tarnwick {
namespace {

constexpr const char* kForm =
    R"(channels is no array of {"name": "...", "kind": "...", "settings": {...}}: give one such )"
    "object a channel";

/// What a member of a channel has to be.
template <typename Kind>
const Kind& held(const JsonValue& value) {
  const Kind* const content = value.as<Kind>();
  if (content == nullptr) {
    throw std::runtime_error(kForm);
  }
  return *content;
}

void take(ListedChannel& listed, const std::string& name, const JsonValue& value) {
  if (name == "name") {
    listed.channel.name = held<std::string>(value);
  } else if (name == "kind") {
    listed.channel.kind = held<std::string>(value);
  } else if (name == "on") {
    listed.channel.on = held<bool>(value);
  } else if (name == "forAll") {
    listed.channel.forAll = held<bool>(value);
  } else if (name == "secret") {
    listed.secret = bytesOfJson(value);
  } else if (name == "settings") {
    for (const auto& [field, text] : held<JsonValue::Object>(value)) {
      listed.channel.settings[field] = bytesOfJson(text);
    }
  } else {
    throw std::runtime_error(kForm);
  }
}

ListedChannel channelOf(const JsonValue& object) {
  ListedChannel listed;
  for (const auto& [name, value] : held<JsonValue::Object>(object)) {
    if (!value.isNull()) {
      take(listed, name, value);
    }
  }
  listed.channel = checkedChannel(std::move(listed.channel));
  return listed;
}

}  // namespace

JsonValue channelsJson(const std::vector<ListedChannel>& channels) {
  JsonValue array = JsonValue::array();
  for (const auto& [channel, secret] : channels) {
    JsonValue& object = array.add({{"name", jsonText(channel.name)},
                                   {"kind", jsonText(channel.kind)},
                                   {"on", channel.on},
                                   {"forAll", channel.forAll},
                                   {"settings", optionsJson(channel.settings)}});
    if (secret) {
      object["secret"] = jsonText(*secret);
    }
  }
  return array;
}

void readChannelsOfJson(const JsonValue& array, std::vector<ListedChannel>& channels, ListValues& values) {
  const auto* const objects = array.as<JsonValue::Array>();
  for (const JsonValue& object : objects == nullptr ? JsonValue::Array() : *objects) {
    try {
      ListedChannel listed = channelOf(object);
      if (std::ranges::any_of(channels, [&](const ListedChannel& other) {
            return equalsIgnoringCase(other.channel.name, listed.channel.name);
          })) {
        throw std::runtime_error("the channel " + quotedForMessage(listed.channel.name) +
                                 " is given twice: give each a name of its own");
      }
      channels.push_back(std::move(listed));
    } catch (const std::runtime_error& error) {
      std::string why = error.what();
      while (why.ends_with('.')) {
        why.pop_back();
      }
      values.fault(std::move(why));
    }
  }
}

}  // namespace tarnwick
