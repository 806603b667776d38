// SPDX-License-Identifier: MIT
#include "exchange/list/site_list_csv.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "base/base64.h"
#include "base/decode_error.h"
#include "exchange/list/site_list_csv_records.h"
#include "exchange/list/site_list_history.h"
#include "exchange/list/site_list_post_vars.h"

namespace tarnwick {
namespace {

constexpr std::string_view kUtf8Mark = "\xef\xbb\xbf";
constexpr std::string_view kUtf16Marks[] = {"\xff\xfe", "\xfe\xff"};

using Columns = std::vector<const ListField*>;

/// The columns that the first line names; nothing when it cannot be used.
class CsvHeader {
 public:
  CsvHeader(const ListForm& form, ListFaults& faults) : form_(form), faults_(faults) {}

  Columns read(const CsvRecord& record) {
    const std::size_t before = faults_.count();
    for (const CsvRecord::Field& field : record.fields) {
      readName(record.line, field.text);
    }
    if (faults_.count() == before && !seen_.has(list_name::url)) {
      faults_.add(record.line, "the column url is missing: the first line names the columns, of which url must be one");
    }
    return faults_.count() == before ? std::move(columns_) : Columns();
  }

 private:
  void readName(std::size_t line, std::string_view text) {
    const std::string_view name = withoutBlanks(text);
    const ListField* const field = form_.find(name);
    if (field == nullptr && text.find_first_of(";\t") != std::string_view::npos) {
      faults_.add(line, std::string("the fields are separated by ") +
                            (text.find(';') != std::string_view::npos ? "semicolons" : "tabs") +
                            ": save the file with commas between the fields");
    } else if (field == nullptr) {
      faults_.add(line, "there is no column " + quotedForMessage(name) +
                            ": the first line names the columns, which are " + form_.names());
    } else if (seen_.has(field->name)) {
      faults_.add(line, "the column " + field->name + " is named twice: leave one of them out");
    } else {
      seen_.set(field->name);
      columns_.push_back(field);
    }
  }

  const ListForm& form_;
  ListFaults& faults_;
  ListFields seen_;
  Columns columns_;
};

/// Reads the fields of one record into a site.
class CsvSite {
 public:
  CsvSite(ListedSite& site, const Fields& fields, ListFaults& faults)
      : site_(site), fields_(fields), values_(site.line, faults) {}

  void read(const ListField& field, std::string& text) {
    switch (field.role) {
      case ListField::Role::idSite:
        return readId(text);
      case ListField::Role::postVars:
        return readPostVars(text);
      case ListField::Role::baseline:
        return readBaseline(text);
      case ListField::Role::options:
        return readOptions(text);
      case ListField::Role::rules:
        return readEach(list_name::rules, '\n', text, [this](auto line) { values_.rule(site_.rules, line); });
      case ListField::Role::tags:
        return readEach(list_name::tags, ' ', text, [this](auto tag) {
          if (!tag.empty()) {
            values_.tag(site_.tags, tag);
          }
        });
      case ListField::Role::kept:
        return readEach(list_name::kept, '\n', text, [this](auto line) { values_.kept(site_.kept, line); });
      case ListField::Role::history:
        return readEach(list_name::history, '\n', text,
                        [this](auto line) { readHistoryLine(site_.history, line, values_); });
      case ListField::Role::siteField:
        return readValue(*field.field, text);
    }
  }

  /// The row of the site 0 tells what is set for all.
  void finish() {
    if (isForAll_) {
      if (!site_.given.has(list_name::options)) {
        values_.id("0");  // which tells that no site has it
        return;
      }
      site_.idSite = kAllSites;
      if (hasMore_) {
        values_.fault(
            "idSite 0 stands for all sites, which have options and nothing else: leave the other fields "
            "empty, or give a site's id");
      }
    }
  }

 private:
  void readId(std::string_view text) {
    isForAll_ = withoutBlanks(text) == "0";
    if (!isForAll_ && !withoutBlanks(text).empty()) {
      keepRead(list_name::idSite, site_.idSite, values_.id(text));
    }
  }

  template <typename Place, typename Value>
  void keepRead(std::string_view name, Place& place, std::optional<Value> value) {
    if (value) {
      place = std::move(*value);
      site_.given.set(name);
    }
  }

  void readValue(const SiteField& field, std::string& text) {
    const bool isText = field.kind != FieldKind::flag && field.kind != FieldKind::method &&
                        field.kind != FieldKind::minutes && field.kind != FieldKind::seconds;
    hasMore_ = hasMore_ || !text.empty();
    if (!isText && withoutBlanks(text).empty()) {
      return;
    }
    if (const auto value = values_.value(field, std::move(text))) {
      setValue(field, site_.site, *value);
      site_.given.set(field.name);
    }
  }

  void readOptions(std::string_view text) {
    site_.given.set(list_name::options);
    try {
      for (const PostVar& pair : decodePostVars(text)) {
        values_.option(fields_, site_.options, pair.name, pair.value);
      }
    } catch (const std::invalid_argument& error) {
      values_.fault(std::string("options: ") + error.what());
    }
  }

  template <typename Take>
  void readEach(std::string_view name, char between, std::string_view text, Take take) {
    site_.given.set(name);
    hasMore_ = hasMore_ || !text.empty();
    while (!text.empty()) {
      const std::string_view line = text.substr(0, text.find(between));
      take(line);
      text.remove_prefix(std::min(text.size(), line.size() + 1));
    }
  }

  void readPostVars(std::string_view text) {
    try {
      keepRead(list_name::postVars, site_.postVars, std::optional(decodePostVars(text)));
      hasMore_ = hasMore_ || !text.empty();
    } catch (const std::invalid_argument& error) {
      values_.fault(std::string("postVars: ") + error.what());
    }
  }

  void readBaseline(std::string_view text) {
    try {
      hasMore_ = hasMore_ || !text.empty();
      keepRead(list_name::baseline, site_.baseline, values_.baseline(decodeBase64(text)));
    } catch (const DecodeError&) {
      values_.fault("the baseline is no base64 text: export it anew, or leave its column out");
    }
  }

  ListedSite& site_;
  const Fields& fields_;
  ListValues values_;
  bool isForAll_ = false;
  /// Something else than an id and options.
  bool hasMore_ = false;
};

}  // namespace

std::vector<ListedSite> readSiteListCsv(std::string_view text, ListFaults& faults, const Fields& fields) {
  const ListForm form(fields);
  std::vector<ListedSite> sites;
  if (std::ranges::any_of(kUtf16Marks, [&](std::string_view mark) { return text.starts_with(mark); })) {
    faults.add(1, "the file is UTF-16: save it as UTF-8");
    return sites;
  }
  CsvRecords records(text.starts_with(kUtf8Mark) ? text.substr(kUtf8Mark.size()) : text, faults);
  CsvRecord record;
  if (!records.next(record)) {
    faults.add(1, "the file is empty: its first line names the columns, which are " + form.names());
    return sites;
  }
  const Columns columns = record.damaged ? Columns() : CsvHeader(form, faults).read(record);
  while (!columns.empty() && records.next(record)) {
    if (record.damaged || record.isEmptyRow()) {
      continue;
    }
    if (record.fields.size() != columns.size()) {
      faults.add(record.line, "the number of fields is " + std::to_string(record.fields.size()) +
                                  " and that of columns " + std::to_string(columns.size()) +
                                  ": give each column its field, and put one that holds a comma in quotes");
      continue;
    }
    if (sites.size() == list_bound::sites) {
      faults.add(record.line, kTooManySites);
      return sites;
    }
    const std::size_t before = faults.count();
    ListedSite site;
    site.line = record.line;
    CsvSite reader(site, fields, faults);
    for (std::size_t i = 0; i < columns.size(); ++i) {
      reader.read(*columns[i], record.fields[i].text);
    }
    reader.finish();
    if (faults.count() == before) {
      sites.push_back(std::move(site));
    }
  }
  return sites;
}

}  // namespace tarnwick
