#include "cli/text_grid.h"

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
  std::vector<std::size_t> widths;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    std::size_t width = characterCount(columns_[i].title);
    for (const auto& row : rows_) {
      width = std::max(width, characterCount(row[i].text));
    }
    widths.push_back(width);
  }
  std::ostream& out = console.out();
  const auto printCell = [&](std::size_t i, const std::string& text, const std::string& shown) {
    const bool last = i + 1 == columns_.size();
    const bool loose = last && columns_[i].align == Align::left;
    if (loose && text.empty()) {
      return;  // no blanks at the end of a line
    }
    out << (i == 0 ? "" : kGap) << (loose ? shown : padded(text, shown, widths[i], columns_[i].align));
  };
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    printCell(i, columns_[i].title, console.coloured(Console::Colour::bold, columns_[i].title));
  }
  out << '\n';
  for (const auto& row : rows_) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      printCell(i, row[i].text, console.coloured(row[i].colour, row[i].text));
    }
    out << '\n';
  }
  out.flush();
}

}  // namespace tarnwick
