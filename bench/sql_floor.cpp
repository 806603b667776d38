// SPDX-License-Identifier: MIT
// The floor of recording: the statements that a check needs, and nothing else, on a database of the program.
//
//   sql_floor DATABASE [CHANGED-EVERY]
//
// Every site of the file is checked once against the page that its baseline is; with CHANGED-EVERY 10 each tenth page
// differs, as in the benchmark's server. The statements are prepared once and their values bound. They promise what the
// program promises: up to sixteen checks are durable together, a failure at once, since its alerts wait for that; an
// unchanged page is not written, a changed one is, through the view that every tool writes to. What is left is SQLite's
// own work.

#include <sqlite3.h>

#include <array>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr int kTogether = 16;
constexpr std::int64_t kPiecesOfPage = 4;

class Statement {
 public:
  Statement(sqlite3* database, const char* sql) : database_(database) {
    if (sqlite3_prepare_v3(database, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement_, nullptr) != SQLITE_OK) {
      throw std::runtime_error(sqlite3_errmsg(database));
    }
  }
  ~Statement() { sqlite3_finalize(statement_); }
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  void bind(int number, std::string_view text) {
    sqlite3_bind_text64(statement_, number, text.data(), text.size(), SQLITE_STATIC, SQLITE_UTF8);
  }
  void bind(int number, std::int64_t value) { sqlite3_bind_int64(statement_, number, value); }

  bool step() {
    const int result = sqlite3_step(statement_);
    if (result != SQLITE_ROW && result != SQLITE_DONE) {
      throw std::runtime_error(sqlite3_errmsg(database_));
    }
    return result == SQLITE_ROW;
  }
  void done() { sqlite3_reset(statement_); }
  template <typename... Values>
  void run(const Values&... values) {
    int number = 0;
    (bind(++number, values), ...);
    while (step()) {
    }
    done();
  }

  std::string_view text(int column) const {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
    return {bytes, static_cast<std::size_t>(sqlite3_column_bytes(statement_, column))};
  }
  std::int64_t number(int column) const { return sqlite3_column_int64(statement_, column); }

 private:
  sqlite3* database_;
  sqlite3_stmt* statement_ = nullptr;
};

std::string now() {
  const std::time_t time = std::time(nullptr);
  std::array<char, 32> text{};
  std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", std::localtime(&time));
  return text.data();
}

void checkAll(sqlite3* database, std::int64_t changedEvery) {
  Statement list(database, "select idSite from siteRows where active is true order by idSite");
  std::vector<std::int64_t> ids;
  while (list.step()) {
    ids.push_back(list.number(0));
  }
  list.done();

  Statement begin(database, "begin immediate");
  Statement commit(database, "commit");
  Statement site(database, "select url, comparePage from siteRows where idSite = ?1");
  Statement pieces(database, "select content from pagePieces where piece >= ?1 and piece < ?2 order by piece");
  Statement latest(database, "update sites set content_runtime = ?2 where idSite = ?1");
  Statement logging(database, "select clogs from control where id = 1");
  Statement log(
      database,
      "insert into log (idSite, url, status, errCode, errDescription, content) values (?1, ?2, ?3, 0, '', ?4)");
  Statement stamp(database, "update siteRows set lastChecked = ?2 where idSite = ?1");
  Statement status(database, "update siteRows set status = ?2 where idSite = ?1");
  Statement up(database, "update siteRows set success = success + 1 where idSite = ?1");
  Statement down(database, "update siteRows set failure = failure + 1 where idSite = ?1");
  int together = 0;
  for (const std::int64_t id : ids) {
    if (together == 0) {
      begin.run();
    }
    site.bind(1, id);
    site.step();
    const std::string url(site.text(0));
    const std::int64_t stored = site.number(1);
    site.done();
    pieces.bind(1, stored * kPiecesOfPage);
    pieces.bind(2, (stored + 1) * kPiecesOfPage);
    std::string baseline;
    while (pieces.step()) {
      baseline += pieces.text(0);
    }
    pieces.done();
    std::string page = baseline;
    const bool changed = changedEvery > 0 && id % changedEvery == 0;
    if (changed) {
      page.replace(page.size() - 8, 8, "changed!");
    }
    const bool passed = page == baseline;
    if (!passed) {
      latest.run(id, std::string_view(page));
    }
    logging.step();
    logging.done();
    log.run(id, std::string_view(url), std::int64_t{passed}, std::string_view(passed ? "" : page));
    stamp.run(id, std::string_view(now()));
    status.run(id, std::int64_t{passed});
    (passed ? up : down).run(id);
    if (++together == kTogether || !passed) {
      commit.run();
      together = 0;
    }
  }
  if (together > 0) {
    commit.run();
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "Usage: sql_floor DATABASE [CHANGED-EVERY]\n";
    return 2;
  }
  sqlite3* raw = nullptr;
  const int opened = sqlite3_open_v2(argv[1], &raw, SQLITE_OPEN_READWRITE, nullptr);
  const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> database(raw, &sqlite3_close);
  try {
    if (opened != SQLITE_OK) {
      throw std::runtime_error(sqlite3_errmsg(raw));
    }
    sqlite3_exec(raw, "pragma journal_mode = wal; pragma synchronous = full", nullptr, nullptr, nullptr);
    checkAll(raw, argc > 2 ? std::atoll(argv[2]) : 0);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
  return 0;
}
