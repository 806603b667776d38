// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/baseline/baseline_codec.h"

namespace tarnwick {

/// A change of the shown text: at `position`, `removed` units give way to `added`.
struct TextChange {
  std::size_t position = 0;
  std::size_t removed = 0;
  std::u16string added;
};

/// A page while it is shown and edited as text, with every byte that was not edited kept as it was: line ends of any
/// form, NUL bytes, invalid UTF-8, a byte-order mark. What was not edited is never decoded and encoded again.
///
/// The shown text is UTF-16, its line ends are "\n", and positions count its units. A line of great length is broken
/// into rows by breaks that stand for no byte, since a text box lays out a line as a whole. A byte-order mark at the
/// start of a text is not shown and stays in front.
///
/// The text follows an editor (`follow`), or tells the editor what to show (`paste`, `undo`, `redo`). Its own history
/// holds bytes, so that what is undone comes back as it was.
class BaselineText {
 public:
  explicit BaselineText(std::string page);

  /// The page: what was given, with the edits made since.
  std::string bytes() const;
  /// The bytes behind a part of the shown text.
  std::string bytes(std::size_t position, std::size_t length) const;
  PageCharset charset() const { return charset_; }

  /// The length of the shown text.
  std::size_t size() const;
  std::u16string shown() const { return shown(0, size()); }
  std::u16string shown(std::size_t position, std::size_t length) const;
  /// A part of the shown text without the breaks of long lines: what a person copies.
  std::u16string text(std::size_t position, std::size_t length) const;
  /// Whether the "\n" at `position` only breaks a long line; false for every other position.
  bool isRowBreak(std::size_t position) const;
  /// Where the bytes begin in the page that are shown at `position`.
  std::size_t offsetOf(std::size_t position) const;
  /// Where the bytes at these places of the page are shown. REQUIRES: ascending offsets, at most the page's size.
  std::vector<std::size_t> positionsOf(const std::vector<std::size_t>& offsets) const;

  /// Takes over an edit that the editor has made: `removed` units at `position` gave way to `added`. What is the same
  /// at both ends of the two texts counts as untouched. A new line end takes the form of its neighbour's.
  void follow(std::size_t position, std::size_t removed, std::u16string_view added);

  /// Replaces `removed` units at `position`; the editor is to show the change returned. Line ends of `text` take the
  /// form of their neighbour's, bytes stay as they are.
  /// REQUIRES for `pasteBytes`: `bytes` is valid in `charset()`.
  TextChange paste(std::size_t position, std::size_t removed, std::u16string_view text);
  TextChange pasteBytes(std::size_t position, std::size_t removed, std::string_view bytes);

  /// Takes the latest edit back, or makes it again; the editor is to show the change returned. Nothing when there is
  /// none. Letters typed or erased in a row are one edit.
  std::optional<TextChange> undo();
  std::optional<TextChange> redo();
  bool canUndo() const { return !undo_.empty(); }
  bool canRedo() const { return !redo_.empty(); }

  /// Where the first character stands that the page's character set does not have; nothing when all are in it.
  std::optional<std::size_t> firstForeign() const { return firstForeign(0, size()); }
  /// The same in a part of the shown text.
  std::optional<std::size_t> firstForeign(std::size_t position, std::size_t length) const;

 private:
  // Whole units of the page, in its order.
  struct Piece {
    std::string bytes;
    std::size_t length = 0;  // shown units, with the row break
    PageCharset charset = PageCharset::utf8;
    bool rowBreak = false;  // after the bytes
  };
  using Pieces = std::vector<Piece>;

  // An edit to be taken back (or made again): the `length` units at `position` give way to `before`.
  struct Edit {
    std::size_t position = 0;
    std::size_t length = 0;
    Pieces before;
    bool typed = false;
  };

  static Pieces cut(std::string_view bytes, PageCharset charset);
  Pieces encode(std::u16string_view text, std::size_t position) const;
  std::string_view lineEndNear(std::size_t position) const;
  std::size_t splitAt(std::size_t position);
  Pieces exchange(std::size_t position, std::size_t removed, Pieces added);
  void joinAround(std::size_t first, std::size_t last);
  void edit(std::size_t position, std::size_t removed, Pieces added, bool typed);
  std::optional<TextChange> takeBack(std::vector<Edit>& from, std::vector<Edit>& to);
  template <typename Visit>
  void visitUnits(std::size_t position, std::size_t length, Visit visit) const;

  PageCharset charset_;
  std::string mark_;
  Pieces pieces_;
  bool edited_ = false;
  std::vector<Edit> undo_;
  std::vector<Edit> redo_;
};

}  // namespace tarnwick
