// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/list/site_list.h"

namespace tarnwick {

/// A record of a CSV text: a row of a table.
struct CsvRecord {
  struct Field {
    std::string text;
    bool quoted = false;
  };

  /// The physical line on which it begins, from 1.
  std::size_t line = 0;
  std::vector<Field> fields;
  /// What is wrong with it has been told; its fields are of no use.
  bool damaged = false;

  /// What a spreadsheet writes for an empty row.
  bool isEmptyRow() const;
};

/// Takes a CSV text apart (RFC 4180): fields between commas, in double quotes where they hold a comma, a quote, which
/// is doubled, or a line end. Bytes are kept as they are. Lines may end with LF alone, and empty ones are skipped.
class CsvRecords {
 public:
  /// `text` and `faults` outlive this object.
  CsvRecords(std::string_view text, ListFaults& faults) : rest_(text), faults_(faults) {}

  /// Reads the next record; false at the end.
  bool next(CsvRecord& record);

 private:
  bool atLineEnd() const;
  bool atFieldEnd() const;
  void skipLineEnd();
  void skipEmptyLines();
  void readField(CsvRecord& record);
  void readQuoted(CsvRecord& record, std::string& text);
  void readPlain(CsvRecord& record, std::string& text);
  /// Moves over `size` bytes.
  std::string_view take(std::size_t size);
  void fault(CsvRecord& record, const std::string& text);

  std::string_view rest_;
  std::size_t line_ = 1;
  ListFaults& faults_;
};

}  // namespace tarnwick
