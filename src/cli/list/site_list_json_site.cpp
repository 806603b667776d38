#include "cli/list/site_list_json_site.h"

#include <stdexcept>
#include <utility>

namespace tarnwick {
namespace {

constexpr const char* kName = "pname";
constexpr const char* kValue = "pvalue";

class JsonSite {
 public:
  JsonSite(ListedSite& site, ListFaults& faults) : site_(site), values_(site.line, faults) {}

  void read(const std::string& name, JsonValue& value) {
    const auto field = listFieldOf(name);
    if (!field) {
      values_.fault("there is no member " + quotedForMessage(name) + ": the members are " + listFieldNames());
    } else if (site_.given.has(*field)) {
      values_.fault("the member " + std::string(nameOf(*field)) + " is given twice: leave one of them out");
    } else if (!value.isNull()) {
      readField(*field, value);
    }
  }

 private:
  void readField(ListField field, JsonValue& value) {
    switch (field) {
      case ListField::idSite:
        return keep(field, site_.idSite, isNumber(field, value) ? values_.id(jsonLine(value)) : std::nullopt);
      case ListField::tInterval:
        return keep(field, site_.site.tInterval,
                    isNumber(field, value) ? values_.interval(jsonLine(value)) : std::nullopt);
      case ListField::active:
        return keep(field, site_.site.active, flag(field, value));
      case ListField::alertEmail:
        return keep(field, site_.site.alertEmail, flag(field, value));
      case ListField::postVars:
        return keep(field, site_.postVars, postVars(value));
      default:
        readText(field, value);
    }
  }

  void readText(ListField field, const JsonValue& value) {
    std::optional<std::string> bytes = text(nameOf(field), value);
    if (!bytes) {
      return;
    }
    switch (field) {
      case ListField::url:
        return keep(field, site_.site.url, std::move(bytes));
      case ListField::method:
        return keep(field, site_.site.method, values_.method(*bytes));
      case ListField::email:
        return keep(field, site_.site.email, std::move(bytes));
      case ListField::sUserName:
        return keep(field, site_.site.sUserName, std::move(bytes));
      case ListField::sPassWord:
        return keep(field, site_.site.sPassWord, std::move(bytes));
      default:
        return keep(field, site_.baseline, values_.baseline(std::move(*bytes)));
    }
  }

  template <typename Place, typename Value>
  void keep(ListField field, Place& place, std::optional<Value> value) {
    if (value) {
      place = std::move(*value);
      site_.given.set(field);
    }
  }

  bool isNumber(ListField field, const JsonValue& value) {
    if (!value.isInteger()) {
      values_.fault(std::string(nameOf(field)) + " " + shown(value) +
                    " is no whole number: give one without quotes, a point or an exponent");
    }
    return value.isInteger();
  }

  std::optional<bool> flag(ListField field, const JsonValue& value) {
    const bool* const flag = value.as<bool>();
    if (flag == nullptr) {
      values_.fault(std::string(nameOf(field)) + " " + shown(value) +
                    " is neither yes nor no: give true or false, without quotes");
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
  ListValues values_;
};

}  // namespace

std::optional<ListedSite> siteOfJson(JsonValue& object, std::size_t line, ListFaults& faults) {
  const std::size_t before = faults.count();
  ListedSite site;
  site.line = line;
  JsonSite reader(site, faults);
  for (auto& [name, value] : std::get<JsonValue::Object>(object.content())) {
    reader.read(name, value);
  }
  if (faults.count() == before && !site.given.has(ListField::url)) {
    faults.add(line, "the member url is missing: give the site's address");
  }
  return faults.count() == before ? std::optional(std::move(site)) : std::nullopt;
}

}  // namespace tarnwick
