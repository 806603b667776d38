// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// How the bytes of a page are read for display.
enum class PageCharset { utf8, windows1252 };

/// UTF-8 when all of `page` is valid UTF-8, otherwise Windows-1252, in which every byte is a character.
PageCharset charsetOf(std::string_view page);

/// One step of a page: the bytes that are shown, deleted and copied together, and what is shown for them.
struct ShownUnit {
  std::size_t bytes = 0;           ///< 1 to 4
  std::array<char16_t, 2> text{};  ///< UTF-16; "\n" for a line end of any form
  std::size_t length = 1;          ///< 1 or 2 units of `text`
  bool lineEnd = false;            ///< CR LF, LF or CR
};

/// The unit at `offset`, a position inside `bytes` at which a unit starts. A character that a text box cannot show, or
/// would take for something else (controls, NUL, line and paragraph separators, a byte-order mark), is shown by a
/// visible stand-in.
/// REQUIRES: `bytes` is valid in `charset`.
ShownUnit unitAt(std::string_view bytes, std::size_t offset, PageCharset charset);

/// Bytes in one character set.
struct EncodedRun {
  std::string bytes;
  PageCharset charset;
};

/// `text` as bytes of `charset`, each "\n" as `lineEnd`. Characters that Windows-1252 does not have come as runs of
/// UTF-8 of their own. A lone surrogate is no character and becomes U+FFFD.
std::vector<EncodedRun> encodeText(std::u16string_view text, PageCharset charset, std::string_view lineEnd);

}  // namespace tarnwick
