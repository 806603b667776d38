// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/sql_connection.h"
#include "platform/sqlite/sqlite_database.h"

namespace tarnwick {

/// The rows of a statement that SQLite delivers one by one as they are asked for.
class SqliteRecordset final : public Recordset {
 public:
  /// `loan` stands on its first row when `onRow`. `pages`: the columns that hold the number of a page in its place.
  /// `sql` is for messages.
  SqliteRecordset(SqliteDatabase& database, StatementLoan loan, bool onRow, std::vector<std::size_t> pages,
                  std::string sql);
  ~SqliteRecordset() override;
  SqliteRecordset(const SqliteRecordset&) = delete;
  SqliteRecordset& operator=(const SqliteRecordset&) = delete;

  bool eof() const override { return !onRow_; }
  void moveFirst() override;
  void moveNext() override;
  std::size_t fieldCount() const override;
  std::string fieldName(std::size_t index) const override;
  SqlValue field(std::size_t index) const override;
  SqlValue field(std::string_view name) const override;
  bool holds(std::string_view name, std::string_view text) const override;
  void close() noexcept override;

 private:
  void advance();
  int checkedColumn(std::size_t index) const;
  std::size_t columnNamed(std::string_view name) const;
  bool holdsPage(std::size_t index) const;
  bool holdsYesNo(std::size_t index) const;

  SqliteDatabase* database_;
  StatementLoan loan_;
  bool onRow_;
  std::vector<std::size_t> pages_;
  std::string sql_;
  mutable std::vector<bool> yesNo_;
};

/// What a statement without rows returns.
class NoRows final : public Recordset {
 public:
  bool eof() const override { return true; }
  void moveFirst() override {}
  void moveNext() override {}
  std::size_t fieldCount() const override { return 0; }
  std::string fieldName(std::size_t index) const override;
  SqlValue field(std::size_t index) const override;
  SqlValue field(std::string_view name) const override;
  void close() noexcept override {}
};

}  // namespace tarnwick
