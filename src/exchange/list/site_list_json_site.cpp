// SPDX-License-Identifier: MIT
#include "exchange/list/site_list_json_site.h"

#include <stdexcept>
#include <utility>

#include "exchange/list/site_list_history.h"

namespace tarnwick {
namespace {

constexpr const char* kName = "pname";
constexpr const char* kValue = "pvalue";

class JsonSite {
 public:
  JsonSite(ListedSite& site, const ListForm& form, ListFaults& faults)
      : site_(site), form_(form), values_(site.line, faults) {}

  void read(const std::string& name, JsonValue& value) {
    const ListField* const field = form_.find(name);
    if (field == nullptr) {
      values_.fault("there is no member " + quotedForMessage(name) + ": the members are " + form_.names());
    } else if (site_.given.has(field->name)) {
      values_.fault("the member " + field->name + " is given twice: leave one of them out");
    } else if (!value.isNull()) {
      readField(*field, value);
    }
  }

 private:
  void readField(const ListField& field, const JsonValue& value) {
    switch (field.role) {
      case ListField::Role::idSite:
        return keep(field, site_.idSite, isNumber(field, value) ? values_.id(jsonLine(value)) : std::nullopt);
      case ListField::Role::postVars:
        return keep(field, site_.postVars, postVars(value));
      case ListField::Role::options:
        readOptionsOfJson(value, form_.fields(), site_.options, values_);
        return site_.given.set(field.name);
      case ListField::Role::rules:
        return readTexts(field, value, R"(rules is no array: give ["RULE", ...])",
                         [this](const std::string& text) { values_.rule(site_.rules, text); });
      case ListField::Role::tags:
        return readTexts(field, value, R"(tags is no array: give ["TAG", ...])",
                         [this](const std::string& text) { values_.tag(site_.tags, text); });
      case ListField::Role::kept:
        return readTexts(field, value, R"(baselines is no array: give it as an export writes it)",
                         [this](const std::string& text) { values_.kept(site_.kept, text); });
      case ListField::Role::history:
        return readTexts(field, value, R"(history is no array: give it as an export writes it)",
                         [this](const std::string& text) { readHistoryLine(site_.history, text, values_); });
      case ListField::Role::baseline:
        if (auto bytes = text(field.name, value)) {
          keep(field, site_.baseline, values_.baseline(std::move(*bytes)));
        }
        return;
      case ListField::Role::siteField:
        if (const auto read = valueOfField(field, value)) {
          setValue(*field.field, site_.site, *read);
          site_.given.set(field.name);
        }
    }
  }

  template <typename Take>
  void readTexts(const ListField& field, const JsonValue& value, const char* fault, Take take) {
    const auto* const lines = value.as<JsonValue::Array>();
    if (lines == nullptr) {
      values_.fault(fault);
      return;
    }
    for (const JsonValue& line : *lines) {
      if (const auto read = text(field.name, line)) {
        take(*read);
      }
    }
    site_.given.set(field.name);
  }

  std::optional<FieldValue> valueOfField(const ListField& field, const JsonValue& value) {
    switch (field.field->kind) {
      case FieldKind::flag:
        return flag(field, value);
      case FieldKind::minutes:
      case FieldKind::seconds:
        return isNumber(field, value) ? values_.value(*field.field, jsonLine(value)) : std::nullopt;
      default:
        break;
    }
    auto bytes = text(field.name, value);
    return bytes ? values_.value(*field.field, std::move(*bytes)) : std::nullopt;
  }

  template <typename Place, typename Value>
  void keep(const ListField& field, Place& place, std::optional<Value> value) {
    if (value) {
      place = std::move(*value);
      site_.given.set(field.name);
    }
  }

  bool isNumber(const ListField& field, const JsonValue& value) {
    if (!value.isInteger()) {
      values_.fault(field.name + " " + shown(value) +
                    " is no whole number: give one without quotes, a point or an exponent");
    }
    return value.isInteger();
  }

  std::optional<FieldValue> flag(const ListField& field, const JsonValue& value) {
    const bool* const flag = value.as<bool>();
    if (flag == nullptr) {
      values_.fault(field.name + " " + shown(value) + " is neither yes nor no: give true or false, without quotes");
      return std::nullopt;
    }
    return *flag;
  }

  std::optional<std::string> text(std::string_view name, const JsonValue& value) {
    try {
      return bytesOfJson(value);
    } catch (const std::runtime_error&) {
      values_.fault(std::string(name) + " " + shown(value) +
                    R"( is no text: give a string, or {"base64": "..."} for bytes that are no UTF-8)");
      return std::nullopt;
    }
  }

  std::optional<std::vector<PostVar>> postVars(const JsonValue& value) {
    std::vector<PostVar> vars;
    const auto* const elements = value.as<JsonValue::Array>();
    bool good = elements != nullptr;
    for (std::size_t i = 0; good && i < elements->size(); ++i) {
      const JsonValue& element = (*elements)[i];
      const JsonValue* const itsName = element.find(kName);
      const JsonValue* const itsValue = element.find(kValue);
      good = itsName != nullptr && itsValue != nullptr && element.as<JsonValue::Object>()->size() == 2;
      if (good) {
        auto name = text(kName, *itsName);
        auto content = text(kValue, *itsValue);
        if (!name || !content) {
          return std::nullopt;
        }
        vars.push_back({std::move(*name), std::move(*content)});
      }
    }
    if (!good) {
      values_.fault(R"(postVars is no array of {"pname": "...", "pvalue": "..."}: give one such object a variable)");
      return std::nullopt;
    }
    return vars;
  }

  static std::string shown(const JsonValue& value) {
    return quotedForMessage(value.as<JsonValue::Array>() != nullptr    ? "[...]"
                            : value.as<JsonValue::Object>() != nullptr ? "{...}"
                            : value.asText() != nullptr                ? *value.asText()
                                                                       : jsonLine(value));
  }

  ListedSite& site_;
  const ListForm& form_;
  ListValues values_;
};

/// Nothing for null, which leaves the option unset, and for what is no value.
std::optional<std::string> optionText(const std::string& name, const JsonValue& value, ListValues& values) {
  if (value.isNull()) {
    return std::nullopt;
  }
  if (value.as<JsonValue::Object>() == nullptr && value.asText() == nullptr) {
    return jsonLine(value);
  }
  try {
    return bytesOfJson(value);
  } catch (const std::runtime_error&) {
    values.fault("the option " + quotedForMessage(name) +
                 R"( is no text: give a string, or {"base64": "..."} for bytes that are no UTF-8)");
    return std::nullopt;
  }
}

}  // namespace

void readOptionsOfJson(const JsonValue& object, const Fields& fields, OptionValues& options, ListValues& values) {
  const auto* const members = object.as<JsonValue::Object>();
  if (members == nullptr) {
    values.fault(R"(options is no object: give {"NAME": "VALUE", ...})");
    return;
  }
  for (const auto& [name, value] : *members) {
    if (const auto text = optionText(name, value, values)) {
      values.option(fields, options, name, *text);
    }
  }
}

std::optional<ListedSite> siteOfJson(JsonValue& object, const ListForm& form, std::size_t line, ListFaults& faults) {
  const std::size_t before = faults.count();
  ListedSite site;
  site.line = line;
  JsonSite reader(site, form, faults);
  for (auto& [name, value] : std::get<JsonValue::Object>(object.content())) {
    reader.read(name, value);
  }
  if (faults.count() == before && !site.given.has(list_name::url)) {
    faults.add(line, "the member url is missing: give the site's address");
  }
  return faults.count() == before ? std::optional(std::move(site)) : std::nullopt;
}

}  // namespace tarnwick
