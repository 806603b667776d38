#include <utility>

#include "base/base64.h"
#include "cli/list/site_list_csv.h"
#include "cli/list/site_list_post_vars.h"

namespace tarnwick {
namespace {

class CsvWriter final : public SiteListWriter {
 public:
  CsvWriter(ListColumns columns, ByteSink sink) : columns_(columns), sink_(std::move(sink)) {}

  void begin() override {
    for (const std::string_view name : kListFieldNames) {
      addField(*listFieldOf(name), std::string(name));
    }
    endLine();
  }

  void add(const ListedSite& site) override {
    const auto yesNo = [](bool flag) { return flag ? "True" : "False"; };
    addField(ListField::idSite, site.idSite ? std::to_string(*site.idSite) : "");
    addField(ListField::url, site.site.url);
    addField(ListField::method, site.site.method);
    addField(ListField::active, yesNo(site.site.active));
    addField(ListField::tInterval, site.site.tInterval);
    addField(ListField::alertEmail, yesNo(site.site.alertEmail));
    addField(ListField::email, site.site.email);
    addField(ListField::sUserName, site.site.sUserName);
    addField(ListField::sPassWord, site.site.sPassWord);
    addField(ListField::postVars, encodePostVars(site.postVars));
    if (columns_.has(ListField::baseline)) {
      addField(ListField::baseline, encodeBase64(site.baseline));
    }
    endLine();
  }

  void end() override {}

 private:
  void addField(ListField field, std::string_view text) {
    if (!columns_.has(field)) {
      return;
    }
    if (field != ListField::idSite) {
      line_ += ',';
    }
    if (!needsQuotes(text)) {
      line_ += text;
      return;
    }
    line_ += '"';
    for (const char byte : text) {
      line_.append(byte == '"' ? 2 : 1, byte);
    }
    line_ += '"';
  }

  // Some programs drop blanks at the ends of a field without quotes.
  static bool needsQuotes(std::string_view text) {
    constexpr std::string_view kQuotedBytes("\",\r\n\0", 5);
    return text.find_first_of(kQuotedBytes) != std::string_view::npos || withoutBlanks(text).size() != text.size();
  }

  void endLine() {
    line_ += "\r\n";
    sink_(line_);
    line_.clear();
  }

  ListColumns columns_;
  ByteSink sink_;
  std::string line_;
};

}  // namespace

std::unique_ptr<SiteListWriter> makeCsvWriter(ListColumns columns, ByteSink sink) {
  return std::make_unique<CsvWriter>(columns, std::move(sink));
}

}  // namespace tarnwick
