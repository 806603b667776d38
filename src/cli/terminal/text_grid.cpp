// SPDX-License-Identifier: MIT
#include "cli/terminal/text_grid.h"

#include <algorithm>
#include <ostream>
#include <utility>

namespace tarnwick {
namespace {

constexpr std::string_view kGap = "  ";

std::string padded(const std::string& text, const std::string& shown, std::size_t width, TextGrid::Align align) {
  const std::string blanks(width - std::min(width, characterCount(text)), ' ');
  return align == TextGrid::Align::left ? shown + blanks : blanks + shown;
}

}  // namespace

void TextGrid::addRow(std::vector<Cell> cells) {
  for (Cell& cell : cells) {
    cell.text = visibleText(cell.text);
  }
  rows_.push_back(std::move(cells));
}

void TextGrid::print(Console& console) const {
  std::vector<std::string> titles;
  std::vector<std::size_t> widths;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    titles.push_back(console.worded(columns_[i].title));
    std::size_t width = characterCount(titles[i]);
    for (const auto& row : rows_) {
      width = std::max(width, characterCount(row[i].text));
    }
    widths.push_back(width);
  }
  const auto lineOf = [&](const auto& textOf) {
    std::string line;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      const auto [text, colour] = textOf(i);
      const std::string shown = console.coloured(colour, text);
      line += (i == 0 ? "" : kGap);
      line += padded(text, shown, widths[i], columns_[i].align);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
  };
  std::ostream& out = console.out();
  out << lineOf([&](std::size_t i) { return Cell{titles[i], Console::Colour::bold}; }) << '\n';
  for (const auto& row : rows_) {
    out << lineOf([&](std::size_t i) { return row[i]; }) << '\n';
  }
}

}  // namespace tarnwick
