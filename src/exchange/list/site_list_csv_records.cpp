// SPDX-License-Identifier: MIT
#include "exchange/list/site_list_csv_records.h"

#include <algorithm>

namespace tarnwick {
namespace {
constexpr char kQuote = '"';
}  // namespace

bool CsvRecord::isEmptyRow() const {
  return std::ranges::all_of(fields, [](const Field& field) { return field.text.empty() && !field.quoted; });
}

bool CsvRecords::next(CsvRecord& record) {
  skipEmptyLines();
  record.fields.clear();
  record.damaged = false;
  record.line = line_;
  if (rest_.empty()) {
    return false;
  }
  readField(record);
  while (rest_.starts_with(',')) {
    take(1);
    readField(record);
    if (record.fields.size() > list_bound::fields) {
      fault(record, "the row has more than " + std::to_string(list_bound::fields) +
                        " fields, and the list has no such columns: leave them out");
      record.fields.pop_back();
    }
  }
  skipLineEnd();
  return true;
}

bool CsvRecords::atLineEnd() const { return rest_.starts_with('\n') || rest_.starts_with("\r\n"); }

bool CsvRecords::atFieldEnd() const { return rest_.empty() || rest_.starts_with(',') || atLineEnd(); }

void CsvRecords::skipLineEnd() {
  if (atLineEnd()) {
    take(rest_.starts_with('\r') ? 2 : 1);
  }
}

void CsvRecords::skipEmptyLines() {
  while (atLineEnd()) {
    skipLineEnd();
  }
}

void CsvRecords::readField(CsvRecord& record) {
  CsvRecord::Field& field = record.fields.emplace_back();
  field.quoted = rest_.starts_with(kQuote);
  if (field.quoted) {
    readQuoted(record, field.text);
  } else {
    readPlain(record, field.text);
  }
}

void CsvRecords::readQuoted(CsvRecord& record, std::string& text) {
  const std::size_t begin = line_;
  for (;;) {
    take(1);
    const std::size_t end = rest_.find(kQuote);
    if (end == std::string_view::npos) {
      take(rest_.size());
      faults_.add(begin,
                  "the quote that begins a field here is never closed: end the field with a quote, and double "
                  "the quotes inside it");
      record.damaged = true;
      return;
    }
    text += take(end);
    take(1);
    if (!rest_.starts_with(kQuote)) {
      break;
    }
    text += kQuote;
  }
  if (!atFieldEnd()) {
    fault(record, "text stands behind the quote that ends a field (it begins on line " + std::to_string(begin) +
                      "): double the quotes inside a field");
    std::string skipped;
    readPlain(record, skipped);
  }
}

void CsvRecords::readPlain(CsvRecord& record, std::string& text) {
  while (!atFieldEnd()) {
    // A carriage return that ends no line is at the start of what is left here.
    text += take(std::min(rest_.find_first_of(",\r\n", 1), rest_.size()));
  }
  if (text.find(kQuote) != std::string::npos) {
    fault(record,
          "a quote stands inside a field that does not begin with one: put the field in quotes, and double "
          "the quotes inside it");
  } else if (text.find('\0') != std::string::npos) {
    fault(record, "a NUL character stands outside of quotes: save the file as UTF-8, or put the field in quotes");
  } else if (text.find('\r') != std::string::npos) {
    fault(record, "a carriage return stands alone: end lines with CR LF or LF, or put the field in quotes");
  }
}

std::string_view CsvRecords::take(std::size_t size) {
  const std::string_view taken = rest_.substr(0, size);
  rest_.remove_prefix(taken.size());
  line_ += static_cast<std::size_t>(std::ranges::count(taken, '\n'));
  return taken;
}

void CsvRecords::fault(CsvRecord& record, const std::string& text) {
  // One a record: the others come of the first.
  if (!record.damaged) {
    faults_.add(line_, text);
  }
  record.damaged = true;
}

}  // namespace tarnwick
