#include <utility>

#include "cli/list/site_list_json.h"
#include "cli/terminal/json_text.h"

namespace tarnwick {
namespace {

class JsonWriter final : public SiteListWriter {
 public:
  JsonWriter(ListColumns columns, ByteSink sink) : columns_(columns), sink_(std::move(sink)) {}

  void begin() override { sink_(R"({"tarnwick": 1, "sites": [)"); }

  void add(const ListedSite& site) override {
    JsonValue object = JsonValue::object();
    const auto put = [&](ListField field, JsonValue value) { object[std::string(nameOf(field))] = std::move(value); };
    put(ListField::idSite, site.idSite ? JsonValue(*site.idSite) : JsonValue());
    put(ListField::url, jsonText(site.site.url));
    put(ListField::method, jsonText(site.site.method));
    put(ListField::active, site.site.active);
    put(ListField::tInterval, jsonNumber(site.site.tInterval));
    put(ListField::alertEmail, site.site.alertEmail);
    put(ListField::email, jsonText(site.site.email));
    put(ListField::sUserName, jsonText(site.site.sUserName));
    if (columns_.has(ListField::sPassWord)) {
      put(ListField::sPassWord, jsonText(site.site.sPassWord));
    }
    put(ListField::postVars, postVars(site.postVars));
    if (columns_.has(ListField::baseline)) {
      put(ListField::baseline, jsonText(site.baseline));
    }
    sink_(std::exchange(separator_, ",\n") + jsonLine(std::move(object)));
  }

  void end() override { sink_("\n]}\n"); }

 private:
  static JsonValue postVars(const std::vector<PostVar>& vars) {
    JsonValue json = JsonValue::array();
    for (const PostVar& var : vars) {
      json.add({{"pname", jsonText(var.name)}, {"pvalue", jsonText(var.value)}});
    }
    return json;
  }

  ListColumns columns_;
  ByteSink sink_;
  std::string separator_ = "\n";
};

}  // namespace

std::unique_ptr<SiteListWriter> makeJsonWriter(ListColumns columns, ByteSink sink) {
  return std::make_unique<JsonWriter>(columns, std::move(sink));
}

}  // namespace tarnwick
