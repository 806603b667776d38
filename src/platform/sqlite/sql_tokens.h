#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// What a piece of SQL text is.
enum class SqlTokenKind {
  word,    ///< a keyword or a plain name: `select`, `idSite`
  name,    ///< a name in brackets, double quotes or backquotes: `[Total Errors]`
  text,    ///< a text in single quotes, which may hold any bytes
  blob,    ///< `x'0A'`
  number,  ///< digits, with or without fraction and exponent
  symbol   ///< everything else: `(`, `,`, `<>`
};

/// A piece of SQL text. Refers to the text it was taken from, and costs nothing however long that is.
struct SqlToken {
  SqlTokenKind kind;
  /// The bytes as they stand in the statement, quotes and brackets included.
  std::string_view source;

  /// True for the word `lower` (given in lower case) in any letter case.
  bool isWord(std::string_view lower) const;
  /// True for the symbol `symbol`.
  bool isSymbol(std::string_view symbol) const { return kind == SqlTokenKind::symbol && source == symbol; }
  /// True for a word or a quoted name.
  bool isName() const { return kind == SqlTokenKind::word || kind == SqlTokenKind::name; }
};

/// Cuts a statement into its pieces; blanks and comments fall away. Quoted texts are taken whole, whatever they hold.
/// Raises DataAccessError for a text, name or comment without its end, and for a byte that no SQL text holds.
std::vector<SqlToken> sqlTokens(std::string_view sql);

/// A name without its brackets or quotes.
std::string nameIn(const SqlToken& token);

/// True when the text token holds a doubled quote, so that `textIn` differs from what stands between its quotes.
bool holdsQuotes(const SqlToken& text);

/// What stands between the quotes of a text token, as it stands there.
std::string_view quotedPart(const SqlToken& text);

/// The value of a text token: what stands between its quotes, every doubled quote made one.
std::string textIn(const SqlToken& text);

/// The value of a number token that is a whole number of 64 bits; nothing for other numbers.
std::optional<std::int64_t> wholeNumberIn(const SqlToken& number);

}  // namespace tarnwick
