#include "platform/sqlite/sql_tokens.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/errors.h"
#include "base/text.h"
#include "platform/sqlite/shown_statement.h"

namespace tarnwick {
namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f'; }
bool isWordStart(char c) { return isLetter(c) || c == '_' || static_cast<unsigned char>(c) >= 0x80; }
bool isWordPart(char c) { return isWordStart(c) || isDigit(c) || c == '$'; }

class Scanner {
 public:
  explicit Scanner(std::string_view sql) : sql_(sql) {}

  std::vector<SqlToken> tokens() {
    std::vector<SqlToken> all;
    while (skipBlanks(), position_ < sql_.size()) {
      all.push_back(next());
    }
    return all;
  }

 private:
  [[noreturn]] void fail(const std::string& cause) const { throw DataAccessError(cause, shownStatement(sql_)); }

  bool startsWith(std::string_view text) const { return sql_.substr(position_).starts_with(text); }

  void skipBlanks() {
    while (position_ < sql_.size()) {
      if (isBlank(sql_[position_])) {
        ++position_;
      } else if (startsWith("--")) {
        position_ = std::min(sql_.find('\n', position_), sql_.size());
      } else if (startsWith("/*")) {
        const std::size_t end = sql_.find("*/", position_ + 2);
        if (end == std::string_view::npos) {
          fail("A comment in the statement has no end: */ is missing.");
        }
        position_ = end + 2;
      } else {
        return;
      }
    }
  }

  SqlToken next() {
    const char c = sql_[position_];
    if (c == '\'') {
      return quoted(SqlTokenKind::text, position_, '\'',
                    "A text in the statement has no end: a single quote is missing.");
    }
    if (c == '"' || c == '`' || c == '[') {
      return quoted(SqlTokenKind::name, position_, c == '[' ? ']' : c,
                    "A name in the statement has no end: a quote or bracket is missing.");
    }
    if ((c == 'x' || c == 'X') && sql_.substr(position_ + 1).starts_with('\'')) {
      return quoted(SqlTokenKind::blob, position_ + 1, '\'',
                    "A byte text in the statement has no end: a single quote is missing.");
    }
    if (isWordStart(c)) {
      return run(SqlTokenKind::word, isWordPart);
    }
    if (isDigit(c) || (c == '.' && position_ + 1 < sql_.size() && isDigit(sql_[position_ + 1]))) {
      return number();
    }
    return symbol();
  }

  SqlToken take(SqlTokenKind kind, std::size_t end) {
    const SqlToken token{kind, sql_.substr(position_, end - position_)};
    position_ = end;
    return token;
  }

  /// A piece that opens at `opening` and ends with `quote`, which stands for itself when doubled (a bracket never).
  SqlToken quoted(SqlTokenKind kind, std::size_t opening, char quote, const char* fault) {
    for (std::size_t end = opening + 1;; end += 2) {
      end = sql_.find(quote, end);
      if (end == std::string_view::npos) {
        fail(fault);
      }
      if (quote == ']' || end + 1 == sql_.size() || sql_[end + 1] != quote) {
        return take(kind, end + 1);
      }
    }
  }

  SqlToken run(SqlTokenKind kind, bool (*belongs)(char)) {
    std::size_t end = position_;
    while (end < sql_.size() && belongs(sql_[end])) {
      ++end;
    }
    return take(kind, end);
  }

  SqlToken number() {
    std::size_t end = position_;
    const auto digits = [&] {
      while (end < sql_.size() && isDigit(sql_[end])) {
        ++end;
      }
    };
    digits();
    if (end < sql_.size() && sql_[end] == '.') {
      ++end;
      digits();
    }
    if (end < sql_.size() && lowerCase(sql_[end]) == 'e') {
      std::size_t exponent = end + 1;
      if (exponent < sql_.size() && (sql_[exponent] == '+' || sql_[exponent] == '-')) {
        ++exponent;
      }
      if (exponent < sql_.size() && isDigit(sql_[exponent])) {
        end = exponent;
        digits();
      }
    }
    // "0x1F" and "12abc" stay in one piece, for the database to accept or refuse.
    while (end < sql_.size() && isWordPart(sql_[end])) {
      ++end;
    }
    return take(SqlTokenKind::number, end);
  }

  SqlToken symbol() {
    static constexpr std::array<std::string_view, 10> kLongOnes{
        "->>", "->", "<>", "!=", "<=", ">=", "==", "||", "<<", ">>"};
    static constexpr std::string_view kSingles = "()+-*/%=<>,.;&|~";
    for (const std::string_view longOne : kLongOnes) {
      if (startsWith(longOne)) {
        return take(SqlTokenKind::symbol, position_ + longOne.size());
      }
    }
    if (kSingles.find(sql_[position_]) == std::string_view::npos) {
      // A "?" or ":x" would be a parameter that nobody fills in, and a NUL byte would cut the statement off.
      fail("The statement holds a character outside its quoted texts that has no meaning there (character code " +
           std::to_string(static_cast<unsigned char>(sql_[position_])) + ").");
    }
    return take(SqlTokenKind::symbol, position_ + 1);
  }

  std::string_view sql_;
  std::size_t position_ = 0;
};

std::string withSingleQuotes(std::string_view quoted, char quote) {
  std::string text;
  text.reserve(quoted.size());
  while (true) {
    const std::size_t found = quoted.find(quote);
    if (found == std::string_view::npos) {
      return text.append(quoted);
    }
    text.append(quoted.substr(0, found + 1));
    quoted.remove_prefix(std::min(found + 2, quoted.size()));
  }
}

}  // namespace

bool SqlToken::isWord(std::string_view lower) const {
  return kind == SqlTokenKind::word && equalsIgnoringCase(source, lower);
}

std::vector<SqlToken> sqlTokens(std::string_view sql) { return Scanner(sql).tokens(); }

std::string nameIn(const SqlToken& token) {
  if (token.kind != SqlTokenKind::name) {
    return std::string(token.source);
  }
  const std::string_view inner = token.source.substr(1, token.source.size() - 2);
  const char quote = token.source.front();
  return quote == '[' ? std::string(inner) : withSingleQuotes(inner, quote);
}

std::string_view quotedPart(const SqlToken& text) { return text.source.substr(1, text.source.size() - 2); }

bool holdsQuotes(const SqlToken& text) { return quotedPart(text).find('\'') != std::string_view::npos; }

std::string textIn(const SqlToken& text) { return withSingleQuotes(quotedPart(text), '\''); }

std::optional<std::int64_t> wholeNumberIn(const SqlToken& number) {
  std::int64_t value = 0;
  const char* end = number.source.data() + number.source.size();
  const auto [stop, fault] = std::from_chars(number.source.data(), end, value);
  return fault == std::errc{} && stop == end ? std::optional(value) : std::nullopt;
}

}  // namespace tarnwick
