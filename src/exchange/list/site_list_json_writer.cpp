// SPDX-License-Identifier: MIT
#include <utility>

#include "exchange/json/json_text.h"
#include "exchange/list/site_facts.h"
#include "exchange/list/site_list_channels.h"
#include "exchange/list/site_list_history.h"
#include "exchange/list/site_list_json.h"

namespace tarnwick {
namespace {

class JsonWriter final : public SiteListWriter {
 public:
  JsonWriter(ListColumns columns, ByteSink sink, const Fields& fields)
      : columns_(columns), sink_(std::move(sink)), form_(fields) {}

  void begin(const OptionValues& ofAll, const std::vector<ListedChannel>& channels) override {
    sink_(R"({"tarnwick": 1, )" + (columns_.options ? R"("options": )" + jsonLine(optionsJson(ofAll)) + ", " : ""));
    if (!channels.empty()) {
      sink_(R"("channels": )" + jsonLine(channelsJson(channels)) + ",\n");
    }
    sink_(R"("sites": [)");
  }

  void add(const ListedSite& site) override {
    JsonValue object = JsonValue::object();
    for (const ListField& field : form_.all()) {
      if (columns_.has(field)) {
        object[field.name] = valueOfField(field, site);
      }
    }
    sink_(std::exchange(separator_, ",\n") + jsonLine(std::move(object)));
  }

  void end() override { sink_("\n]}\n"); }

 private:
  static JsonValue keptJson(const std::vector<ListedBaseline>& baselines) {
    JsonValue json = JsonValue::array();
    for (const ListedBaseline& baseline : baselines) {
      json.add(jsonText(textOf(baseline)));
    }
    return json;
  }

  static JsonValue historyJson(const KeptHistory& history) {
    JsonValue json = JsonValue::array();
    for (const std::string& line : linesOf(history)) {
      json.add(jsonText(line));
    }
    return json;
  }

  static JsonValue valueOfField(const ListField& field, const ListedSite& site) {
    switch (field.role) {
      case ListField::Role::idSite:
        return site.idSite ? JsonValue(*site.idSite) : JsonValue();
      case ListField::Role::postVars:
        return postVarsJson(site.postVars);
      case ListField::Role::baseline:
        return jsonText(site.baseline);
      case ListField::Role::options:
        return optionsJson(site.options);
      case ListField::Role::rules:
        return rulesJson(site.rules);
      case ListField::Role::tags:
        return tagsJson(site.tags);
      case ListField::Role::kept:
        return keptJson(site.kept);
      case ListField::Role::history:
        return historyJson(site.history);
      case ListField::Role::siteField:
        break;
    }
    const FieldValue value = valueOf(*field.field, site.site);
    if (const bool* const flag = std::get_if<bool>(&value)) {
      return *flag;
    }
    const auto& text = std::get<std::string>(value);
    // The interval is a whole number in every list that the program keeps.
    const bool number = field.field->kind == FieldKind::minutes || field.field->kind == FieldKind::seconds;
    return number ? jsonNumber(text) : jsonText(text);
  }

  ListColumns columns_;
  ByteSink sink_;
  ListForm form_;
  std::string separator_ = "\n";
};

}  // namespace

std::unique_ptr<SiteListWriter> makeJsonWriter(ListColumns columns, ByteSink sink, const Fields& fields) {
  return std::make_unique<JsonWriter>(columns, std::move(sink), fields);
}

}  // namespace tarnwick
