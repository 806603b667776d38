// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <string>
#include <string_view>

namespace tarnwick {

/// A value as it is spliced into SQL text: every single quote doubled. The caller adds the surrounding quotes, for
/// texts and dates only.
std::string sqlQuote(std::string_view text);
/// Literals are texts, not yes/no values.
inline std::string sqlQuote(const char* text) { return sqlQuote(std::string_view(text)); }
/// A yes/no: "True" or "False".
template <std::same_as<bool> Flag>
std::string sqlQuote(Flag flag) {
  return flag ? "True" : "False";
}
/// A whole number: its decimal text.
template <std::integral Number>
requires(!std::same_as<Number, bool>) std::string sqlQuote(Number number) { return std::to_string(number); }

/// Joins a statement's pieces in one go: a page of many megabytes is copied once, not once for each piece.
template <typename... Pieces>
std::string joinSql(const Pieces&... pieces) {
  std::string sql;
  sql.reserve((std::string_view(pieces).size() + ...));
  (sql.append(std::string_view(pieces)), ...);
  return sql;
}

}  // namespace tarnwick
