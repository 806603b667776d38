#include "platform/sqlite/sql_table_definition.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "platform/sqlite/sql_dialect.h"
#include "platform/sqlite/sql_tokens.h"

namespace tarnwick {
namespace {

using Tokens = std::vector<SqlToken>;

/// The pieces as they stand in their statement, with the blanks between them.
std::string verbatim(Tokens::const_iterator begin, Tokens::const_iterator end) {
  if (begin == end) {
    return {};
  }
  const std::string_view last = (end - 1)->source;
  return {begin->source.data(), last.data() + last.size()};
}

bool startsConstraint(const SqlToken& token) {
  static constexpr std::array<std::string_view, 5> kWords{"constraint", "primary", "unique", "check", "foreign"};
  return std::any_of(kWords.begin(), kWords.end(), [&](std::string_view word) { return token.isWord(word); });
}

void addItem(TableDefinition& definition, Tokens::const_iterator begin, Tokens::const_iterator end) {
  if (begin == end) {
    return;
  }
  if (startsConstraint(*begin)) {
    definition.constraints.push_back(verbatim(begin, end));
  } else {
    // SQLite takes a text for a name here.
    const std::string name = begin->kind == SqlTokenKind::text ? textIn(*begin) : nameIn(*begin);
    definition.columns.push_back({name, verbatim(begin + 1, end)});
  }
}

}  // namespace

const TableDefinition::Column* TableDefinition::find(std::string_view name) const {
  const auto found =
      std::find_if(columns.begin(), columns.end(), [&](const Column& column) { return sameName(column.name, name); });
  return found == columns.end() ? nullptr : &*found;
}

std::string TableDefinition::createStatement(std::string_view name) const {
  std::string items;
  for (const Column& column : columns) {
    items += items.empty() ? "" : ", ";
    items += quotedName(column.name) + (column.rest.empty() ? "" : " ") + column.rest;
  }
  for (const std::string& constraint : constraints) {
    items += ", " + constraint;
  }
  return "create table " + quotedName(name) + " (" + items + ")" + (options.empty() ? "" : " ") + options;
}

TableDefinition parseTableDefinition(std::string_view createStatement) {
  const Tokens tokens = sqlTokens(createStatement);
  TableDefinition definition;
  if (tokens.size() < 2 || !tokens[0].isWord("create") || !tokens[1].isWord("table")) {
    return definition;
  }
  auto token = std::find_if(tokens.begin(), tokens.end(), [](const SqlToken& t) { return t.isSymbol("("); });
  if (token == tokens.end()) {
    return definition;
  }
  auto itemBegin = ++token;
  for (int depth = 1; token != tokens.end(); ++token) {
    depth += token->isSymbol("(") ? 1 : token->isSymbol(")") ? -1 : 0;
    if (depth == 0 || (depth == 1 && token->isSymbol(","))) {
      addItem(definition, itemBegin, token);
      itemBegin = token + 1;
    }
    if (depth == 0) {
      definition.options = verbatim(itemBegin, tokens.end());
      break;
    }
  }
  return definition;
}

bool sameName(std::string_view one, std::string_view other) { return equalsIgnoringCase(one, other); }

}  // namespace tarnwick
