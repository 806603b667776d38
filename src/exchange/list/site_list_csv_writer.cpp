// SPDX-License-Identifier: MIT
#include <utility>

#include "base/base64.h"
#include "exchange/list/site_list_csv.h"
#include "exchange/list/site_list_history.h"
#include "exchange/list/site_list_post_vars.h"

namespace tarnwick {
namespace {

class CsvWriter final : public SiteListWriter {
 public:
  CsvWriter(ListColumns columns, ByteSink sink, const Fields& fields)
      : columns_(columns), sink_(std::move(sink)), form_(fields) {}

  void begin(const OptionValues& ofAll, const std::vector<ListedChannel>& /*channels*/) override {
    for (const ListField& field : form_.all()) {
      addField(field, field.name);
    }
    endLine();
    if (columns_.options) {
      for (const ListField& field : form_.all()) {
        const bool isOptions = field.role == ListField::Role::options;
        addField(field, field.role == ListField::Role::idSite ? "0" : isOptions ? encodePostVars(pairsOf(ofAll)) : "");
      }
      endLine();
    }
  }

  void add(const ListedSite& site) override {
    for (const ListField& field : form_.all()) {
      if (columns_.has(field)) {
        addField(field, textOf(field, site));
      }
    }
    endLine();
  }

  void end() override {}

 private:
  static std::vector<PostVar> pairsOf(const OptionValues& options) {
    std::vector<PostVar> pairs;
    for (const auto& [name, value] : options) {
      pairs.push_back({name, value});
    }
    return pairs;
  }

  // One a line.
  static std::string rulesOf(const RuleSet& rules) {
    std::string text;
    for (const RuleLine& line : linesOf(rules)) {
      text += (text.empty() ? "" : "\n") + line.kind + " " + line.rule;
    }
    return text;
  }

  static std::string joined(const std::vector<std::string>& texts, const char* between) {
    std::string all;
    for (const std::string& text : texts) {
      all += (all.empty() ? "" : between) + text;
    }
    return all;
  }

  // One a line.
  static std::string keptOf(const std::vector<ListedBaseline>& baselines) {
    std::vector<std::string> lines;
    lines.reserve(baselines.size());
    for (const ListedBaseline& baseline : baselines) {
      lines.push_back(tarnwick::textOf(baseline));
    }
    return joined(lines, "\n");
  }

  static std::string textOf(const ListField& field, const ListedSite& site) {
    switch (field.role) {
      case ListField::Role::idSite:
        return site.idSite ? std::to_string(*site.idSite) : "";
      case ListField::Role::postVars:
        return encodePostVars(site.postVars);
      case ListField::Role::baseline:
        return encodeBase64(site.baseline);
      case ListField::Role::options:
        return encodePostVars(pairsOf(site.options));
      case ListField::Role::rules:
        return rulesOf(site.rules);
      case ListField::Role::tags:
        return joined(site.tags, " ");
      case ListField::Role::kept:
        return keptOf(site.kept);
      case ListField::Role::history:
        return joined(linesOf(site.history), "\n");
      case ListField::Role::siteField:
        break;
    }
    const FieldValue value = valueOf(*field.field, site.site);
    const bool* const flag = std::get_if<bool>(&value);
    return flag == nullptr ? std::get<std::string>(value) : *flag ? "True" : "False";
  }

  void addField(const ListField& field, std::string_view text) {
    if (!columns_.has(field)) {
      return;
    }
    if (field.role != ListField::Role::idSite) {
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
  ListForm form_;
  std::string line_;
};

}  // namespace

std::unique_ptr<SiteListWriter> makeCsvWriter(ListColumns columns, ByteSink sink, const Fields& fields) {
  return std::make_unique<CsvWriter>(columns, std::move(sink), fields);
}

}  // namespace tarnwick
