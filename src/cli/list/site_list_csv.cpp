#include "cli/list/site_list_csv.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "base/base64.h"
#include "base/decode_error.h"
#include "cli/list/site_list_csv_records.h"
#include "cli/list/site_list_post_vars.h"

namespace tarnwick {
namespace {

constexpr std::string_view kUtf8Mark = "\xef\xbb\xbf";
constexpr std::string_view kUtf16Marks[] = {"\xff\xfe", "\xfe\xff"};

using Columns = std::vector<ListField>;

/// The columns that the first line names; nothing when it cannot be used.
class CsvHeader {
 public:
  explicit CsvHeader(ListFaults& faults) : faults_(faults) {}

  Columns read(const CsvRecord& record) {
    const std::size_t before = faults_.count();
    for (const CsvRecord::Field& field : record.fields) {
      readName(record.line, field.text);
    }
    if (faults_.count() == before && !seen_.has(ListField::url)) {
      faults_.add(record.line, "the column url is missing: the first line names the columns, of which url must be one");
    }
    return faults_.count() == before ? std::move(columns_) : Columns();
  }

 private:
  void readName(std::size_t line, std::string_view text) {
    const std::string_view name = withoutBlanks(text);
    const auto field = listFieldOf(name);
    if (!field && text.find_first_of(";\t") != std::string_view::npos) {
      faults_.add(line, std::string("the fields are separated by ") +
                            (text.find(';') != std::string_view::npos ? "semicolons" : "tabs") +
                            ": save the file with commas between the fields");
    } else if (!field) {
      faults_.add(line, "there is no column " + quotedForMessage(name) +
                            ": the first line names the columns, which are " + listFieldNames());
    } else if (seen_.has(*field)) {
      faults_.add(line, "the column " + std::string(nameOf(*field)) + " is named twice: leave one of them out");
    } else {
      seen_.set(*field);
      columns_.push_back(*field);
    }
  }

  ListFaults& faults_;
  ListFields seen_;
  Columns columns_;
};

/// Reads the fields of one record into a site.
class CsvSite {
 public:
  CsvSite(ListedSite& site, ListFaults& faults) : site_(site), values_(site.line, faults) {}

  void read(ListField field, std::string& text) {
    switch (field) {
      case ListField::url:
        keep(field, site_.site.url, std::move(text));
        break;
      case ListField::email:
        keep(field, site_.site.email, std::move(text));
        break;
      case ListField::sUserName:
        keep(field, site_.site.sUserName, std::move(text));
        break;
      case ListField::sPassWord:
        keep(field, site_.site.sPassWord, std::move(text));
        break;
      case ListField::postVars:
        readPostVars(text);
        break;
      case ListField::baseline:
        readBaseline(text);
        break;
      default:
        if (!withoutBlanks(text).empty()) {
          readValue(field, text);
        }
    }
  }

 private:
  template <typename Place, typename Value>
  void keep(ListField field, Place& place, Value&& value) {
    place = std::forward<Value>(value);
    site_.given.set(field);
  }
  template <typename Place, typename Value>
  void keepRead(ListField field, Place& place, std::optional<Value> value) {
    if (value) {
      keep(field, place, std::move(*value));
    }
  }

  void readValue(ListField field, const std::string& text) {
    switch (field) {
      case ListField::idSite:
        return keepRead(field, site_.idSite, values_.id(text));
      case ListField::method:
        return keepRead(field, site_.site.method, values_.method(text));
      case ListField::active:
        return keepRead(field, site_.site.active, values_.yesNo(field, text));
      case ListField::tInterval:
        return keepRead(field, site_.site.tInterval, values_.interval(text));
      default:
        return keepRead(field, site_.site.alertEmail, values_.yesNo(field, text));
    }
  }

  void readPostVars(std::string_view text) {
    try {
      keep(ListField::postVars, site_.postVars, decodePostVars(text));
    } catch (const std::invalid_argument& error) {
      values_.fault(std::string("postVars: ") + error.what());
    }
  }

  void readBaseline(std::string_view text) {
    try {
      keepRead(ListField::baseline, site_.baseline, values_.baseline(decodeBase64(text)));
    } catch (const DecodeError&) {
      values_.fault("the baseline is no base64 text: export it anew, or leave its column out");
    }
  }

  ListedSite& site_;
  ListValues values_;
};

}  // namespace

std::vector<ListedSite> readSiteListCsv(std::string_view text, ListFaults& faults) {
  std::vector<ListedSite> sites;
  if (std::ranges::any_of(kUtf16Marks, [&](std::string_view mark) { return text.starts_with(mark); })) {
    faults.add(1, "the file is UTF-16: save it as UTF-8");
    return sites;
  }
  CsvRecords records(text.starts_with(kUtf8Mark) ? text.substr(kUtf8Mark.size()) : text, faults);
  CsvRecord record;
  if (!records.next(record)) {
    faults.add(1, "the file is empty: its first line names the columns, which are " + listFieldNames());
    return sites;
  }
  const Columns columns = record.damaged ? Columns() : CsvHeader(faults).read(record);
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
    const std::size_t before = faults.count();
    ListedSite site;
    site.line = record.line;
    CsvSite reader(site, faults);
    for (std::size_t i = 0; i < columns.size(); ++i) {
      reader.read(columns[i], record.fields[i].text);
    }
    if (faults.count() == before) {
      sites.push_back(std::move(site));
    }
  }
  return sites;
}

}  // namespace tarnwick
