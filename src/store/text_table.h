// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <deque>
#include <string>

#include "base/sql_value.h"

namespace tarnwick {

/// A list read from the database as texts, indexed (column, row). Both count from 1; column 0 and row 0 exist and
/// stay empty. A database Null is `kNullText`.
class TextTable {
 public:
  /// A table with columns 0 to `lastColumn` and row 0 only.
  explicit TextTable(std::size_t lastColumn = 0) : columns_(lastColumn + 1), cells_(columns_) {}

  /// The number of the last column.
  std::size_t lastColumn() const { return columns_ - 1; }
  /// The number of the last row: how many rows are filled.
  std::size_t lastRow() const { return cells_.size() / columns_ - 1; }

  /// Adds an empty row and returns its number.
  std::size_t addRow() {
    cells_.resize(cells_.size() + columns_);
    return lastRow();
  }

  /// The text at (`column`, `row`); raises std::out_of_range beyond the last ones.
  const std::string& at(std::size_t column, std::size_t row) const { return cells_.at(indexOf(column, row)); }
  std::string& at(std::size_t column, std::size_t row) { return cells_.at(indexOf(column, row)); }
  /// Whether the text at (`column`, `row`) is that of a Null; raises as `at` does.
  bool isNull(std::size_t column, std::size_t row) const { return at(column, row) == kNullText; }

 private:
  std::size_t indexOf(std::size_t column, std::size_t row) const {
    return column < columns_ ? row * columns_ + column : cells_.size();
  }

  std::size_t columns_;
  // Grows without moving what is there: a long list has some hundred thousand cells.
  std::deque<std::string> cells_;
};

/// The text of a cell, empty for a Null.
inline std::string textOrEmpty(const std::string& cell) { return cell == kNullText ? std::string() : cell; }

}  // namespace tarnwick
