// SPDX-License-Identifier: MIT
#include "platform/sqlite/sqlite_tables.h"

#include <algorithm>
#include <string>
#include <vector>

#include "platform/sqlite/atomic_change.h"
#include "platform/sqlite/sql_tokens.h"

namespace tarnwick {
namespace {

struct Column {
  std::string name;
  /// Name, type, default and checks, as they are written.
  std::string definition;
};

/// The columns of a table, as the statement has them that made it; none when there is no such table.
std::vector<Column> columnsOf(SqliteDatabase& database, const std::string& table) {
  const auto found =
      database.rows("select sql from sqlite_master where type = 'table' and name = ?1 collate nocase", {table});
  std::vector<Column> columns;
  if (found.empty()) {
    return columns;
  }
  const auto tokens = sqlTokens(found[0][0]);
  auto first = tokens.end();
  int depth = 0;
  for (auto token = tokens.begin(); token != tokens.end(); ++token) {
    depth += token->is("(") ? 1 : 0;
    if (depth == 1 && (token->is(",") || token->is(")"))) {
      columns.push_back({unquoted(*first), std::string(first->source.data(), token->source.data())});
    }
    if (depth == 1 && (token->is(",") || (token->is("(") && first == tokens.end()))) {
      first = token + 1;
    }
    depth -= token->is(")") ? 1 : 0;
  }
  return columns;
}

bool isIn(const std::vector<std::string>& names, const std::string& sought) {
  return std::ranges::any_of(names, [&](const std::string& name) { return equalsIgnoringCase(name, sought); });
}

}  // namespace

void selectInto(SqliteDatabase& database, const SelectInto& command) {
  const std::vector<Column> source = columnsOf(database, command.source);
  std::string definitions;
  std::string names;
  for (const std::string& name : command.columns) {
    const auto copied =
        std::ranges::find_if(source, [&](const Column& column) { return equalsIgnoringCase(column.name, name); });
    const char* const separator = names.empty() ? "" : ", ";
    names.append(separator).append(quotedName(name));
    definitions.append(separator).append(copied == source.end() ? quotedName(name) : copied->definition);
  }
  const std::string target = quotedName(command.target);
  AtomicChange change(database);
  database.run("create table " + target + " (" + definitions + ")");
  database.run("insert into " + target + " select " + names + " from " + quotedName(command.source) +
               " order by rowid");
  for (const auto& row : database.rows("select i.name from pragma_index_list(?1) l, pragma_index_info(l.name) i "
                                       "where l.origin = 'c' and not l.\"unique\" and not l.partial",
                                       {command.source})) {
    if (isIn(command.columns, row[0])) {
      database.run("create index if not exists " + quotedName(command.target + "_" + row[0]) + " on " + target + " (" +
                   quotedName(row[0]) + ")");
    }
  }
  change.keep();
}

void addCounter(SqliteDatabase& database, const AddCounter& command) {
  const auto indexes = database.rows(
      "select sql from sqlite_master where type = 'index' and tbl_name = ?1 collate nocase and sql is not null",
      {command.table});
  std::string definitions;
  for (const Column& column : columnsOf(database, command.table)) {
    definitions.append(column.definition).append(", ");
  }
  const std::string table = quotedName(command.table);
  const std::string copy = quotedName(command.table + "_copy");
  AtomicChange change(database);
  database.run("create table " + copy + " as select * from " + table + " order by rowid");
  database.run("drop table " + table);
  database.run("create table " + table + " (" + definitions + quotedName(command.column) + " INTEGER PRIMARY KEY)");
  database.run("insert into " + table + " select *, null from " + copy + " order by rowid");
  database.run("drop table " + copy);
  for (const auto& row : indexes) {
    database.run(row[0]);
  }
  change.keep();
}

}  // namespace tarnwick
