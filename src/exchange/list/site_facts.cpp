// SPDX-License-Identifier: MIT
#include "exchange/list/site_facts.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "base/sql_value.h"
#include "store/site_table.h"

namespace tarnwick {
namespace {

constexpr const char* kLastChecked = "lastChecked";

using FieldMember = decltype(SiteField::member);

SiteDraft draftOfRow(const TextTable& sites, std::size_t row) {
  const auto flag = [&](std::size_t column) { return SqlValue(sites.at(column, row)).toBool(); };
  const auto text = [&](std::size_t column) { return textOrEmpty(sites.at(column, row)); };
  return {text(site_column::url),       text(site_column::method),     flag(site_column::active),
          text(site_column::tInterval), flag(site_column::alertEmail), text(site_column::email),
          text(site_column::sUserName), text(site_column::sPassWord)};
}

// Those four letters stand for a Null, but may also be what was typed.
bool isUnclear(const TextTable& sites, std::size_t row) {
  return std::ranges::any_of(
      std::initializer_list<std::size_t>{site_column::url, site_column::method, site_column::email,
                                         site_column::sUserName, site_column::sPassWord},
      [&](std::size_t column) { return sites.at(column, row) == kNullText; });
}

// Those are no columns of the program's own table of sites.
bool hasFurtherFields(const Fields& fields) {
  return std::ranges::any_of(
      fields.site, [](const SiteField& field) { return std::holds_alternative<std::monostate>(field.member); });
}

bool fits16Bits(std::int64_t id) {
  return id >= std::numeric_limits<std::int16_t>::min() && id <= std::numeric_limits<std::int16_t>::max();
}

SiteFacts factsOfRow(m& data, const TextTable& sites, std::size_t row) {
  const auto number = [&](std::size_t column) { return SqlValue(sites.at(column, row)).toInt64(); };
  SiteFacts facts;
  facts.idSite = number(site_column::idSite);
  facts.site = (isUnclear(sites, row) || hasFurtherFields(data.fields())) && fits16Bits(facts.idSite)
                   ? readSite(data, static_cast<std::int16_t>(facts.idSite))
                   : draftOfRow(sites, row);
  facts.lastChecked = textOrEmpty(sites.at(site_column::lastChecked, row));
  const std::string& status = sites.at(site_column::status, row);
  if (status != kNullText) {
    facts.status = SqlValue(status).toBool();
  }
  facts.success = number(site_column::success);
  facts.failure = number(site_column::failure);
  return facts;
}

JsonValue numberJson(const std::string& text) {
  std::int64_t number = 0;
  const char* end = text.data() + text.size();
  const auto [rest, fault] = std::from_chars(text.data(), end, number);
  if (fault == std::errc() && rest == end) {
    return number;
  }
  return text.empty() ? JsonValue() : jsonText(text);
}

}  // namespace

std::vector<SiteFacts> readSiteFacts(m& data, std::int16_t idSite) {
  const TextTable sites = data.getArraySites(idSite);
  std::vector<SiteFacts> list;
  list.reserve(sites.lastRow());
  for (std::size_t row = 1; row <= sites.lastRow(); ++row) {
    list.push_back(factsOfRow(data, sites, row));
  }
  return list;
}

std::vector<SiteFacts> SiteFactsReader::next() {
  constexpr std::size_t kAtATime = 200;
  const TextTable sites = readSitesBehind(data_.database(), last_, kAtATime);
  std::vector<SiteFacts> list;
  for (std::size_t row = 1; row <= sites.lastRow(); ++row) {
    list.push_back(factsOfRow(data_, sites, row));
    last_ = list.back().idSite;
  }
  return list;
}

void markThoseWithoutPage(m& data, std::vector<SiteFacts>& sites) {
  const std::set<std::int64_t> without = data.sitesNotFetched();
  for (SiteFacts& facts : sites) {
    facts.notAPage = facts.status == true && without.contains(facts.idSite);
  }
}

JsonValue siteJson(const Fields& fields, const SiteFacts& facts, bool showPassword) {
  JsonValue json{{"idSite", facts.idSite}};
  for (const SiteField& field : fields.site) {
    const FieldValue value = valueOf(field, facts.site);
    const auto* const text = std::get_if<std::string>(&value);
    if (text == nullptr) {
      json[field.name] = std::get<bool>(value);
    } else if (field.kind != FieldKind::secret) {
      json[field.name] = field.kind == FieldKind::minutes ? numberJson(*text) : jsonText(*text);
    } else {
      if (field.member == FieldMember(&SiteDraft::sPassWord)) {
        json["hasPassword"] = !text->empty();
      }
      if (showPassword) {
        json[field.name] = jsonText(*text);
      }
    }
    if (field.kind == FieldKind::minutes && json.find(kLastChecked) == nullptr) {
      json[kLastChecked] = facts.lastChecked.empty() ? JsonValue() : jsonText(facts.lastChecked);
    }
  }
  json["status"] = facts.status ? JsonValue(*facts.status) : JsonValue();
  if (facts.notAPage) {
    json["notAPage"] = true;
  }
  json["success"] = facts.success;
  json["failure"] = facts.failure;
  return json;
}

JsonValue rulesJson(const RuleSet& rules) {
  JsonValue lines = JsonValue::array();
  for (const RuleLine& line : linesOf(rules)) {
    lines.add(jsonText(line.kind + " " + line.rule));
  }
  return lines;
}

JsonValue tagsJson(const Tags& tags) {
  JsonValue json = JsonValue::array();
  for (const std::string& tag : tags) {
    json.add(jsonText(tag));
  }
  return json;
}

JsonValue optionsJson(const OptionValues& options) {
  JsonValue json = JsonValue::object();
  for (const auto& [name, value] : options) {
    json[name] = jsonText(value);
  }
  return json;
}

OptionValues knownOptions(m& data, std::int16_t idSite) {
  OptionValues known;
  for (const auto& [name, stored] : data.options(idSite)) {
    if (auto value = takenOption(data.optionFields(), idSite, name, stored)) {
      known.emplace(name, std::move(*value));
    }
  }
  return known;
}

JsonValue postVarsJson(const std::vector<PostVar>& vars) {
  JsonValue json = JsonValue::array();
  for (const PostVar& var : vars) {
    json.add({{"pname", jsonText(var.name)}, {"pvalue", jsonText(var.value)}});
  }
  return json;
}

}  // namespace tarnwick
