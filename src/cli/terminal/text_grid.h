// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "cli/terminal/console.h"

namespace tarnwick {

/// A table of text for people: columns as wide as their widest cell, the last one as long as it is.
class TextGrid {
 public:
  enum class Align { left, right };
  struct Column {
    std::string title;  ///< in English; shown in the user's language
    Align align = Align::left;
  };
  struct Cell {
    std::string text;  ///< shown as `visibleText` shows it
    Console::Colour colour = Console::Colour::plain;
  };

  explicit TextGrid(std::vector<Column> columns) : columns_(std::move(columns)) {}
  /// REQUIRES: as many cells as there are columns.
  void addRow(std::vector<Cell> cells);
  /// Writes the titles and the rows.
  void print(Console& console) const;

 private:
  std::vector<Column> columns_;
  std::vector<std::vector<Cell>> rows_;
};

}  // namespace tarnwick
