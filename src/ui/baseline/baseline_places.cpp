// SPDX-License-Identifier: MIT
// Where the bytes of a page stand in the text that is shown of it.
#include <algorithm>

#include "ui/baseline/baseline_text.h"

namespace tarnwick {

std::size_t BaselineText::offsetOf(std::size_t position) const {
  std::size_t offset = mark_.size();
  std::size_t start = 0;
  for (const Piece& piece : pieces_) {
    if (start + piece.length > position) {
      std::size_t at = 0;
      while (at < piece.bytes.size()) {
        const ShownUnit unit = unitAt(piece.bytes, at, piece.charset);
        if (start + unit.length > position) {
          return offset + at;
        }
        start += unit.length;
        at += unit.bytes;
      }
      return offset + at;
    }
    start += piece.length;
    offset += piece.bytes.size();
  }
  return offset;
}

std::vector<std::size_t> BaselineText::positionsOf(const std::vector<std::size_t>& offsets) const {
  std::vector<std::size_t> positions;
  auto piece = pieces_.begin();
  std::size_t start = 0;
  std::size_t begin = mark_.size();
  for (const std::size_t offset : offsets) {
    while (piece != pieces_.end() && begin + piece->bytes.size() <= offset) {
      start += piece->length;
      begin += piece->bytes.size();
      ++piece;
    }
    std::size_t position = start;
    for (std::size_t at = 0; piece != pieces_.end() && begin + at < offset;) {
      const ShownUnit unit = unitAt(piece->bytes, at, piece->charset);
      if (begin + at + unit.bytes > offset) {
        break;
      }
      position += unit.length;
      at += unit.bytes;
    }
    positions.push_back(position);
  }
  return positions;
}

}  // namespace tarnwick
