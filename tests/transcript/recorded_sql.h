// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "platform/sql_connection.h"
#include "transcript/transcript.h"

namespace tarnwick::testing {

/// Connections that carry out everything on real ones and write down what they are handed, whole.
class RecordedConnections final : public SqlConnectionMaker {
 private:
  /// What `action` gives; what it raises is written down on its way.
  template <typename Action>
  static auto told(Transcript& transcript, Action action) {
    try {
      return action();
    } catch (const std::exception& error) {
      transcript.add("sql!", error.what());
      throw;
    }
  }

 public:
  RecordedConnections(SqlConnectionMaker& real, Transcript& transcript) : real_(real), transcript_(transcript) {}

  std::unique_ptr<SqlConnection> makeSqlConnection() override {
    return std::make_unique<Connection>(real_.makeSqlConnection(), transcript_);
  }
  std::unique_ptr<HeldDatabase> holdDatabase(const std::string& connString) override {
    transcript_.add("sql", "(hold) " + connString);
    return told(transcript_, [&] { return std::make_unique<Held>(real_.holdDatabase(connString), transcript_); });
  }
  std::unique_ptr<HeldFile> holdFile(const std::string& connString) override { return real_.holdFile(connString); }

 private:
  class Connection final : public SqlConnection {
   public:
    Connection(std::unique_ptr<SqlConnection> real, Transcript& transcript)
        : real_(std::move(real)), transcript_(transcript) {}

    void open(const std::string& connString) override {
      transcript_.add("sql", "(open) " + connString);
      told(transcript_, [&] { real_->open(connString); });
    }
    void close() noexcept override {
      transcript_.add("sql", "(close)");
      real_->close();
    }
    bool isOpen() const override { return real_->isOpen(); }
    std::unique_ptr<Recordset> execute(std::string_view sql) override {
      transcript_.add("sql", sql);
      return told(transcript_, [&] { return real_->execute(sql); });
    }
    void begin() override {
      transcript_.add("sql", "(begin)");
      told(transcript_, [&] { real_->begin(); });
    }
    void commit() override {
      transcript_.add("sql", "(commit)");
      told(transcript_, [&] { real_->commit(); });
    }
    void rollback() noexcept override {
      transcript_.add("sql", "(rollback)");
      real_->rollback();
    }
    bool inTransaction() const override { return real_->inTransaction(); }
    void proveWritable() override {
      transcript_.add("sql", "(prove writable)");
      told(transcript_, [&] { real_->proveWritable(); });
    }
    // What serves the file's own form, and tables of the program's own, is no part of a day.
    std::unique_ptr<Recordset> execute(std::string_view sql, std::span<const SqlValue> parameters) override {
      return real_->execute(sql, parameters);
    }
    std::int64_t formOfTables() override { return real_->formOfTables(); }
    void setFormOfTables(std::int64_t form) override { real_->setFormOfTables(form); }
    bool readOnly() const override { return real_->readOnly(); }

   private:
    std::unique_ptr<SqlConnection> real_;
    Transcript& transcript_;
  };

  class Held final : public HeldDatabase {
   public:
    Held(std::unique_ptr<HeldDatabase> real, Transcript& transcript)
        : real_(std::move(real)), transcript_(transcript) {}
    ~Held() override { transcript_.add("sql", "(let go)"); }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;

    void read(const ByteSink& sink) override {
      transcript_.add("sql", "(read whole)");
      told(transcript_, [&] { real_->read(sink); });
    }
    void compactInto(const std::string& destination) override {
      transcript_.add("sql", "(compact into) " + destination);
      told(transcript_, [&] { real_->compactInto(destination); });
    }

   private:
    std::unique_ptr<HeldDatabase> real_;
    Transcript& transcript_;
  };

  SqlConnectionMaker& real_;
  Transcript& transcript_;
};

}  // namespace tarnwick::testing
