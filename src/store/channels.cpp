// SPDX-License-Identifier: MIT
#include "store/channels.h"

#include <algorithm>
#include <array>
#include <span>
#include <stdexcept>

#include "base/one_line.h"
#include "base/text.h"
#include "store/alarm_values.h"
#include "store/channel_table.h"
#include "store/migrations.h"
#include "store/table_there.h"

namespace tarnwick {
namespace {

constexpr const char* kTable = "channels";
// What every channel has, among its settings in the table.
constexpr std::string_view kName = "name";
constexpr std::string_view kKind = "kind";
constexpr std::string_view kOn = "on";
constexpr std::string_view kForAll = "forAll";

std::string_view wordOf(bool flag) { return flag ? option_value::on : option_value::off; }

void take(Channel& channel, const std::string& name, std::string value) {
  if (name == kName) {
    channel.name = std::move(value);
  } else if (name == kKind) {
    channel.kind = std::move(value);
  } else if (name == kOn) {
    channel.on = value == option_value::on;
  } else if (name == kForAll) {
    channel.forAll = value == option_value::on;
  } else {
    channel.settings.emplace(name, std::move(value));
  }
}

/// What a site, or all of them, names as channels.
struct Naming {
  std::int64_t idSite = 0;
  std::vector<std::string> names;
};

/// Who names that channel, in any letter case.
std::vector<Naming> namingsOf(Database& database, std::string_view channel) {
  std::vector<Naming> all;
  if (!hasTable(database, "siteOptions")) {
    return all;
  }
  const SqlValue option{std::string(option_name::channels)};
  const auto rows = database.conn().execute("select idSite, value from siteOptions where name = ?1", {&option, 1});
  for (; !rows->eof(); rows->moveNext()) {
    auto names = readNames(rows->field(std::size_t{1}).toText()).value_or(std::vector<std::string>());
    if (std::ranges::any_of(names, [&](const std::string& name) { return equalsIgnoringCase(name, channel); })) {
      all.push_back({rows->field(std::size_t{0}).toInt64(), std::move(names)});
    }
  }
  rows->close();
  return all;
}

void renameInOptions(Database& database, std::string_view before, const std::string& after) {
  for (Naming& naming : namingsOf(database, before)) {
    for (std::string& name : naming.names) {
      name = equalsIgnoringCase(name, before) ? after : name;
    }
    const std::array<SqlValue, 3> row{SqlValue(namesText(naming.names)), SqlValue(naming.idSite),
                                      SqlValue(std::string(option_name::channels))};
    database.conn().execute("update siteOptions set value = ?1 where idSite = ?2 and name = ?3", row)->close();
  }
}

bool isKind(std::string_view name) {
  return std::ranges::find(channelKinds(), name, &ChannelKind::name) != channelKinds().end();
}

}  // namespace

std::string Channel::setting(std::string_view field) const {
  const auto found = settings.find(field);
  return found == settings.end() ? std::string() : found->second;
}

std::string secretName(std::int64_t idChannel) { return "channel " + std::to_string(idChannel); }

Channel checkedChannel(Channel channel) {
  channel.name = trimmed(channel.name);
  if (channel.name.empty() || hasLineEnd(channel.name) || channel.name.find(',') != std::string::npos ||
      equalsIgnoringCase(channel.name, channel_value::none)) {
    throw std::runtime_error("A channel needs a name of one line without commas, as in \"office mail\".");
  }
  const ChannelKind& kind = channelKind(channel.kind);
  channel.kind = kind.name;
  OptionValues settings;
  for (const auto& [name, value] : channel.settings) {
    const OptionField& field = channelField(kind, name);
    settings.insert_or_assign(field.name, field.checked(value));
  }
  for (const OptionField& field : kind.fields) {
    if (field.original.empty() && !settings.contains(field.name)) {
      throw std::runtime_error("The channel " + channel.name + " lacks \"" + field.name + "\": " + field.meaning +
                               ". It takes " + field.values() + ".");
    }
  }
  channel.settings = std::move(settings);
  return channel;
}

std::vector<Channel> Channels::channels() {
  std::vector<Channel> all;
  if (!hasTable(db_, kTable)) {
    return all;
  }
  const auto rows =
      db_.conn().execute("select idChannel, name, value from channels order by idChannel", std::span<const SqlValue>());
  for (; !rows->eof(); rows->moveNext()) {
    const std::int64_t id = rows->field(std::size_t{0}).toInt64();
    if (all.empty() || all.back().id != id) {
      all.push_back({.id = id, .name = {}, .kind = {}});
    }
    take(all.back(), rows->field(std::size_t{1}).toText(), rows->field(std::size_t{2}).toText());
  }
  rows->close();
  // A newer program may know further kinds.
  std::erase_if(all, [](const Channel& channel) { return channel.name.empty() || !isKind(channel.kind); });
  return all;
}

const std::vector<Channel>& Channels::channelsInForce() {
  const bool byOthers = changes_.byOthers();
  if (byOthers || !inForce_ || edition_ != db_.optionsEdition()) {
    inForce_.reset();
    edition_ = db_.optionsEdition();
    inForce_ = channels();
  }
  return *inForce_;
}

std::optional<Channel> Channels::channelNamed(std::string_view name) {
  std::vector<Channel> all = channels();
  const auto found = std::ranges::find_if(
      all, [&](const Channel& channel) { return equalsIgnoringCase(channel.name, trimmed(name)); });
  return found == all.end() ? std::nullopt : std::optional(std::move(*found));
}

std::int64_t Channels::storeChannel(const Channel& given) {
  Channel channel = checkedChannel(given);
  requireTodaysForm(db_.conn(), db_.dbPath());
  Transaction whole(db_);
  db_.optionsChange();
  std::int64_t highest = 0;
  for (const Channel& other : channels()) {
    highest = std::max(highest, other.id);
    if (other.id != channel.id && equalsIgnoringCase(other.name, channel.name)) {
      throw std::runtime_error("There is a channel \"" + other.name + "\" already. Give this one another name.");
    }
    if (other.id == channel.id && other.name != channel.name) {
      renameInOptions(db_, other.name, channel.name);
    }
  }
  channel.id = channel.id == 0 ? highest + 1 : channel.id;
  const SqlValue id(channel.id);
  db_.conn().execute("delete from channels where idChannel = ?1", {&id, 1})->close();
  OptionValues all = std::move(channel.settings);
  all.emplace(kName, channel.name);
  all.emplace(kKind, channel.kind);
  all.emplace(kOn, wordOf(channel.on));
  all.emplace(kForAll, wordOf(channel.forAll));
  for (const auto& [name, value] : all) {
    const std::array<SqlValue, 3> row{id, SqlValue(name), SqlValue(value)};
    db_.conn().execute("insert into channels (idChannel, name, value) values (?1, ?2, ?3)", row)->close();
  }
  whole.commit();
  return channel.id;
}

std::int64_t Channels::sitesNaming(std::string_view name) {
  return std::ranges::count_if(namingsOf(db_, name), [](const Naming& naming) { return naming.idSite != kAllSites; });
}

void Channels::removeChannel(std::int64_t idChannel) {
  if (!hasTable(db_, kTable)) {
    return;
  }
  Transaction whole(db_);
  db_.optionsChange();
  const SqlValue id(idChannel);
  for (const char* const sql :
       {"delete from channels where idChannel = ?1", "delete from outbox where idChannel = ?1"}) {
    db_.conn().execute(sql, {&id, 1})->close();
  }
  whole.commit();
}

}  // namespace tarnwick
