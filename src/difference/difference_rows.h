// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <cstddef>
#include <optional>
#include <set>
#include <string_view>
#include <vector>

#include "difference/page_difference.h"
#include "difference/page_form.h"

namespace tarnwick {

/// How a difference is laid out.
enum class DifferenceLayout {
  sideBySide,  ///< what was on the left, what is on the right
  unified,     ///< what was above what is
  hex,         ///< side by side, sixteen bytes a row
};

/// One row of a difference as it is shown.
struct DifferenceRow {
  enum class Kind {
    equal,
    changed,
    lines,  ///< stands for `hidden` equal lines
    bytes,  ///< stands for `hidden` equal bytes
  };

  Kind kind = Kind::equal;
  /// What of each page stands in it: a line, or a piece of a long one. Nothing where that page has none there; a row of
  /// the layout `unified` has one of a change, and of an equal line both.
  std::optional<ByteSpan> before;
  std::optional<ByteSpan> after;
  /// The numbers of the lines that begin in it, from 1 on; 0 for a further piece of a line, and for none.
  std::size_t numberBefore = 0;
  std::size_t numberAfter = 0;
  /// The change that it belongs to.
  std::size_t change = 0;
  std::size_t hidden = 0;

  bool isFold() const { return kind == Kind::lines || kind == Kind::bytes; }
};

/// The rows of a difference. Long equal parts are folded, and so are those of long lines; lines are cut into pieces, so
/// that no row takes long to be drawn.
class DifferenceRows {
 public:
  /// The pages and their difference outlive this object.
  DifferenceRows(std::string_view before, std::string_view after, const PageDifference& difference,
                 DifferenceLayout layout);

  std::size_t count() const { return rows_.size(); }
  const DifferenceRow& at(std::size_t row) const { return rows_[row]; }
  /// The first row of that change.
  std::size_t rowOf(std::size_t change) const { return firstRows_[change]; }
  PageForm formBefore() const { return formBefore_; }
  PageForm formAfter() const { return formAfter_; }
  /// The most bytes that a row has of one page.
  std::size_t widest() const { return widest_; }

  /// Shows what a fold stands for. REQUIRES: the row is one.
  void open(std::size_t row);

 private:
  struct Place {
    std::size_t before;
    std::size_t after;
    auto operator<=>(const Place&) const = default;
  };
  struct Region;

  void build();
  void addText();
  void addHex();
  void addEqualLines(std::size_t before, std::size_t after, std::size_t count, bool atBegin, bool atEnd);
  void addEqualLine(std::size_t before, std::size_t after);
  void addChange(std::size_t index);
  void addPieces(std::optional<std::size_t> lineBefore, std::optional<std::size_t> lineAfter, std::size_t change);
  void addHexRows(ByteSpan before, ByteSpan after, DifferenceRow::Kind kind, std::size_t change);
  void addHexGap(ByteSpan before, ByteSpan after);
  void addFold(DifferenceRow::Kind kind, Place place, std::size_t hidden);
  void add(const DifferenceRow& row);
  bool isOpen(Place place) const { return opened_.contains(place); }

  std::string_view before_;
  std::string_view after_;
  const PageDifference& difference_;
  DifferenceLayout layout_;
  PageForm formBefore_;
  PageForm formAfter_;
  std::vector<DifferenceRow> rows_;
  std::vector<std::size_t> firstRows_;
  std::size_t widest_ = 0;
  // The places of both pages where what is folded begins.
  std::set<Place> opened_;
};

}  // namespace tarnwick
