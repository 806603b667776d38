// SPDX-License-Identifier: MIT
#include "platform/sqlite/sqlite_recordset.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/errors.h"
#include "platform/sqlite/sqlite_pages.h"

namespace tarnwick {
namespace {

constexpr const char* kNoRow = "There is no current record: the statement returned none, or all have been read.";

/// Nothing when there is no memory for the text: an empty one in its place would pass for what is stored.
std::optional<SqlValue> textValue(sqlite3_stmt* statement, int column) {
  const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  if (bytes == nullptr) {
    return std::nullopt;
  }
  const auto length = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
  return SqlValue(std::string(bytes, length));
}

bool isYesNo(sqlite3_stmt* statement, int column) {
  const char* type = sqlite3_column_decltype(statement, column);
  return type != nullptr && sqlite3_stricmp(type, "yesno") == 0;
}

std::optional<SqlValue> plainValue(sqlite3_stmt* statement, int column) {
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
      return SqlValue();
    case SQLITE_INTEGER:
      return SqlValue(std::int64_t{sqlite3_column_int64(statement, column)});
    case SQLITE_FLOAT:
      return SqlValue(sqlite3_column_double(statement, column));
    default:
      return textValue(statement, column);
  }
}

}  // namespace

SqliteRecordset::SqliteRecordset(SqliteDatabase& database, StatementLoan loan, bool onRow,
                                 std::vector<std::size_t> pages, std::string sql)
    : database_(&database), loan_(std::move(loan)), onRow_(onRow), pages_(std::move(pages)), sql_(std::move(sql)) {
  database.enroll(*this);
  if (!onRow_) {
    sqlite3_reset(loan_.get());
  }
}

SqliteRecordset::~SqliteRecordset() { close(); }

void SqliteRecordset::moveFirst() {
  if (loan_.get() == nullptr) {
    throw DataAccessError("The records have been closed.", sql_);
  }
  sqlite3_reset(loan_.get());
  yesNo_.clear();
  advance();
}

void SqliteRecordset::moveNext() {
  if (onRow_) {
    advance();
  }
}

void SqliteRecordset::advance() {
  onRow_ = false;
  try {
    onRow_ = database_->step(loan_.get());
  } catch (const DataAccessError& error) {
    throw DataAccessError(error.cause(), sql_, error.kind());
  }
  if (!onRow_) {
    // Lets go of the read lock, though the recordset may stay open.
    sqlite3_reset(loan_.get());
  }
}

std::size_t SqliteRecordset::fieldCount() const { return static_cast<std::size_t>(sqlite3_column_count(loan_.get())); }

std::string SqliteRecordset::fieldName(std::size_t index) const {
  return sqlite3_column_name(loan_.get(), checkedColumn(index));
}

SqlValue SqliteRecordset::field(std::size_t index) const {
  if (!onRow_) {
    throw DataAccessError(kNoRow, sql_);
  }
  const int column = checkedColumn(index);
  std::optional<SqlValue> value = plainValue(loan_.get(), column);
  if (!value) {
    throw DataAccessError(database_->lastError().cause(), sql_);
  }
  if (!value->isNull() && holdsPage(index)) {
    return SqlValue(SqlitePages(*database_).read(value->toInt64()));
  }
  return !value->isNull() && holdsYesNo(index) ? SqlValue(value->toBool()) : *std::move(value);
}

// Remembered, since a long list asks for each of its fields.
bool SqliteRecordset::holdsYesNo(std::size_t index) const {
  if (yesNo_.empty()) {
    yesNo_.resize(fieldCount());
    for (std::size_t column = 0; column < yesNo_.size(); ++column) {
      yesNo_[column] = isYesNo(loan_.get(), static_cast<int>(column));
    }
  }
  return yesNo_[index];
}

SqlValue SqliteRecordset::field(std::string_view name) const { return field(columnNamed(name)); }

bool SqliteRecordset::holds(std::string_view name, std::string_view text) const {
  const std::size_t index = columnNamed(name);
  if (!onRow_ || !holdsPage(index)) {
    return field(index).toText() == text;
  }
  const std::int64_t page = sqlite3_column_int64(loan_.get(), static_cast<int>(index));  // 0 for a Null
  return SqlitePages(*database_).holds(page, text);
}

bool SqliteRecordset::holdsPage(std::size_t index) const { return std::ranges::find(pages_, index) != pages_.end(); }

std::size_t SqliteRecordset::columnNamed(std::string_view name) const {
  for (std::size_t index = 0; index < fieldCount(); ++index) {
    const char* column = sqlite3_column_name(loan_.get(), static_cast<int>(index));
    if (std::string_view(column).size() == name.size() &&
        sqlite3_strnicmp(column, name.data(), static_cast<int>(name.size())) == 0) {
      return index;
    }
  }
  throw DataAccessError("The statement returns no field \"" + std::string(name) + "\".", sql_);
}

void SqliteRecordset::close() noexcept {
  if (loan_.get() != nullptr) {
    onRow_ = false;
    loan_.giveBack();
    database_->strikeOff(*this);
  }
}

int SqliteRecordset::checkedColumn(std::size_t index) const {
  if (index >= fieldCount()) {
    throw DataAccessError("The statement returns no field number " + std::to_string(index) + ".", sql_);
  }
  return static_cast<int>(index);
}

std::string NoRows::fieldName(std::size_t index) const {
  throw DataAccessError("The statement returns no field number " + std::to_string(index) + ".", "");
}

SqlValue NoRows::field(std::size_t) const { throw DataAccessError(kNoRow, ""); }

SqlValue NoRows::field(std::string_view) const { throw DataAccessError(kNoRow, ""); }

}  // namespace tarnwick
