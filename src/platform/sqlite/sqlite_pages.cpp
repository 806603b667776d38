// SPDX-License-Identifier: MIT
#include "platform/sqlite/sqlite_pages.h"

#include <algorithm>
#include <array>

#include "base/errors.h"

namespace tarnwick {
namespace {

constexpr std::int64_t kPiecesOfPage = 4;
constexpr std::size_t kPieceLength = std::size_t{16} << 20U;

constexpr const char* kPieces = "select content from pagePieces where piece >= ?1 and piece < ?2 order by piece";
constexpr const char* kNextPage = "select coalesce(max(piece) / 4, 0) + 1 from pagePieces";
/// A number that no other program takes, the present second and something random in it: what is written ahead is
/// nobody's yet, and whoever finds it there must neither take it for his own nor give the number again.
constexpr const char* kPageAhead = "select (cast(strftime('%s', 'now') as integer) << 20) | (random() & 1048575)";
/// Left behind by a program that was killed, or by a tool that replaces rows. What is less than an hour old may be
/// about to be used.
constexpr const char* kNotOfThisHour = " and (piece / 4) >> 20 < cast(strftime('%s', 'now') as integer) - 3600";

/// What the file's form has; a tool may have added its own, which are to go on.
constexpr const char* kHasOwnTriggersOnly =
    "select count(*) = 2 from sqlite_master where type = 'trigger' and tbl_name = 'siteRows' collate nocase";

/// The last piece takes what is left.
std::string_view pieceOf(std::string_view text, std::int64_t piece) {
  const std::size_t from = static_cast<std::size_t>(piece) * kPieceLength;
  return piece + 1 < kPiecesOfPage ? text.substr(from, kPieceLength) : text.substr(from);
}

std::int64_t piecesFor(std::string_view text) {
  const auto pieces = static_cast<std::int64_t>((text.size() + kPieceLength - 1) / kPieceLength);
  return std::min(pieces, kPiecesOfPage);
}

std::int64_t numberOf(const SqlValue& value) { return value.toInt64(); }

/// Hands the pieces of a page to `take` until it returns false.
template <typename Take>
void readPieces(SqliteDatabase& database, std::int64_t page, Take take) {
  const StatementLoan loan =
      database.prepare({kPieces, {SqlValue(page * kPiecesOfPage), SqlValue((page + 1) * kPiecesOfPage)}, true});
  while (database.step(loan.get())) {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(loan.get(), 0));
    if (bytes == nullptr && sqlite3_column_type(loan.get(), 0) != SQLITE_NULL) {
      throw database.lastError();  // there is no memory for it
    }
    if (!take(std::string_view(bytes, static_cast<std::size_t>(sqlite3_column_bytes(loan.get(), 0))))) {
      return;
    }
  }
}

std::int64_t oneNumber(SqliteDatabase& database, const PlainStatement& statement) {
  const StatementLoan loan = database.prepare(statement);
  return database.step(loan.get()) ? sqlite3_column_int64(loan.get(), 0) : 0;
}

/// A long page takes its time to go, so that the one that gives way to a text stored ahead outlives the transaction.
class TriggersOff {
 public:
  explicit TriggersOff(SqliteDatabase& database) : database_(database) { set(0); }
  ~TriggersOff() { set(1); }
  TriggersOff(const TriggersOff&) = delete;
  TriggersOff& operator=(const TriggersOff&) = delete;

 private:
  void set(int on) { sqlite3_db_config(database_.handle(), SQLITE_DBCONFIG_ENABLE_TRIGGER, on, nullptr); }

  SqliteDatabase& database_;
};

}  // namespace

SqliteStoredText::SqliteStoredText(SqlConnection& connection, SqliteStoredText*& place, std::string_view text,
                                   const std::function<void()>& between)
    : connection_(connection), place_(place), text_(text) {
  try {
    write(between);
  } catch (...) {
    removeUnused();
    throw;
  }
  place_ = this;
}

SqliteStoredText::~SqliteStoredText() { removeUnused(); }

void SqliteStoredText::write(const std::function<void()>& between) {
  for (; pieces_ < piecesFor(text_); ++pieces_) {
    connection_.begin();
    try {
      if (pieces_ == 0) {
        connection_.execute(std::string(kRemoveUnusedPages) + kNotOfThisHour, {});
        page_ = numberOf(connection_.execute(kPageAhead, {})->field(std::size_t{0}));
      }
      connection_.execute(
          "insert into pagePieces (piece, content) values (" + std::to_string(page_ * kPiecesOfPage + pieces_) + ",'",
          pieceOf(text_, pieces_), "')");
      connection_.commit();
    } catch (...) {
      connection_.rollback();
      throw;
    }
    between();
  }
}

void SqliteStoredText::removeUnused() noexcept {
  settle([] {});
  removeUnused(page_, [] {});
}

void SqliteStoredText::settle(const std::function<void()>& between) {
  place_ = nullptr;
  while (!replaced_.empty()) {
    removeUnused(replaced_.back(), between);
    replaced_.pop_back();
  }
}

// The last piece first: as long as one is left, nobody else gives the number away.
void SqliteStoredText::removeUnused(std::int64_t page, const std::function<void()>& between) {
  for (std::int64_t piece = kPiecesOfPage; page != 0 && piece-- > 0;) {
    try {
      removeUnusedPiece(page, piece);
    } catch (const DataAccessError&) {
      return;  // it is removed with the next text that is stored ahead
    }
    between();
  }
}

void SqliteStoredText::removeUnusedPiece(std::int64_t page, std::int64_t piece) {
  if (!connection_.tryBegin()) {
    return;  // nobody is made to wait for that
  }
  try {
    const std::array<SqlValue, 2> values{SqlValue(page), SqlValue(piece)};
    connection_
        .execute(
            "delete from pagePieces where piece = ?1 * 4 + ?2 and not exists "
            "(select 1 from siteRows where comparePage = ?1 or runtimePage = ?1)",
            values)
        ->close();
    connection_.commit();
  } catch (...) {
    connection_.rollback();
    throw;
  }
}

std::string SqlitePages::read(std::int64_t page) {
  std::string text;
  readPieces(database_, page, [&](std::string_view piece) {
    if (piece.size() == kPieceLength && text.empty()) {
      text.reserve(kPieceLength * kPiecesOfPage);
    }
    text.append(piece);
    return true;
  });
  return text;
}

bool SqlitePages::holds(std::int64_t page, std::string_view text) {
  if (page == 0 || text.empty()) {
    return page == 0 && text.empty();
  }
  bool begins = true;
  readPieces(database_, page, [&](std::string_view piece) {
    begins = text.starts_with(piece);
    text.remove_prefix(begins ? piece.size() : 0);
    return begins;
  });
  return begins && text.empty();
}

void SqlitePages::store(const StorePage& command, std::string_view text, SqliteStoredText* ahead) {
  const char* const column = command.compare ? "comparePage" : "runtimePage";
  SqlValue own;
  SqlValue other;
  {
    const StatementLoan site = database_.prepare(
        {"select comparePage, runtimePage from siteRows where idSite = ?1", {SqlValue(command.idSite)}, true});
    if (!database_.step(site.get())) {
      return;
    }
    const auto pageIn = [&](int field) {
      return sqlite3_column_type(site.get(), field) == SQLITE_NULL
                 ? SqlValue()
                 : SqlValue(std::int64_t{sqlite3_column_int64(site.get(), field)});
    };
    own = pageIn(command.compare ? 0 : 1);
    other = pageIn(command.compare ? 1 : 0);
  }
  // What lies ahead was found to be neither of the site's pages before it was written.
  const bool isAhead = ahead != nullptr && ahead->is(text) && isComplete(*ahead);
  if (!isAhead && !own.isNull() && holds(own.toInt64(), text)) {
    return;
  }
  std::int64_t page = isAhead ? ahead->page() : 0;
  if (!isAhead && !text.empty()) {
    const bool shared = !other.isNull() && other != own && holds(other.toInt64(), text);
    page = shared ? other.toInt64() : write(text);
  }
  const PlainStatement update{std::string("update siteRows set ") + column + " = ?1 where idSite = ?2",
                              {SqlValue(page), SqlValue(command.idSite)},
                              true};
  if (isAhead && !own.isNull() && oneNumber(database_, {kHasOwnTriggersOnly}) != 0) {
    const TriggersOff later(database_);
    database_.run(update);
    ahead->replaces(own.toInt64());
  } else {
    database_.run(update);
  }
}

bool SqlitePages::isComplete(const SqliteStoredText& ahead) {
  const SqlValue first(ahead.page() * kPiecesOfPage);
  return oneNumber(database_,
                   {"select count(*) from pagePieces where piece >= ?1 and piece < ?1 + 4", {first}, true}) ==
         ahead.pieces();
}

std::int64_t SqlitePages::write(std::string_view text) {
  const std::int64_t page = oneNumber(database_, {kNextPage, {}, true});
  for (std::int64_t piece = 0; piece < piecesFor(text); ++piece) {
    database_.run({"insert into pagePieces (piece, content) values (?1, ?2)",
                   {SqlValue(page * kPiecesOfPage + piece), pieceOf(text, piece)},
                   true});
  }
  return page;
}

}  // namespace tarnwick
