// SPDX-License-Identifier: MIT
#include "store/site_options.h"

#include <algorithm>
#include <array>
#include <span>
#include <stdexcept>

#include "base/text.h"
#include "store/migrations.h"
#include "store/month_reports.h"
#include "store/options_for_others.h"
#include "store/table_there.h"

namespace tarnwick {
namespace {

using Parameters = std::span<const SqlValue>;

bool hasTable(Database& database) { return hasTable(database, "siteOptions"); }

void change(Database& database, std::string_view sql, Parameters parameters) {
  database.optionsChange();
  database.conn().execute(sql, parameters)->close();
}

void store(Database& database, std::int16_t idSite, const std::string& name, const std::string& value) {
  if (!hasTable(database)) {
    requireTodaysForm(database.conn(), database.dbPath());
  }
  const std::array<SqlValue, 3> row{SqlValue(std::int64_t{idSite}), SqlValue(name), SqlValue(value)};
  change(database, "insert or replace into siteOptions (idSite, name, value) values (?1, ?2, ?3)", row);
}

/// A month before reports of months were wanted has none, so it is kept since when they are.
void keepSince(Database& database, std::string_view name, std::string_view value) {
  if (name == option_name::monthReport) {
    MonthReports reports(database);
    value == option_value::on ? reports.begin() : reports.end();
  }
}

}  // namespace

std::optional<std::string> OptionsInForce::valueOf(std::int64_t idSite, std::string_view name) const {
  for (const std::int64_t id : {idSite, std::int64_t{kAllSites}}) {
    const auto ofSite = values_->find(id);
    if (ofSite == values_->end()) {
      continue;
    }
    if (const auto value = ofSite->second.find(name); value != ofSite->second.end()) {
      return value->second;
    }
  }
  return std::nullopt;
}

bool OptionsInForce::setsAnyOf(std::span<const std::string_view> names) const {
  return std::ranges::any_of(*values_, [&](const auto& ofSite) {
    return std::ranges::any_of(names, [&](std::string_view name) { return ofSite.second.contains(name); });
  });
}

const OptionField& SiteOptions::optionField(std::string_view name) const {
  const auto found =
      std::ranges::find_if(fields_, [&](const OptionField& field) { return equalsIgnoringCase(field.name, name); });
  if (found == fields_.end()) {
    std::string names;
    for (const OptionField& field : fields_) {
      names += (names.empty() ? "" : ", ") + field.name;
    }
    throw std::runtime_error("There is no option \"" + std::string(name) + "\". The options are: " + names + ".");
  }
  return *found;
}

OptionValues SiteOptions::options(std::int16_t idSite) {
  OptionValues values;
  if (!hasTable(db_)) {
    return values;
  }
  const std::array<SqlValue, 1> id{SqlValue(std::int64_t{idSite})};
  const auto rows = db_.conn().execute("select name, value from siteOptions where idSite = ?1", id);
  for (; !rows->eof(); rows->moveNext()) {
    values.emplace(rows->field(std::size_t{0}).toText(), rows->field(std::size_t{1}).toText());
  }
  return values;
}

std::map<std::int16_t, std::string> SiteOptions::ownValues(std::string_view name) {
  std::map<std::int16_t, std::string> values;
  if (!hasTable(db_)) {
    return values;
  }
  const std::array<SqlValue, 1> key{SqlValue(optionField(name).name)};
  const auto rows = db_.conn().execute("select idSite, value from siteOptions where name = ?1 and idSite <> 0", key);
  for (; !rows->eof(); rows->moveNext()) {
    const std::int64_t id = rows->field(std::size_t{0}).toInt64();
    if (std::in_range<std::int16_t>(id)) {
      values.emplace(static_cast<std::int16_t>(id), rows->field(std::size_t{1}).toText());
    }
  }
  return values;
}

std::optional<std::string> takenOption(const std::vector<OptionField>& fields, std::int64_t idSite,
                                       std::string_view name, std::string_view value) {
  const auto field = std::ranges::find(fields, name, &OptionField::name);
  if (field == fields.end() || (idSite != kAllSites && !field->ofSite)) {
    return std::nullopt;
  }
  try {
    return field->checked(value);
  } catch (const std::runtime_error&) {
    return std::nullopt;  // shown as it stands where options are listed
  }
}

OptionsInForce readOptions(Database& database, const std::vector<OptionField>& fields) {
  std::map<std::int64_t, OptionValues> values;
  if (!hasTable(database)) {
    return OptionsInForce();
  }
  const auto rows = database.conn().execute("select idSite, name, value from siteOptions", Parameters());
  for (; !rows->eof(); rows->moveNext()) {
    const std::int64_t idSite = rows->field(std::size_t{0}).toInt64();
    const std::string name = rows->field(std::size_t{1}).toText();
    if (const auto value = takenOption(fields, idSite, name, rows->field(std::size_t{2}).toText())) {
      values[idSite].emplace(name, *value);
    }
  }
  return OptionsInForce(std::move(values));
}

// In a transaction nothing is kept: it may be taken back.
OptionsInForce SiteOptions::optionsInForce() {
  if (db_.conn().inTransaction()) {
    return readOptions(db_, fields_);
  }
  const bool byOthers = changes_.byOthers();
  if (byOthers || !inForce_ || edition_ != db_.optionsEdition()) {
    inForce_.reset();
    const std::uint64_t edition = db_.optionsEdition();
    inForce_ = readOptions(db_, fields_);
    edition_ = edition;
  }
  return *inForce_;
}

void SiteOptions::setOption(std::int16_t idSite, std::string_view name, std::string_view value) {
  const OptionField& field = optionField(name);
  if (idSite != kAllSites && !field.ofSite) {
    throw std::runtime_error("The option " + field.name + " holds for all sites, and none has a value of its own.");
  }
  Transaction whole(db_);
  store(db_, idSite, field.name, field.checked(value));
  keepSince(db_, field.name, field.checked(value));
  whole.commit();
}

void SiteOptions::removeOption(std::int16_t idSite, std::string_view name) {
  const std::array<SqlValue, 2> key{SqlValue(std::int64_t{idSite}), SqlValue(optionField(name).name)};
  if (hasTable(db_)) {
    change(db_, "delete from siteOptions where idSite = ?1 and name = ?2", key);
    keepSince(db_, optionField(name).name, {});
  }
}

void SiteOptions::storeOptions(std::int16_t idSite, const OptionValues& values) {
  Transaction whole(db_);
  for (const auto& [name, value] : values) {
    setOption(idSite, name, value);
  }
  for (const OptionField& field : fields_) {
    if (!values.contains(field.name)) {
      removeOption(idSite, field.name);
    }
  }
  whole.commit();
}

void removeOptionsOf(Database& database, std::int64_t idSite) {
  // No site has those for all, also not one that another tool has given this id.
  if (idSite != kAllSites && hasTable(database)) {
    const std::array<SqlValue, 1> id{SqlValue(idSite)};
    change(database, "delete from siteOptions where idSite = ?1", id);
  }
}

}  // namespace tarnwick
