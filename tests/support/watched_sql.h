// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/errors.h"
#include "platform/sql_connection.h"

namespace tarnwick::testing {

/// What a test sees of a database's statements, and where it can make one fail.
struct SqlWatch {
  /// Every statement of the program's own dialect so far, in order, with "begin", "commit", "rollback" and "set form of
  /// tables" among them; of long ones the beginning.
  std::vector<std::string> statements;
  /// Those with bound values, which stand beside the original ones.
  std::vector<std::string> boundStatements;
  /// Called before each of them is carried out; what it throws is thrown in its place.
  std::function<void(std::string_view statement)> before;

  /// Makes the first statement that starts with `start` fail, with `also` done at that moment.
  void failAt(std::string start, std::function<void()> also = {}) {
    before = [this, start = std::move(start), also = std::move(also)](std::string_view statement) {
      if (statement.substr(0, start.size()) == start) {
        before = {};  // the connection runs a copy of this function, so that it may end itself
        if (also) {
          also();
        }
        throw DataAccessError("The test makes this statement fail.", std::string(statement.substr(0, 100)));
      }
    };
  }
};

/// Connections that carry out everything on real ones, watched.
class WatchedConnections final : public SqlConnectionMaker {
 public:
  explicit WatchedConnections(SqlConnectionMaker& real) : real_(real) {}

  std::unique_ptr<SqlConnection> makeSqlConnection() override {
    return std::make_unique<Watched>(real_.makeSqlConnection(), watch);
  }
  std::unique_ptr<HeldDatabase> holdDatabase(const std::string& connString) override {
    return real_.holdDatabase(connString);
  }
  std::unique_ptr<HeldFile> holdFile(const std::string& connString) override { return real_.holdFile(connString); }

  SqlWatch watch;

 private:
  class Watched final : public SqlConnection {
   public:
    Watched(std::unique_ptr<SqlConnection> real, SqlWatch& watch) : real_(std::move(real)), watch_(watch) {}

    void open(const std::string& connString) override { real_->open(connString); }
    void close() noexcept override { real_->close(); }
    bool isOpen() const override { return real_->isOpen(); }
    std::unique_ptr<Recordset> execute(std::string_view sql) override {
      note(sql);
      return real_->execute(sql);
    }
    std::unique_ptr<Recordset> execute(std::string_view sql, std::span<const SqlValue> parameters) override {
      note(sql, watch_.boundStatements);
      return real_->execute(sql, parameters);
    }
    void begin() override {
      note("begin");
      real_->begin();
    }
    void commit() override {
      note("commit");
      real_->commit();
    }
    void rollback() noexcept override {
      watch_.statements.emplace_back("rollback");
      real_->rollback();
    }
    bool inTransaction() const override { return real_->inTransaction(); }
    void proveWritable() override {
      note("prove writable");
      real_->proveWritable();
    }
    std::int64_t formOfTables() override { return real_->formOfTables(); }
    void setFormOfTables(std::int64_t form) override {
      note("set form of tables");
      real_->setFormOfTables(form);
    }
    bool readOnly() const override { return real_->readOnly(); }

   private:
    static constexpr std::size_t kLongestKept = 2000;

    void note(std::string_view statement) { note(statement, watch_.statements); }
    void note(std::string_view statement, std::vector<std::string>& kept) {
      kept.emplace_back(statement.substr(0, kLongestKept));
      if (watch_.before) {
        const auto before = watch_.before;  // it may set another one
        before(statement);
      }
    }

    std::unique_ptr<SqlConnection> real_;
    SqlWatch& watch_;
  };

  SqlConnectionMaker& real_;
};

}  // namespace tarnwick::testing
