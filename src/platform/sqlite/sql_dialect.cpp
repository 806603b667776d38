// SPDX-License-Identifier: MIT
#include "platform/sqlite/sql_dialect.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <initializer_list>

#include "platform/sqlite/sql_sites.h"
#include "platform/sqlite/sql_tokens.h"

namespace tarnwick {
namespace {

using Tokens = std::vector<SqlToken>;

/// Statements about rows: in these a value may stand as a parameter.
bool concernsRows(const Tokens& tokens) {
  static constexpr std::array<std::string_view, 8> kFirstWords{"select",  "insert", "update", "delete",
                                                               "replace", "with",   "values", "explain"};
  return !tokens.empty() &&
         std::ranges::any_of(kFirstWords, [&](std::string_view word) { return tokens.front().is(word); });
}

/// Copies a statement, with other words in the place of some of its own.
class RowsTranslator {
 public:
  RowsTranslator(const Tokens& tokens, const Clock& clock, BehindSites behind)
      : tokens_(tokens), clock_(clock), behind_(std::move(behind)) {}

  PlainStatement translate() {
    statement_.reusable = true;
    statement_.pageColumns = behind_.pageColumns;
    auto words = behind_.words.begin();
    for (position_ = 0; position_ < tokens_.size(); ++position_) {
      if (words != behind_.words.end() && words->first == position_) {
        replace(0, (words++)->second);
      } else {
        take(tokens_[position_]);
      }
    }
    const std::string_view last = tokens_.back().source;
    statement_.text.append(copied_, last.data() + last.size()).append(limits_.front());
    return std::move(statement_);
  }

 private:
  /// The piece that stands so many places before the one that is looked at.
  const SqlToken& before(std::size_t places) const {
    static constexpr SqlToken kNothing{SqlTokenKind::symbol, {}};
    return places <= position_ ? tokens_[position_ - places] : kNothing;
  }

  void take(const SqlToken& token) {
    switch (token.kind) {
      case SqlTokenKind::text:
        // A unit stays as written: SQLite computes an expression once when it stands twice word for word, in the list
        // of columns and in the order.
        if (!before(1).is("(") || !before(2).is("datediff")) {
          takeText(token);
        }
        break;
      case SqlTokenKind::number:
        takeNumber(token);
        break;
      case SqlTokenKind::word:
        takeWord(token);
        break;
      case SqlTokenKind::symbol:
        takeSymbol(token);
        break;
      case SqlTokenKind::name:
        break;
    }
  }

  void takeText(const SqlToken& token) {
    const std::string_view inner = token.source.substr(1, token.source.size() - 2);
    if (inner.find('\'') == std::string_view::npos) {
      replace(0, parameter(inner));
    } else {
      replace(0, parameter(SqlValue(unquoted(token))));
    }
  }

  void takeNumber(const SqlToken& token) {
    if (before(1).is("top") && before(2).is("select")) {
      limits_.back() = " limit " + std::string(token.source);
      replace(1, {});
      return;
    }
    const bool counts = before(1).is("=") || (inValues_ && (before(1).is("(") || before(1).is(",")));
    std::int64_t value = 0;
    const char* const end = token.source.data() + token.source.size();
    const auto [stop, fault] = std::from_chars(token.source.data(), end, value);
    if (counts && fault == std::errc{} && stop == end) {
      replace(0, parameter(SqlValue(value)));
    }
  }

  void takeWord(const SqlToken& token) {
    if (token.is("where")) {
      inCondition_ = true;
    } else if (token.is("values")) {
      inValues_ = true;
    } else if (inCondition_ && before(1).is("=") && (token.is("true") || token.is("false"))) {
      // In a `set` the same words assign, and SQLite reads them as 1 and 0.
      replace(1, " is " + std::string(token.source));
    }
  }

  void takeSymbol(const SqlToken& token) {
    if (token.is("(")) {
      limits_.emplace_back();
      if (before(1).is("datevalue")) {
        replace(1, "date(");
      }
    } else if (token.is(")") && limits_.size() > 1) {
      const std::string limit = std::move(limits_.back());
      limits_.pop_back();
      if (!limit.empty()) {
        replace(0, limit + ")");
      } else if (before(1).is("(") && before(2).is("now")) {
        if (now_.empty()) {
          now_ = parameter(SqlValue(dateTimeText(clock_.localNow())));
          statement_.nowParameter = statement_.parameters.size();
        }
        replace(2, now_);
      }
    }
  }

  std::string parameter(SqlParameter value) {
    statement_.parameters.push_back(std::move(value));
    return "?" + std::to_string(statement_.parameters.size());
  }

  /// Writes `words` in the place of the last pieces: the one that is looked at and so many before it.
  void replace(std::size_t places, std::string_view words) {
    const std::string_view last = tokens_[position_].source;
    statement_.text.append(copied_, tokens_[position_ - places].source.data()).append(words);
    copied_ = last.data() + last.size();
  }

  const Tokens& tokens_;
  const Clock& clock_;
  BehindSites behind_;
  PlainStatement statement_;
  std::size_t position_ = 0;
  const char* copied_ = tokens_.front().source.data();
  /// Of the statement and of each pair of brackets that is open around the piece that is looked at.
  std::vector<std::string> limits_ = std::vector<std::string>(1);
  std::string now_;
  bool inCondition_ = false;
  bool inValues_ = false;
};

/// The names that stand where `pattern` has a "?"; none when the statement reads otherwise.
std::vector<std::string> namesIn(const Tokens& tokens, std::initializer_list<std::string_view> pattern) {
  std::vector<std::string> names;
  if (tokens.size() != pattern.size()) {
    return names;
  }
  auto token = tokens.begin();
  for (const std::string_view piece : pattern) {
    const bool isSought = piece == "?" && token->isName();
    if (isSought) {
      names.push_back(unquoted(*token));
    } else if (!token->is(piece)) {
      return {};
    }
    ++token;
  }
  return names;
}

std::optional<SelectInto> readSelectInto(const Tokens& tokens) {
  constexpr std::size_t kBehindColumns = 4;
  if (tokens.size() < 2 + kBehindColumns || !tokens.front().is("select")) {
    return std::nullopt;
  }
  const std::size_t into = tokens.size() - kBehindColumns;
  if (!tokens[into].is("into") || !tokens[into + 1].isName() || !tokens[into + 2].is("from") ||
      !tokens[into + 3].isName()) {
    return std::nullopt;
  }
  SelectInto command{{}, unquoted(tokens[into + 1]), unquoted(tokens[into + 3])};
  for (std::size_t i = 1; i < into; i += 2) {
    if (!tokens[i].isName() || (i + 1 != into && !tokens[i + 1].is(","))) {
      return std::nullopt;
    }
    command.columns.push_back(unquoted(tokens[i]));
  }
  return command;
}

}  // namespace

SqlCommand translateSql(std::string_view sql, const Clock& clock, Pages pages) {
  Tokens tokens = sqlTokens(sql);
  while (!tokens.empty() && tokens.back().is(";")) {
    tokens.pop_back();
  }
  if (auto selectInto = readSelectInto(tokens)) {
    return *std::move(selectInto);
  }
  if (concernsRows(tokens)) {
    const bool apart = pages == Pages::apart;
    if (auto storePage = apart ? readStorePage(tokens) : std::nullopt) {
      return *std::move(storePage);
    }
    return RowsTranslator(tokens, clock, apart ? behindSites(tokens) : BehindSites()).translate();
  }
  if (const auto names = namesIn(tokens, {"alter", "table", "?", "add", "column", "?", "counter", "not", "null"});
      !names.empty()) {
    return AddCounter{names[0], names[1]};
  }
  if (const auto names =
          namesIn(tokens, {"alter", "table", "?", "add", "constraint", "?", "primary", "key", "(", "?", ")"});
      !names.empty()) {
    return PlainStatement{"create unique index " + quotedName(names[1]) + " on " + quotedName(names[0]) + " (" +
                          quotedName(names[2]) + ")"};
  }
  return PlainStatement{std::string(sql)};
}

std::optional<std::string_view> assignedText(std::string_view sql, std::string_view column) {
  const Tokens tokens = sqlTokens(sql);
  for (std::size_t i = 0; i + 2 < tokens.size(); ++i) {
    if (tokens[i].is(column) && tokens[i + 1].is("=") && tokens[i + 2].kind == SqlTokenKind::text) {
      return tokens[i + 2].source;
    }
  }
  return std::nullopt;
}

}  // namespace tarnwick
