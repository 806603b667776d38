// SPDX-License-Identifier: MIT
// How the pieces of a baseline change, and how the changes are taken back.
#include <algorithm>
#include <iterator>
#include <utility>

#include "ui/baseline/baseline_text.h"

namespace tarnwick {
namespace {

// Joined pieces stay short: see where pages are cut into pieces.
constexpr std::size_t kLongestJoined = 4096;

template <typename Pieces>
std::size_t lengthOf(const Pieces& pieces) {
  std::size_t length = 0;
  for (const auto& piece : pieces) {
    length += piece.length;
  }
  return length;
}

template <typename Piece>
bool canJoin(const Piece& left, const Piece& right) {
  // CR and LF that came together by an edit stay two line ends.
  const bool newPair = left.bytes.ends_with('\r') && right.bytes.starts_with('\n');
  return !left.rowBreak && left.charset == right.charset && !newPair &&
         left.bytes.size() + right.bytes.size() <= kLongestJoined;
}

template <typename Pieces>
void append(Pieces& pieces, Pieces more) {
  std::ranges::move(more, std::back_inserter(pieces));
}

}  // namespace

// Makes a piece start at `position` and returns its index.
std::size_t BaselineText::splitAt(std::size_t position) {
  std::size_t start = 0;
  std::size_t index = 0;
  while (index < pieces_.size() && start + pieces_[index].length <= position) {
    start += pieces_[index].length;
    ++index;
  }
  if (start == position || index == pieces_.size()) {
    return index;
  }
  Piece& left = pieces_[index];
  const std::size_t wanted = position - start;
  std::size_t length = 0;
  std::size_t offset = 0;
  while (offset < left.bytes.size() && length < wanted) {
    const ShownUnit unit = unitAt(left.bytes, offset, left.charset);
    if (length + unit.length > wanted) {
      // Between the two halves of a character: halves are no characters.
      left.bytes.replace(offset, unit.bytes, "\xEF\xBF\xBD\xEF\xBF\xBD");
      return splitAt(position);
    }
    length += unit.length;
    offset += unit.bytes;
  }
  Piece right{left.bytes.substr(offset), left.length - wanted, left.charset, left.rowBreak};
  left.bytes.resize(offset);
  left.length = wanted;
  left.rowBreak = false;
  pieces_.insert(pieces_.begin() + static_cast<std::ptrdiff_t>(index) + 1, std::move(right));
  return index + 1;
}

// Joins neighbours among the pieces from the one before `first` to the one at `last`.
void BaselineText::joinAround(std::size_t first, std::size_t last) {
  std::size_t left = first == 0 ? 0 : first - 1;
  while (left < last && left + 1 < pieces_.size()) {
    if (!canJoin(pieces_[left], pieces_[left + 1])) {
      ++left;
      continue;
    }
    Piece& joined = pieces_[left];
    const Piece& next = pieces_[left + 1];
    joined.bytes += next.bytes;
    joined.length += next.length;
    joined.rowBreak = next.rowBreak;
    pieces_.erase(pieces_.begin() + static_cast<std::ptrdiff_t>(left) + 1);
    --last;
  }
}

// Puts `added` in the place of `removed` units at `position`; the pieces that stood there.
BaselineText::Pieces BaselineText::exchange(std::size_t position, std::size_t removed, Pieces added) {
  const std::size_t first = splitAt(position);
  const std::size_t last = splitAt(position + removed);
  const auto begin = pieces_.begin() + static_cast<std::ptrdiff_t>(first);
  const auto end = pieces_.begin() + static_cast<std::ptrdiff_t>(last);
  Pieces taken(std::make_move_iterator(begin), std::make_move_iterator(end));
  const std::size_t count = added.size();
  const auto gap = pieces_.erase(begin, end);
  pieces_.insert(gap, std::make_move_iterator(added.begin()), std::make_move_iterator(added.end()));
  // What was added is well cut in itself; new neighbours meet at its two ends.
  if (count > 1) {
    joinAround(first + count, first + count);
  }
  joinAround(first, count > 1 ? first : first + count);
  return taken;
}

void BaselineText::edit(std::size_t position, std::size_t removed, Pieces added, bool typed) {
  const std::size_t length = lengthOf(added);
  Pieces before = exchange(position, removed, std::move(added));
  edited_ = true;
  redo_.clear();

  if (typed && !undo_.empty() && undo_.back().typed) {
    Edit& latest = undo_.back();
    const bool typedOn = removed == 0 && latest.length > 0 && position == latest.position + latest.length;
    const bool erasing = length == 0 && latest.length == 0;
    if (typedOn) {
      latest.length += length;
      return;
    }
    if (erasing && position + removed == latest.position) {
      append(before, std::exchange(latest.before, {}));
      latest.before = std::move(before);
      latest.position = position;
      return;
    }
    if (erasing && position == latest.position) {
      append(latest.before, std::move(before));
      return;
    }
  }
  undo_.push_back({position, length, std::move(before), typed});
}

std::optional<TextChange> BaselineText::takeBack(std::vector<Edit>& from, std::vector<Edit>& to) {
  if (from.empty()) {
    return std::nullopt;
  }
  Edit back = std::move(from.back());
  from.pop_back();
  const std::size_t length = lengthOf(back.before);
  Pieces taken = exchange(back.position, back.length, std::move(back.before));
  to.push_back({back.position, length, std::move(taken), false});
  return TextChange{back.position, back.length, shown(back.position, length)};
}

std::optional<TextChange> BaselineText::undo() { return takeBack(undo_, redo_); }
std::optional<TextChange> BaselineText::redo() { return takeBack(redo_, undo_); }

}  // namespace tarnwick
