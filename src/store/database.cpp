// SPDX-License-Identifier: MIT
#include "store/database.h"

#include <cstddef>
#include <utility>

#include "base/product.h"
#include "platform/file_system.h"
#include "store/migrations.h"
#include "store/sql_quote.h"

namespace tarnwick {

Database::Database(const std::string& programFolder, SqlConnectionMaker& databases)
    : conn_(databases.makeSqlConnection()),
      dbPath_(textOf(pathOf(programFolder) / kDatabaseFile)),
      programFolder_(programFolder) {
  connString_ =
      "Provider=Microsoft.Jet.OLEDB.4.0;"
      "Data Source=" +
      dbPath_ +
      ";"
      "Jet OLEDB:Engine Type=4;";
  open();
}

void Database::open() {
  optionsChange();
  conn_->open(connString_);
  try {
    bringUpToDate(*conn_, dbPath_);
  } catch (...) {
    conn_->close();
    throw;
  }
}

Database::~Database() { conn_->close(); }

SqlConnection& Database::conn() {
  if (!conn_->isOpen()) {
    open();
  }
  return *conn_;
}

std::unique_ptr<Recordset> Database::query(std::string sql) {
  sqlText_ = std::move(sql);
  return conn().execute(sqlText_);
}

void Database::execute(std::string sql) {
  finishWriterAside();
  query(std::move(sql))->close();
}

void Database::execute(const std::string& before, std::string_view page, const std::string& behind) {
  finishWriterAside();
  sqlText_ = joinSql(before, "...", behind);
  if (conn().execute(before, page, behind) == nullptr) {
    conn().execute(joinSql(before, sqlQuote(page), behind))->close();
  }
}

bool Database::readersGoOn() {
  const auto mode = conn().execute("pragma journal_mode", {});
  return !mode->eof() && mode->field(std::size_t{0}).toText() == "wal";
}

void Database::finishWriterAside() {
  if (const auto finish = std::exchange(finishAside_, {})) {
    finish();
  }
}

Transaction::Transaction(Database& database) : conn_(database.conn()), owner_(!conn_.inTransaction()) {
  if (owner_) {
    database.finishWriterAside();
    conn_.begin();
  }
}

std::optional<Transaction> Transaction::tryBegin(Database& database) {
  SqlConnection& conn = database.conn();
  const bool owner = !conn.inTransaction();
  if (owner && (database.hasWriterAside() || !conn.tryBegin())) {
    return std::nullopt;
  }
  return Transaction(conn, owner);
}

Transaction::~Transaction() {
  if (owner_) {
    conn_.rollback();
  }
}

void Transaction::commit() {
  if (owner_) {
    conn_.commit();
    owner_ = false;
  }
}

// A connection sees one state of the database for as long as one of its recordsets stands on a row. This one has one in
// any database.
Snapshot::Snapshot(Database& database) : held_(database.query("select count(*) from sqlite_master")) {}

}  // namespace tarnwick
