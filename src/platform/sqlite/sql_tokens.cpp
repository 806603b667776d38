// SPDX-License-Identifier: MIT
#include "platform/sqlite/sql_tokens.h"

#include <algorithm>

#include "base/errors.h"

namespace tarnwick {
namespace {

constexpr std::size_t kUsualPieces = 64;
constexpr std::string_view kBlanks = " \t\r\n\f";
constexpr std::string_view kComparing = "=<>!";
constexpr std::string_view kParameterMarks = "?:@$";

bool isWordPart(char c) {
  return isLetter(c) || isDigit(c) || c == '_' || c == '$' || static_cast<unsigned char>(c) >= 0x80;
}
bool isNumberPart(char c) { return isWordPart(c) || c == '.'; }
bool compares(char c) { return kComparing.find(c) != std::string_view::npos; }

std::size_t endOfRun(std::string_view sql, std::size_t begin, bool (*belongs)(char)) {
  return static_cast<std::size_t>(
      std::find_if_not(sql.begin() + static_cast<std::ptrdiff_t>(begin), sql.end(), belongs) - sql.begin());
}

/// Where a piece ends that opens at `opening`; its quote stands for itself when doubled, a bracket never.
std::size_t endOfQuoted(std::string_view sql, std::size_t opening) {
  const char quote = sql[opening] == '[' ? ']' : sql[opening];
  for (std::size_t end = opening + 1;; end += 2) {
    end = sql.find(quote, end);
    if (end == std::string_view::npos) {
      throw DataAccessError(quote == '\'' ? "A text in the statement has no end: a single quote is missing."
                                          : "A name in the statement has no end: a quote or bracket is missing.",
                            "");
    }
    if (quote == ']' || end + 1 == sql.size() || sql[end + 1] != quote) {
      return end + 1;
    }
  }
}

SqlToken pieceAt(std::string_view sql, std::size_t begin) {
  const auto upTo = [&](SqlTokenKind kind, std::size_t end) { return SqlToken{kind, sql.substr(begin, end - begin)}; };
  const char c = sql[begin];
  if (c == '\'') {
    return upTo(SqlTokenKind::text, endOfQuoted(sql, begin));
  }
  if (c == '"' || c == '`' || c == '[') {
    return upTo(SqlTokenKind::name, endOfQuoted(sql, begin));
  }
  if (lowerCase(c) == 'x' && sql.substr(begin + 1).starts_with('\'')) {
    return upTo(SqlTokenKind::symbol, endOfQuoted(sql, begin + 1));
  }
  if (isDigit(c)) {
    return upTo(SqlTokenKind::number, endOfRun(sql, begin, isNumberPart));
  }
  if (kParameterMarks.find(c) != std::string_view::npos) {
    throw DataAccessError(std::string("The statement holds a character outside its quoted texts that has no meaning ") +
                              "there (character code " + std::to_string(static_cast<unsigned char>(c)) + ").",
                          "");
  }
  if (isWordPart(c)) {
    return upTo(SqlTokenKind::word, endOfRun(sql, begin, isWordPart));
  }
  return upTo(SqlTokenKind::symbol, compares(c) ? endOfRun(sql, begin, compares) : begin + 1);
}

/// Where the blanks and comments end that begin at `begin`.
std::size_t afterBlanks(std::string_view sql, std::size_t begin) {
  while ((begin = std::min(sql.find_first_not_of(kBlanks, begin), sql.size())) < sql.size()) {
    const std::string_view rest = sql.substr(begin);
    if (!rest.starts_with("--") && !rest.starts_with("/*")) {
      break;
    }
    const std::string_view end = rest.starts_with("--") ? "\n" : "*/";
    const std::size_t found = rest.find(end, 2);
    begin = found == std::string_view::npos ? sql.size() : begin + found + end.size();
  }
  return begin;
}

}  // namespace

std::vector<SqlToken> sqlTokens(std::string_view sql) {
  std::vector<SqlToken> tokens;
  tokens.reserve(kUsualPieces);
  for (std::size_t i = afterBlanks(sql, 0); i < sql.size(); i = afterBlanks(sql, i)) {
    i += tokens.emplace_back(pieceAt(sql, i)).source.size();
  }
  return tokens;
}

std::string unquoted(const SqlToken& token) {
  if (token.kind == SqlTokenKind::word) {
    return std::string(token.source);
  }
  const char quote = token.source.front();
  std::string_view rest = token.source.substr(1, token.source.size() - 2);
  std::string value;
  value.reserve(rest.size());
  for (std::size_t at; quote != '[' && (at = rest.find(quote)) != std::string_view::npos;) {
    value.append(rest.substr(0, at + 1));
    rest.remove_prefix(at + 2);
  }
  return value.append(rest);
}

std::string quotedName(std::string_view name) {
  std::string quoted = "`";
  for (const char c : name) {
    quoted.append(c == '`' ? 2 : 1, c);
  }
  return quoted + '`';
}

}  // namespace tarnwick
