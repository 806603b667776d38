#include "platform/sqlite/sqlite_tables.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/errors.h"
#include "platform/sqlite/shown_statement.h"
#include "platform/sqlite/sql_table_definition.h"

namespace tarnwick {
namespace {

using Names = std::vector<std::string>;

/// Several changes as one: all of them stay after `keep`, none otherwise. Works inside a transaction and without.
class AtomicChange {
 public:
  explicit AtomicChange(SqliteDatabase& database)
      : database_(database), nested_(sqlite3_get_autocommit(database.handle()) == 0) {
    database_.run(nested_ ? "savepoint atomic_change" : "begin immediate");
  }
  ~AtomicChange() {
    if (!kept_) {
      sqlite3_exec(database_.handle(), nested_ ? "rollback to atomic_change; release atomic_change" : "rollback",
                   nullptr, nullptr, nullptr);
    }
  }
  AtomicChange(const AtomicChange&) = delete;
  AtomicChange& operator=(const AtomicChange&) = delete;

  void keep() {
    database_.run(nested_ ? "release atomic_change" : "commit");
    kept_ = true;
  }

 private:
  SqliteDatabase& database_;
  bool nested_;
  bool kept_ = false;
};

/// Lets a table be renamed without SQLite looking through all other definitions, some of which may just now refer to a
/// table that is being replaced.
class PlainRenaming {
 public:
  explicit PlainRenaming(sqlite3* database) : database_(database) { set(1); }
  ~PlainRenaming() { set(0); }
  PlainRenaming(const PlainRenaming&) = delete;
  PlainRenaming& operator=(const PlainRenaming&) = delete;

 private:
  void set(int on) { sqlite3_db_config(database_, SQLITE_DBCONFIG_LEGACY_ALTER_TABLE, on, nullptr); }
  sqlite3* database_;
};

std::string nameList(const Names& names) {
  std::string list;
  for (const std::string& name : names) {
    list += list.empty() ? "" : ", ";
    list += quotedName(name);
  }
  return list;
}

TableDefinition definitionOf(SqliteDatabase& database, const std::string& table) {
  const auto found =
      database.rows("select sql from sqlite_master where type = 'table' and name = ?1 collate nocase", table);
  return found.empty() ? TableDefinition() : parseTableDefinition(found[0][0]);
}

TableDefinition existingDefinition(SqliteDatabase& database, const std::string& table, std::string_view sql) {
  TableDefinition definition = definitionOf(database, table);
  if (definition.columns.empty()) {
    throw DataAccessError("The database has no table \"" + table + "\" that can be changed.", shownStatement(sql));
  }
  return definition;
}

Names primaryKeyOf(SqliteDatabase& database, const std::string& table) {
  Names columns;
  for (const auto& row : database.rows("select name from pragma_table_info(?1) where pk > 0 order by pk", table)) {
    columns.push_back(row[0]);
  }
  return columns;
}

bool isTaken(SqliteDatabase& database, const std::string& name) {
  return !database.rows("select 1 from sqlite_master where name = ?1 collate nocase", name).empty();
}

/// `wanted`, with a number behind it when the database has that name already.
std::string freeName(SqliteDatabase& database, const std::string& wanted) {
  std::string name = wanted;
  for (int i = 2; isTaken(database, name); ++i) {
    name = wanted + "_" + std::to_string(i);
  }
  return name;
}

/// One column of the table that a select-into makes.
struct NewColumn {
  TableDefinition::Column definition;
  /// The column of the source table that it copies; empty for an expression.
  std::string source;
};

/// Whether `rest` of a column's definition says that the column is the primary key.
bool saysPrimaryKey(const std::string& rest) {
  const auto tokens = sqlTokens(rest);
  return std::any_of(tokens.begin(), tokens.end(), [](const SqlToken& token) { return token.isWord("primary"); });
}

std::vector<NewColumn> newColumns(SqliteDatabase& database, const SelectInto& command, sqlite3_stmt* select) {
  const TableDefinition source = command.source.empty() ? TableDefinition() : definitionOf(database, command.source);
  const Names key = command.source.empty() ? Names() : primaryKeyOf(database, command.source);
  const auto count = static_cast<std::size_t>(sqlite3_column_count(select));
  const bool all = command.columns == Names{"*"};

  std::vector<NewColumn> columns;
  for (std::size_t i = 0; i < count; ++i) {
    const std::string name = sqlite3_column_name(select, static_cast<int>(i));
    const std::string sourceName = all ? name : command.columns.size() == count ? command.columns[i] : std::string();
    if (const auto* copied = source.find(sourceName)) {
      std::string rest = copied->rest;
      if (key.size() == 1 && sameName(key[0], sourceName) && !saysPrimaryKey(rest)) {
        rest += " primary key";
      }
      columns.push_back({{name, rest}, sourceName});
    } else {
      const char* type = sqlite3_column_decltype(select, static_cast<int>(i));
      columns.push_back({{name, type == nullptr ? "" : type}, ""});
    }
  }
  return columns;
}

/// The column that copies `source`, if any.
const NewColumn* copyOf(const std::vector<NewColumn>& columns, const std::string& source) {
  const auto found = std::find_if(columns.begin(), columns.end(), [&](const NewColumn& column) {
    return !column.source.empty() && sameName(column.source, source);
  });
  return found == columns.end() ? nullptr : &*found;
}

/// The columns of an index as an index on the new table lists them; nothing unless all of them were copied.
std::optional<std::pair<std::string, std::string>> copiedIndexColumns(SqliteDatabase& database,
                                                                      const std::string& index,
                                                                      const std::vector<NewColumn>& columns) {
  std::string list;
  std::string suffix;
  for (const auto& row :
       database.rows("select name, coll, \"desc\" from pragma_index_xinfo(?1) where key = 1 order by seqno", index)) {
    const NewColumn* copy = row[0].empty() ? nullptr : copyOf(columns, row[0]);
    if (copy == nullptr) {
      return std::nullopt;
    }
    list += list.empty() ? "" : ", ";
    list.append(quotedName(copy->definition.name)).append(" collate ").append(quotedName(row[1]));
    list += row[2] == "1" ? " desc" : "";
    suffix.append("_").append(copy->definition.name);
  }
  return std::pair(list, suffix);
}

void copyIndexes(SqliteDatabase& database, const SelectInto& command, const std::vector<NewColumn>& columns) {
  if (command.source.empty()) {
    return;
  }
  for (const auto& row : database.rows(
           "select name, \"unique\" from pragma_index_list(?1) where origin = 'c' and partial = 0", command.source)) {
    if (const auto found = copiedIndexColumns(database, row[0], columns)) {
      const auto& [list, suffix] = *found;
      std::string statement = row[1] == "1" ? "create unique index " : "create index ";
      statement.append(quotedName(freeName(database, command.target + suffix)));
      statement.append(" on ").append(quotedName(command.target)).append(" (").append(list).append(")");
      database.run(statement);
    }
  }
}

/// Puts a table of a changed definition in the place of `table`, with its rows in their order, its indexes and its
/// triggers. `kept` are the columns that both have.
void rebuild(SqliteDatabase& database, const std::string& table, const TableDefinition& changed, const Names& kept,
             std::string_view sql) {
  const auto attached = database.rows(
      "select sql from sqlite_master "
      "where tbl_name = ?1 collate nocase and type in ('index', 'trigger') and sql is not null",
      table);
  const std::string successor = freeName(database, table + "_new");
  const std::string columns = nameList(kept);
  database.run({changed.createStatement(successor), {}, false}, sql);
  database.run({"insert into " + quotedName(successor) + " (" + columns + ") select " + columns + " from " +
                    quotedName(table) + " not indexed",
                {},
                false},
               sql);
  database.run({"drop table " + quotedName(table), {}, false}, sql);
  const PlainRenaming plainRenaming(database.handle());
  database.run({"alter table " + quotedName(successor) + " rename to " + quotedName(table), {}, false}, sql);
  for (const auto& row : attached) {
    database.run({row[0], {}, false}, sql);
  }
}

Names columnNames(const TableDefinition& definition) {
  Names names;
  for (const auto& column : definition.columns) {
    names.push_back(column.name);
  }
  return names;
}

[[noreturn]] void refuseSecondKey(const std::string& table, std::string_view sql) {
  throw DataAccessError("The table \"" + table + "\" has a primary key already.", shownStatement(sql));
}

}  // namespace

void selectInto(SqliteDatabase& database, const SelectInto& command, std::string_view sql) {
  AtomicChange change(database);
  std::vector<NewColumn> columns;
  {
    const StatementLoan select = database.prepare({command.select.text, {}, false}, sql);
    columns = newColumns(database, command, select.get());
  }
  TableDefinition definition;
  for (const NewColumn& column : columns) {
    definition.columns.push_back(column.definition);
  }
  database.run({definition.createStatement(command.target), {}, false}, sql);
  const std::string insert = "insert into " + quotedName(command.target) + " " + command.select.text;
  database.run({insert, command.select.parameters, false}, sql);
  copyIndexes(database, command, columns);
  change.keep();
}

void addCounter(SqliteDatabase& database, const AddCounter& command, std::string_view sql) {
  AtomicChange change(database);
  TableDefinition definition = existingDefinition(database, command.table, sql);
  if (!primaryKeyOf(database, command.table).empty()) {
    refuseSecondKey(command.table, sql);
  }
  const Names kept = columnNames(definition);
  definition.columns.push_back({command.column, "INTEGER PRIMARY KEY"});
  rebuild(database, command.table, definition, kept, sql);
  change.keep();
}

void addPrimaryKey(SqliteDatabase& database, const AddPrimaryKey& command, std::string_view sql) {
  AtomicChange change(database);
  TableDefinition definition = existingDefinition(database, command.table, sql);
  for (const std::string& column : command.columns) {
    if (definition.find(column) == nullptr) {
      throw DataAccessError("The table \"" + command.table + "\" has no column \"" + column + "\".",
                            shownStatement(sql));
    }
  }
  const Names key = primaryKeyOf(database, command.table);
  if (!key.empty()) {
    if (!std::equal(key.begin(), key.end(), command.columns.begin(), command.columns.end(), sameName)) {
      refuseSecondKey(command.table, sql);
    }
    return;
  }
  definition.constraints.push_back("constraint " + quotedName(command.constraint) + " primary key (" +
                                   nameList(command.columns) + ")");
  rebuild(database, command.table, definition, columnNames(definition), sql);
  change.keep();
}

}  // namespace tarnwick
