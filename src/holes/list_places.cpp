// SPDX-License-Identifier: MIT
// Lists whose items stand in another order each time, or move on: what of such a list has stood still meanwhile is a
// part of it like all that has the same shape around it.
#include <algorithm>
#include <set>
#include <string>

#include "base/text.h"
#include "holes/widen.h"

namespace tarnwick {
namespace {

/// More bytes than that on one line between two places are no item that stood still.
constexpr std::size_t kLongestIsland = 4096;
constexpr std::string_view kEndsOfPieces = "\n>{}[],";

using Shapes = std::set<std::string>;

bool isPartOfWord(char c) { return isLetter(c) || isDigit(c) || c == '_' || static_cast<unsigned char>(c) >= 0x80; }

/// Pieces of markup by where they end: a line, a tag, what stands between the marks of JSON.
std::size_t pieceEnd(std::string_view text, std::size_t at) {
  const std::size_t end = text.find_first_of(kEndsOfPieces, at);
  return end == std::string_view::npos ? text.size() : end + 1;
}
std::size_t pieceBegin(std::string_view text, std::size_t at) {
  const std::size_t end = at == 0 ? std::string_view::npos : text.find_last_of(kEndsOfPieces, at - 1);
  return end == std::string_view::npos ? 0 : end + 1;
}

/// A piece with "w" for its words and "#" for its numbers; the names of tags and of what is quoted before a colon stay.
std::string shapeOf(std::string_view piece) {
  piece = trimmed(piece);
  std::string shape;
  for (std::size_t at = 0; at < piece.size();) {
    if (!isPartOfWord(piece[at])) {
      if (piece[at] != ' ' || (!shape.empty() && shape.back() != 'w' && shape.back() != ' ')) {
        shape += piece[at];
      }
      ++at;
      continue;
    }
    const std::size_t begin = at;
    while (at < piece.size() && isPartOfWord(piece[at])) {
      ++at;
    }
    const std::string_view word = piece.substr(begin, at - begin);
    const bool isName = (begin > 0 && (piece[begin - 1] == '<' || piece.substr(0, begin).ends_with("</"))) ||
                        piece.substr(at).starts_with("\":") || piece.substr(at).starts_with("=");
    const bool isNumber = std::ranges::all_of(word, isDigit);
    const std::string_view sign = isName ? word : isNumber ? "#" : "w";
    if (sign != "w" || !shape.ends_with('w')) {
      shape += sign;
    }
  }
  return shape;
}

/// Only words, as prose has them everywhere: that is the shape of nothing.
bool isTelling(const std::string& shape) { return shape.find_first_of("<>{}[]#\"") != std::string::npos; }

class Lists {
 public:
  explicit Lists(Copies& copies) : copies_(copies) {}

  void join() {
    for (std::size_t place = 0; place < copies_.places().size(); ++place) {
      const Shapes shapes = shapesIn(place);
      if (shapes.empty()) {
        continue;
      }
      joinForward(place, shapes);
      extend(place, shapes);
    }
  }

 private:
  /// Of the whole pieces in a place that is a part of a list: at least two, one of which tells.
  Shapes shapesIn(std::size_t place) const {
    const Place& it = copies_.places()[place];
    Shapes shapes;
    std::size_t count = 0;
    if (it.known && it.known->kind != HoleClass::anything) {
      return shapes;
    }
    for (std::size_t copy = 0; copy < copies_.texts().size(); ++copy) {
      const std::string_view text = copies_.texts()[copy];
      std::size_t at = it.region.from[copy];
      at = at == 0 || isEndOfPiece(text[at - 1]) ? at : pieceEnd(text, at);
      for (std::size_t end = 0; at < it.region.to[copy]; at = end) {
        end = pieceEnd(text, at);
        if (end > it.region.to[copy]) {
          break;
        }
        shapes.insert(shapeOf(text.substr(at, end - at)));
        ++count;
      }
    }
    const bool tells = std::ranges::any_of(shapes, isTelling);
    return tells && count >= 2 * copies_.texts().size() ? shapes : Shapes{};
  }

  static bool isEndOfPiece(char c) { return kEndsOfPieces.find(c) != std::string_view::npos; }

  bool areOf(const Shapes& shapes, std::size_t begin, std::size_t end) const {
    const std::string_view text = copies_.first();
    for (std::size_t at = pieceBegin(text, begin); at < end;) {
      const std::size_t next = pieceEnd(text, at);
      if (!shapes.contains(shapeOf(text.substr(at, next - at)))) {
        return false;
      }
      at = next;
    }
    return true;
  }

  void joinForward(std::size_t place, const Shapes& shapes) {
    auto& places = copies_.places();
    while (place + 1 < places.size()) {
      const std::size_t begin = places[place].region.to.front();
      const std::size_t end = places[place + 1].region.from.front();
      const bool isKnown = places[place + 1].known && places[place + 1].known->kind != HoleClass::anything;
      if (isKnown || end - begin > kLongestIsland || !areOf(shapes, begin, end)) {
        return;
      }
      copies_.joinWithNext(place);
    }
  }

  // To both sides, over what has the shapes of the list.
  void extend(std::size_t place, const Shapes& shapes) {
    const std::string_view text = copies_.first();
    const Region& region = copies_.places()[place].region;
    const std::size_t size = region.to.front() - region.from.front();
    const std::size_t least = place == 0 ? 0 : copies_.places()[place - 1].region.to.front();
    const std::size_t most =
        place + 1 < copies_.places().size() ? copies_.places()[place + 1].region.from.front() : text.size();
    std::size_t begin = region.from.front();
    for (std::size_t at = begin; at > least && region.from.front() - at <= size;) {
      const std::size_t from = pieceBegin(text, isEndOfPiece(text[at - 1]) ? at - 1 : at);
      const std::string shape = shapeOf(text.substr(from, pieceEnd(text, from) - from));
      if (from < least || !shapes.contains(shape)) {
        break;
      }
      begin = isTelling(shape) ? from : begin;
      at = from;
    }
    std::size_t end = region.to.front();
    for (std::size_t at = end; at < most && at - region.to.front() <= size;) {
      const std::size_t from = pieceBegin(text, at);
      const std::size_t to = pieceEnd(text, at);
      const std::string shape = shapeOf(text.substr(from, to - from));
      if (to > most || !shapes.contains(shape)) {
        break;
      }
      end = isTelling(shape) ? to : end;
      at = to;
    }
    if (const auto whole = copies_.regionOf(begin, end)) {
      copies_.put({*whole, copies_.places()[place].known});
    }
  }

  Copies& copies_;
};

}  // namespace

void joinLists(Copies& copies) {
  if (!isBinary(copies.first())) {
    Lists(copies).join();
  }
}

}  // namespace tarnwick
