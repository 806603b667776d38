#include "platform/sqlite/sql_dialect.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "base/errors.h"
#include "base/text.h"
#include "platform/sqlite/shown_statement.h"
#include "platform/sqlite/sql_rows_translator.h"

namespace tarnwick {
namespace {

using Tokens = std::vector<SqlToken>;

/// Statements about rows: in these a value may stand as a parameter.
bool concernsRows(const Tokens& tokens) {
  static constexpr std::array<std::string_view, 8> kFirstWords{"select",  "insert", "update", "delete",
                                                               "replace", "with",   "values", "explain"};
  return !tokens.empty() && std::any_of(kFirstWords.begin(), kFirstWords.end(),
                                        [&](std::string_view word) { return tokens.front().isWord(word); });
}

/// Reads a statement from the left, piece by piece.
class Reader {
 public:
  explicit Reader(const Tokens& tokens) : tokens_(tokens) {}

  bool atEnd() const { return position_ == tokens_.size(); }
  bool word(std::string_view lower) { return skipIf(!atEnd() && tokens_[position_].isWord(lower)); }
  bool symbol(std::string_view symbol) { return skipIf(!atEnd() && tokens_[position_].isSymbol(symbol)); }
  bool name(std::string& result) {
    if (atEnd() || !tokens_[position_].isName()) {
      return false;
    }
    result = nameIn(tokens_[position_++]);
    return true;
  }

 private:
  bool skipIf(bool matches) {
    position_ += matches ? 1 : 0;
    return matches;
  }

  const Tokens& tokens_;
  std::size_t position_ = 0;
};

std::optional<AddCounter> readAddCounter(const Tokens& tokens) {
  Reader reader(tokens);
  AddCounter command;
  if (!reader.word("alter") || !reader.word("table") || !reader.name(command.table) || !reader.word("add")) {
    return std::nullopt;
  }
  reader.word("column");
  if (!reader.name(command.column) || !reader.word("counter")) {
    return std::nullopt;
  }
  const bool complete = reader.atEnd() || (reader.word("not") && reader.word("null") && reader.atEnd());
  return complete ? std::optional(command) : std::nullopt;
}

std::optional<AddPrimaryKey> readAddPrimaryKey(const Tokens& tokens) {
  Reader reader(tokens);
  AddPrimaryKey command;
  std::string column;
  if (!reader.word("alter") || !reader.word("table") || !reader.name(command.table) || !reader.word("add") ||
      !reader.word("constraint") || !reader.name(command.constraint) || !reader.word("primary") ||
      !reader.word("key") || !reader.symbol("(")) {
    return std::nullopt;
  }
  do {
    if (!reader.name(column)) {
      return std::nullopt;
    }
    command.columns.push_back(column);
  } while (reader.symbol(","));
  return reader.symbol(")") && reader.atEnd() ? std::optional(command) : std::nullopt;
}

/// Where the words of a select-into stand among the pieces of a statement.
struct IntoPlace {
  std::size_t into = 0;
  std::size_t from = 0;
};

std::optional<IntoPlace> findInto(const Tokens& tokens) {
  if (tokens.empty() || !tokens.front().isWord("select")) {
    return std::nullopt;
  }
  IntoPlace place;
  int depth = 0;
  for (std::size_t i = 1; i < tokens.size(); ++i) {
    depth += tokens[i].isSymbol("(") ? 1 : tokens[i].isSymbol(")") ? -1 : 0;
    if (depth == 0 && place.into == 0 && tokens[i].isWord("into") && i + 1 < tokens.size() && tokens[i + 1].isName()) {
      place.into = i;
    } else if (depth == 0 && tokens[i].isWord("from")) {
      place.from = i;
      break;
    }
  }
  return place.into != 0 && place.from == place.into + 2 ? std::optional(place) : std::nullopt;
}

/// The table after `from`, when it stands alone and under its own name.
std::optional<SqlToken> onlyTable(const Tokens& tokens, std::size_t from) {
  const std::size_t table = from + 1;
  if (table >= tokens.size() || !tokens[table].isName()) {
    return std::nullopt;
  }
  if (table + 1 == tokens.size()) {
    return tokens[table];
  }
  static constexpr std::array<std::string_view, 5> kClauses{"where", "order", "group", "having", "limit"};
  const SqlToken& after = tokens[table + 1];
  const bool alone =
      std::any_of(kClauses.begin(), kClauses.end(), [&](std::string_view word) { return after.isWord(word); });
  return alone ? std::optional(tokens[table]) : std::nullopt;
}

/// The columns between `select` and `into`: see SelectInto::columns.
std::vector<std::string> selectedColumns(const Tokens& tokens, std::size_t into) {
  std::size_t i = 1;
  while (i < into && (tokens[i].isWord("distinct") || tokens[i].isWord("all"))) {
    ++i;
  }
  if (i + 1 < into && tokens[i].isWord("top") && tokens[i + 1].kind == SqlTokenKind::number) {
    i += 2;
  }
  std::vector<std::string> columns;
  while (i < into) {
    std::size_t end = i;
    int depth = 0;
    while (end < into && (depth > 0 || !tokens[end].isSymbol(","))) {
      depth += tokens[end].isSymbol("(") ? 1 : tokens[end].isSymbol(")") ? -1 : 0;
      ++end;
    }
    const bool bare = end == i + 1 || (end == i + 3 && tokens[i + 1].isWord("as"));
    const bool known = bare && (tokens[i].isName() || tokens[i].isSymbol("*"));
    columns.push_back(known ? nameIn(tokens[i]) : std::string());
    i = end + 1;
  }
  return columns;
}

std::optional<SelectInto> readSelectInto(const Tokens& tokens) {
  const std::optional<IntoPlace> place = findInto(tokens);
  if (!place) {
    return std::nullopt;
  }
  SelectInto command;
  command.target = nameIn(tokens[place->into + 1]);
  command.columns = selectedColumns(tokens, place->into);
  const std::optional<SqlToken> source = onlyTable(tokens, place->from);

  static constexpr SqlToken kNot{SqlTokenKind::word, "not"};
  static constexpr SqlToken kIndexed{SqlTokenKind::word, "indexed"};
  Tokens select;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    if (i != place->into && i != place->into + 1) {
      select.push_back(tokens[i]);
    }
    if (source && i == place->from + 1) {
      // An index that holds every column selected would deliver the rows in its own order.
      select.insert(select.end(), {kNot, kIndexed});
    }
  }
  if (source) {
    command.source = nameIn(*source);
  }
  command.select = translateRows(select);
  return command;
}

/// A statement about tables or settings, passed on as it stands: SQLite takes no parameters there.
PlainStatement passedOn(std::string_view sql) {
  if (sql.find('\0') != std::string_view::npos) {
    throw DataAccessError("A NUL byte cannot stand in a statement that defines tables or settings.",
                          shownStatement(sql));
  }
  return {std::string(sql), {}, false};
}

}  // namespace

SqlCommand translateSql(std::string_view sql) {
  Tokens tokens = sqlTokens(sql);
  while (!tokens.empty() && tokens.back().isSymbol(";")) {
    tokens.pop_back();
  }
  if (auto selectInto = readSelectInto(tokens)) {
    return *std::move(selectInto);
  }
  if (concernsRows(tokens)) {
    return translateRows(tokens);
  }
  if (auto addCounter = readAddCounter(tokens)) {
    return *std::move(addCounter);
  }
  if (auto addPrimaryKey = readAddPrimaryKey(tokens)) {
    return *std::move(addPrimaryKey);
  }
  return passedOn(sql);
}

std::optional<std::string_view> assignedText(std::string_view sql, std::string_view column) {
  const Tokens tokens = sqlTokens(sql);
  const std::string wanted = lowerCase(std::string(column));
  for (std::size_t i = 0; i + 2 < tokens.size(); ++i) {
    if (tokens[i].isWord(wanted) && tokens[i + 1].isSymbol("=") && tokens[i + 2].kind == SqlTokenKind::text) {
      return tokens[i + 2].source;
    }
  }
  return std::nullopt;
}

std::string quotedName(std::string_view name) {
  std::string quoted = "\"";
  for (const char c : name) {
    quoted.append(c == '"' ? 2 : 1, c);
  }
  return quoted + '"';
}

}  // namespace tarnwick
