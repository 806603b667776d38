// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"

namespace tarnwick {

/// What a piece of SQL text is.
enum class SqlTokenKind {
  word,    ///< a keyword or a plain name: `select`, `idSite`
  name,    ///< a name in brackets, double quotes or backquotes: `[Total Errors]`
  text,    ///< a text in single quotes, which may hold any bytes
  number,  ///< what begins with a digit
  symbol   ///< everything else: `(`, `,`, `<>`, `x'0A'`
};

/// A piece of SQL text. Refers to the text it was taken from, and costs nothing however long that is.
struct SqlToken {
  SqlTokenKind kind;
  /// The bytes as they stand in the statement, quotes and brackets included.
  std::string_view source;

  /// True for the word (given in lower case, found in any letter case) or symbol `piece`.
  bool is(std::string_view piece) const { return source.size() == piece.size() && equalsIgnoringCase(source, piece); }
  /// True for a word or a quoted name.
  bool isName() const { return kind == SqlTokenKind::word || kind == SqlTokenKind::name; }
};

/// Cuts a statement into its pieces; blanks and comments fall away. Quoted texts are taken whole, whatever they hold.
/// Raises DataAccessError for a text or name without its end, and for what would be a parameter that nobody fills in.
std::vector<SqlToken> sqlTokens(std::string_view sql);

/// A name without its brackets or quotes; the value of a text, every doubled quote made one.
std::string unquoted(const SqlToken& token);

/// A name in backquotes, as SQLite takes any name: one in double quotes that names nothing would pass for a text.
std::string quotedName(std::string_view name);

}  // namespace tarnwick
