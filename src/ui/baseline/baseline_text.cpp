// SPDX-License-Identifier: MIT
#include "ui/baseline/baseline_text.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tarnwick {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
// Pieces are short enough to be read through at every keystroke, and long enough for a list of them to be searched.
constexpr std::size_t kPieceBytes = 4096;
// A row is broken here at the latest, and at a blank when one stands in its last part.
constexpr std::size_t kLongestRow = 2000;
constexpr std::size_t kBreakableFrom = 1800;

bool isBlank(const ShownUnit& unit) { return unit.text[0] == u' ' || unit.text[0] == u'\t'; }

std::u16string withPlainLineEnds(std::u16string_view text) {
  std::u16string plain;
  plain.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool beforeLineFeed = i + 1 < text.size() && text[i + 1] == u'\n';
    if (text[i] != u'\r') {
      plain.push_back(text[i]);
    } else if (!beforeLineFeed) {
      plain.push_back(u'\n');
    }
  }
  return plain;
}

// The line end that holds the byte at `offset`.
std::string_view lineEndAt(std::string_view bytes, std::size_t offset) {
  const bool pairStarts = bytes[offset] == '\r' && offset + 1 < bytes.size() && bytes[offset + 1] == '\n';
  const bool pairEnds = bytes[offset] == '\n' && offset > 0 && bytes[offset - 1] == '\r';
  if (pairStarts || pairEnds) {
    return "\r\n";
  }
  return bytes[offset] == '\r' ? "\r" : "\n";
}

bool isHighSurrogate(char16_t unit) { return (unit & 0xFC00U) == 0xD800; }
bool isLowSurrogate(char16_t unit) { return (unit & 0xFC00U) == 0xDC00; }

std::size_t commonStart(std::u16string_view one, std::u16string_view other) {
  const std::size_t longest = std::min(one.size(), other.size());
  std::size_t length = 0;
  while (length < longest && one[length] == other[length]) {
    ++length;
  }
  // A character of two units is the same as a whole or not at all.
  return length > 0 && isHighSurrogate(one[length - 1]) ? length - 1 : length;
}

std::size_t commonEnd(std::u16string_view one, std::u16string_view other) {
  const std::size_t longest = std::min(one.size(), other.size());
  std::size_t length = 0;
  while (length < longest && one[one.size() - 1 - length] == other[other.size() - 1 - length]) {
    ++length;
  }
  return length > 0 && isLowSurrogate(one[one.size() - length]) ? length - 1 : length;
}

}  // namespace

BaselineText::BaselineText(std::string page) : charset_(charsetOf(page)) {
  // A page that is nothing but the mark shows it, so that it can be deleted.
  const std::string_view whole(page);
  if (charset_ == PageCharset::utf8 && whole.starts_with(kByteOrderMark) && whole.size() > kByteOrderMark.size()) {
    mark_ = kByteOrderMark;
  }
  pieces_ = cut(whole.substr(mark_.size()), charset_);
}

BaselineText::Pieces BaselineText::cut(std::string_view bytes, PageCharset charset) {
  Pieces pieces;
  Piece piece{{}, 0, charset, false};
  std::size_t begin = 0;
  const auto close = [&](std::size_t end) {
    piece.bytes = bytes.substr(begin, end - begin);
    pieces.push_back(std::exchange(piece, Piece{{}, 0, charset, false}));
    begin = end;
  };
  std::size_t row = 0;
  for (std::size_t offset = 0; offset < bytes.size();) {
    const ShownUnit unit = unitAt(bytes, offset, charset);
    offset += unit.bytes;
    piece.length += unit.length;
    row = unit.lineEnd ? 0 : row + unit.length;
    const bool lineGoesOn = offset < bytes.size() && bytes[offset] != '\r' && bytes[offset] != '\n';
    if (lineGoesOn && (row >= kLongestRow || (row >= kBreakableFrom && isBlank(unit)))) {
      piece.rowBreak = true;
      ++piece.length;
      row = 0;
      close(offset);
    } else if (offset - begin >= kPieceBytes) {
      close(offset);
    }
  }
  if (begin < bytes.size()) {
    close(bytes.size());
  }
  return pieces;
}

template <typename Visit>
void BaselineText::visitUnits(std::size_t position, std::size_t length, Visit visit) const {
  // visit(where the unit stands, the unit's bytes, the unit); a row break has no bytes.
  const std::size_t end = position + length;
  std::size_t start = 0;
  for (const Piece& piece : pieces_) {
    const std::size_t pieceEnd = start + piece.length;
    if (start >= end) {
      return;
    }
    if (pieceEnd > position) {
      std::size_t at = start;
      for (std::size_t offset = 0; offset < piece.bytes.size() && at < end;) {
        const ShownUnit unit = unitAt(piece.bytes, offset, piece.charset);
        if (at + unit.length > position) {
          visit(at, std::string_view(piece.bytes).substr(offset, unit.bytes), unit);
        }
        at += unit.length;
        offset += unit.bytes;
      }
      if (piece.rowBreak && pieceEnd <= end) {
        visit(pieceEnd - 1, std::string_view(), ShownUnit{0, {u'\n'}, 1, false});
      }
    }
    start = pieceEnd;
  }
}

std::string BaselineText::bytes() const {
  std::size_t total = mark_.size();
  for (const Piece& piece : pieces_) {
    total += piece.bytes.size();
  }
  // A text that was emptied is empty: no mark stays behind unseen.
  if (edited_ && total == mark_.size()) {
    return {};
  }
  std::string page;
  page.reserve(total);
  page += mark_;
  for (const Piece& piece : pieces_) {
    page += piece.bytes;
  }
  return page;
}

std::string BaselineText::bytes(std::size_t position, std::size_t length) const {
  std::string part;
  visitUnits(position, length,
             [&](std::size_t, std::string_view unitBytes, const ShownUnit&) { part.append(unitBytes); });
  return part;
}

std::size_t BaselineText::size() const {
  std::size_t length = 0;
  for (const Piece& piece : pieces_) {
    length += piece.length;
  }
  return length;
}

std::u16string BaselineText::shown(std::size_t position, std::size_t length) const {
  std::u16string part;
  part.reserve(length);
  visitUnits(position, length, [&](std::size_t at, std::string_view, const ShownUnit& unit) {
    for (std::size_t i = 0; i < unit.length; ++i) {
      if (at + i >= position && at + i < position + length) {
        part.push_back(unit.text[i]);
      }
    }
  });
  return part;
}

std::u16string BaselineText::text(std::size_t position, std::size_t length) const {
  std::u16string part;
  visitUnits(position, length, [&](std::size_t, std::string_view unitBytes, const ShownUnit& unit) {
    if (!unitBytes.empty()) {
      part.append(unit.text.data(), unit.length);
    }
  });
  return part;
}

bool BaselineText::isRowBreak(std::size_t position) const {
  std::size_t end = 0;
  for (const Piece& piece : pieces_) {
    end += piece.length;
    if (end > position) {
      return piece.rowBreak && position + 1 == end;
    }
  }
  return false;
}

std::optional<std::size_t> BaselineText::firstForeign(std::size_t position, std::size_t length) const {
  std::size_t start = 0;
  for (const Piece& piece : pieces_) {
    const std::size_t end = start + piece.length;
    if (piece.charset != charset_ && end > position && start < position + length) {
      return std::max(start, position);
    }
    start = end;
  }
  return std::nullopt;
}

std::string_view BaselineText::lineEndNear(std::size_t position) const {
  constexpr std::string_view kLineEndBytes = "\r\n";
  std::string_view found;
  std::size_t start = 0;
  for (const Piece& piece : pieces_) {
    const bool before = start + piece.length <= position;
    const std::size_t last =
        before ? piece.bytes.find_last_of(kLineEndBytes) : piece.bytes.find_first_of(kLineEndBytes);
    if (before && last != std::string::npos) {
      found = lineEndAt(piece.bytes, last);
    } else if (!before) {
      // The piece around the position is read unit by unit: what stands before it counts first.
      std::size_t at = start;
      for (std::size_t offset = 0; offset < piece.bytes.size() && at < position;) {
        const ShownUnit unit = unitAt(piece.bytes, offset, piece.charset);
        if (unit.lineEnd) {
          found = lineEndAt(piece.bytes, offset);
        }
        at += unit.length;
        offset += unit.bytes;
      }
      if (!found.empty()) {
        return found;
      }
      if (last != std::string::npos) {
        return lineEndAt(piece.bytes, last);
      }
    }
    start += piece.length;
  }
  return found.empty() ? "\n" : found;
}

BaselineText::Pieces BaselineText::encode(std::u16string_view text, std::size_t position) const {
  const std::string_view lineEnd = text.find(u'\n') == std::u16string_view::npos ? "" : lineEndNear(position);
  Pieces pieces;
  for (const EncodedRun& run : encodeText(text, charset_, lineEnd)) {
    std::ranges::move(cut(run.bytes, run.charset), std::back_inserter(pieces));
  }
  return pieces;
}

void BaselineText::follow(std::size_t position, std::size_t removed, std::u16string_view added) {
  const std::u16string old = shown(position, removed);
  const std::size_t start = commonStart(old, added);
  const std::size_t end = commonEnd(std::u16string_view(old).substr(start), added.substr(start));
  const std::u16string_view fresh = added.substr(start, added.size() - start - end);
  const std::size_t gone = old.size() - start - end;
  if (gone == 0 && fresh.empty()) {
    return;
  }
  constexpr std::size_t kOneCharacter = 2;
  const bool letter = gone == 0 && fresh.size() <= kOneCharacter && fresh.find(u'\n') == std::u16string_view::npos;
  const bool erased = fresh.empty() && gone <= kOneCharacter;
  edit(position + start, gone, encode(fresh, position + start), letter || erased);
}

TextChange BaselineText::paste(std::size_t position, std::size_t removed, std::u16string_view text) {
  Pieces added = encode(withPlainLineEnds(text), position);
  const std::size_t sizeBefore = size();
  edit(position, removed, std::move(added), false);
  return {position, removed, shown(position, size() + removed - sizeBefore)};
}

TextChange BaselineText::pasteBytes(std::size_t position, std::size_t removed, std::string_view bytes) {
  const std::size_t sizeBefore = size();
  edit(position, removed, cut(bytes, charset_), false);
  return {position, removed, shown(position, size() + removed - sizeBefore)};
}

}  // namespace tarnwick
