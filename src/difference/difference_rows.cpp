// SPDX-License-Identifier: MIT
#include "difference/difference_rows.h"

#include <algorithm>
#include <utility>

#include "difference/shown_line.h"

namespace tarnwick {
namespace {

/// So many equal lines are shown beside a change.
constexpr std::size_t kContext = 3;
/// A longer line is cut into pieces of that many bytes.
constexpr std::size_t kPiece = 400;

/// Where a piece may end at or before `at`: not within a character.
std::size_t borderBefore(std::string_view page, std::size_t begin, std::size_t at, PageForm form) {
  if (unitOf(form) == 2) {
    return at - (at - begin) % 2;
  }
  constexpr unsigned kTop = 0xC0U;
  constexpr unsigned kContinuation = 0x80U;
  std::size_t border = at;
  while (form == PageForm::utf8 && border > begin + 1 &&
         (static_cast<unsigned char>(page[border]) & kTop) == kContinuation) {
    --border;
  }
  return border;
}

std::vector<ByteSpan> piecesOf(std::string_view page, std::optional<ByteSpan> line, PageForm form) {
  std::vector<ByteSpan> pieces;
  if (!line) {
    return pieces;
  }
  std::size_t begin = line->begin;
  while (line->end - begin > kPiece) {
    const std::size_t end = borderBefore(page, begin, begin + kPiece, form);
    pieces.push_back({begin, end});
    begin = end;
  }
  pieces.push_back({begin, line->end});
  return pieces;
}

bool isMarked(const ByteSpans& marks, const std::vector<ByteSpan>& pieces, std::size_t piece) {
  return piece < pieces.size() && !within(marks, pieces[piece]).empty();
}

template <typename Value>
std::optional<Value> oneOf(const std::vector<Value>& values, std::size_t place) {
  return place < values.size() ? std::optional(values[place]) : std::nullopt;
}

std::size_t down(std::size_t offset) { return offset - offset % kHexBytes; }
std::size_t up(std::size_t offset, std::size_t most) { return std::min(down(offset + kHexBytes - 1), most); }

}  // namespace

/// The whole rows of bytes in which something differs.
struct DifferenceRows::Region {
  ByteSpan before;
  ByteSpan after;
  std::size_t firstChange;
};

DifferenceRows::DifferenceRows(std::string_view before, std::string_view after, const PageDifference& difference,
                               DifferenceLayout layout)
    : before_(before),
      after_(after),
      difference_(difference),
      layout_(layout),
      formBefore_(pageFormOf(before)),
      formAfter_(pageFormOf(after)) {
  build();
}

void DifferenceRows::open(std::size_t row) {
  opened_.insert({rows_[row].before->begin, rows_[row].after->begin});
  build();
}

void DifferenceRows::build() {
  rows_.clear();
  firstRows_.assign(difference_.changes.size(), 0);
  widest_ = 0;
  layout_ == DifferenceLayout::hex ? addHex() : addText();
}

void DifferenceRows::add(const DifferenceRow& row) {
  widest_ = std::max({widest_, row.before && !row.isFold() ? row.before->size() : 0,
                      row.after && !row.isFold() ? row.after->size() : 0});
  rows_.push_back(row);
}

void DifferenceRows::addFold(DifferenceRow::Kind kind, Place place, std::size_t hidden) {
  add({.kind = kind,
       .before = ByteSpan{place.before, place.before},
       .after = ByteSpan{place.after, place.after},
       .hidden = hidden});
}

void DifferenceRows::addText() {
  std::size_t before = 0;
  std::size_t after = 0;
  for (std::size_t index = 0; index < difference_.changes.size(); ++index) {
    const PageChange& change = difference_.changes[index];
    addEqualLines(before, after, change.firstBefore - before, before == 0, false);
    firstRows_[index] = rows_.size();
    addChange(index);
    before = change.firstBefore + change.linesBefore;
    after = change.firstAfter + change.linesAfter;
  }
  addEqualLines(before, after, difference_.before.count() - before, before == 0, true);
}

// At the ends of the page there is one change to stand beside, or none at all.
void DifferenceRows::addEqualLines(std::size_t before, std::size_t after, std::size_t count, bool atBegin, bool atEnd) {
  std::size_t head = atBegin ? 0 : kContext;
  std::size_t tail = atEnd ? 0 : kContext;
  const bool isEqual = difference_.changes.empty();
  const bool isFolded = !isEqual && count > head + tail + 1;
  const Place fold{isFolded ? difference_.before.line(before + head).begin : 0,
                   isFolded ? difference_.after.line(after + head).begin : 0};
  if (!isFolded || isOpen(fold)) {
    head = count;
    tail = 0;
  }
  for (std::size_t line = 0; line < head; ++line) {
    addEqualLine(before + line, after + line);
  }
  if (head + tail < count) {
    addFold(DifferenceRow::Kind::lines, fold, count - head - tail);
  }
  for (std::size_t line = count - tail; line < count; ++line) {
    addEqualLine(before + line, after + line);
  }
}

void DifferenceRows::addEqualLine(std::size_t before, std::size_t after) {
  const ByteSpan lineBefore = difference_.before.line(before);
  const ByteSpan lineAfter = difference_.after.line(after);
  const auto pieces = piecesOf(before_, lineBefore, formBefore_);
  for (std::size_t piece = 0; piece < pieces.size(); ++piece) {
    const std::size_t shift = pieces[piece].begin - lineBefore.begin;
    const Place place{pieces[piece].begin, lineAfter.begin + shift};
    if (piece == 1 && pieces.size() > 2 && !isOpen(place)) {
      addFold(DifferenceRow::Kind::bytes, place, lineBefore.end - pieces[piece].begin);
      return;
    }
    add({.before = pieces[piece],
         .after = ByteSpan{place.after, place.after + pieces[piece].size()},
         .numberBefore = piece == 0 ? before + 1 : 0,
         .numberAfter = piece == 0 ? after + 1 : 0});
  }
}

void DifferenceRows::addChange(std::size_t index) {
  const PageChange& change = difference_.changes[index];
  if (layout_ == DifferenceLayout::unified) {
    for (std::size_t line = 0; line < change.linesBefore; ++line) {
      addPieces(change.firstBefore + line, std::nullopt, index);
    }
    for (std::size_t line = 0; line < change.linesAfter; ++line) {
      addPieces(std::nullopt, change.firstAfter + line, index);
    }
    return;
  }
  for (std::size_t line = 0; line < std::max(change.linesBefore, change.linesAfter); ++line) {
    addPieces(line < change.linesBefore ? std::optional(change.firstBefore + line) : std::nullopt,
              line < change.linesAfter ? std::optional(change.firstAfter + line) : std::nullopt, index);
  }
}

// Of a long line that is shown which stands at its begin and beside what differs.
void DifferenceRows::addPieces(std::optional<std::size_t> lineBefore, std::optional<std::size_t> lineAfter,
                               std::size_t index) {
  const PageChange& change = difference_.changes[index];
  const auto spanOf = [](const PageLines& lines, std::optional<std::size_t> line) {
    return line ? std::optional(lines.line(*line)) : std::nullopt;
  };
  const auto befores = piecesOf(before_, spanOf(difference_.before, lineBefore), formBefore_);
  const auto afters = piecesOf(after_, spanOf(difference_.after, lineAfter), formAfter_);
  const std::size_t count = std::max(befores.size(), afters.size());
  const auto differs = [&](std::size_t piece) {
    return isMarked(change.removed, befores, piece) || isMarked(change.added, afters, piece);
  };
  const auto isShown = [&](std::size_t piece) {
    return piece == 0 || differs(piece) || differs(piece - 1) || (piece + 1 < count && differs(piece + 1));
  };
  for (std::size_t piece = 0; piece < count;) {
    std::size_t end = piece;
    while (end < count && !isShown(end)) {
      ++end;
    }
    const auto beginOf = [&](const std::vector<ByteSpan>& pieces, std::size_t place) {
      return place < pieces.size() ? pieces[place].begin : pieces.empty() ? 0 : pieces.back().end;
    };
    const Place place{beginOf(befores, piece), beginOf(afters, piece)};
    if (end > piece + 1 && !isOpen(place)) {
      const std::size_t hidden = std::max(beginOf(befores, end) - place.before, beginOf(afters, end) - place.after);
      addFold(DifferenceRow::Kind::bytes, place, hidden);
      rows_.back().change = index;
      piece = end;
      continue;
    }
    for (end = std::max(end, piece + 1); piece < end; ++piece) {
      add({.kind = DifferenceRow::Kind::changed,
           .before = oneOf(befores, piece),
           .after = oneOf(afters, piece),
           .numberBefore = piece == 0 && lineBefore ? *lineBefore + 1 : 0,
           .numberAfter = piece == 0 && lineAfter ? *lineAfter + 1 : 0,
           .change = index});
    }
  }
}

// Within the lines of a change both pages are the same up to the first mark and from the last one on.
void DifferenceRows::addHex() {
  std::vector<Region> regions;
  for (std::size_t index = 0; index < difference_.changes.size(); ++index) {
    const PageChange& change = difference_.changes[index];
    const ByteSpan before = difference_.before.lines(change.firstBefore, change.linesBefore);
    const ByteSpan after = difference_.after.lines(change.firstAfter, change.linesAfter);
    std::size_t head = std::min(before.size(), after.size());
    std::size_t tail = head;
    for (const auto& [marks, lines] : {std::pair(&change.removed, before), std::pair(&change.added, after)}) {
      if (!marks->empty()) {
        head = std::min(head, marks->front().begin - lines.begin);
        tail = std::min(tail, lines.end - marks->back().end);
      }
    }
    tail = std::min(tail, std::min(before.size(), after.size()) - head);
    const Region region{{down(before.begin + head), up(before.end - tail, before_.size())},
                        {down(after.begin + head), up(after.end - tail, after_.size())},
                        index};
    if (!regions.empty() &&
        (region.before.begin <= regions.back().before.end || region.after.begin <= regions.back().after.end)) {
      regions.back().before.end = std::max(regions.back().before.end, region.before.end);
      regions.back().after.end = std::max(regions.back().after.end, region.after.end);
    } else {
      regions.push_back(region);
    }
  }
  ByteSpan before;
  ByteSpan after;
  std::size_t change = 0;
  for (std::size_t index = 0; index < regions.size(); ++index) {
    const Region& region = regions[index];
    addHexGap({before.end, region.before.begin}, {after.end, region.after.begin});
    const std::size_t next = index + 1 < regions.size() ? regions[index + 1].firstChange : difference_.changes.size();
    for (; change < next; ++change) {
      firstRows_[change] = rows_.size();
    }
    addHexRows(region.before, region.after, DifferenceRow::Kind::changed, region.firstChange);
    before = region.before;
    after = region.after;
  }
  addHexGap({before.end, before_.size()}, {after.end, after_.size()});
}

void DifferenceRows::addHexGap(ByteSpan before, ByteSpan after) {
  const Place place{before.begin, after.begin};
  const std::size_t size = std::max(before.size(), after.size());
  if (size <= 2 * kHexBytes || difference_.changes.empty() || isOpen(place)) {
    addHexRows(before, after, DifferenceRow::Kind::equal, 0);
  } else {
    addFold(DifferenceRow::Kind::bytes, place, size);
  }
}

void DifferenceRows::addHexRows(ByteSpan before, ByteSpan after, DifferenceRow::Kind kind, std::size_t change) {
  const auto rowOf = [](ByteSpan bytes, std::size_t offset) {
    const std::size_t begin = bytes.begin + offset;
    return begin < bytes.end ? std::optional(ByteSpan{begin, std::min(begin + kHexBytes, bytes.end)}) : std::nullopt;
  };
  for (std::size_t offset = 0; offset < std::max(before.size(), after.size()); offset += kHexBytes) {
    add({.kind = kind, .before = rowOf(before, offset), .after = rowOf(after, offset), .change = change});
  }
}

}  // namespace tarnwick
