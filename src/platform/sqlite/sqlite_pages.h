// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/sql_connection.h"
#include "platform/sqlite/sql_dialect.h"
#include "platform/sqlite/sqlite_database.h"

namespace tarnwick {

/// Removes the pages that no site has, also those that somebody has just written ahead.
inline constexpr const char* kRemoveUnusedPages =
    "delete from pagePieces where piece / 4 not in (select comparePage from siteRows where comparePage > 0 "
    "union select runtimePage from siteRows where runtimePage > 0)";

/// A text that is written before the statement that stores it, piece by piece, each in a transaction of its own. What
/// no site has taken by the end of this object's life is removed.
class SqliteStoredText final : public StoredText {
 public:
  /// Calls `between` after each piece; `place` names this object from then on, for its life. Raises DataAccessError.
  SqliteStoredText(SqlConnection& connection, SqliteStoredText*& place, std::string_view text,
                   const std::function<void()>& between);
  ~SqliteStoredText() override;
  SqliteStoredText(const SqliteStoredText&) = delete;
  SqliteStoredText& operator=(const SqliteStoredText&) = delete;

  /// Whether it is the text at this very place.
  bool is(std::string_view text) const { return text.data() == text_.data() && text.size() == text_.size(); }
  std::int64_t page() const { return page_; }
  std::int64_t pieces() const { return pieces_; }
  /// `page` has given way to this text, and waits to be removed.
  void replaces(std::int64_t page) { replaced_.push_back(page); }
  void settle(const std::function<void()>& between) override;

 private:
  void write(const std::function<void()>& between);
  void removeUnused() noexcept;
  void removeUnused(std::int64_t page, const std::function<void()>& between);
  void removeUnusedPiece(std::int64_t page, std::int64_t piece);

  SqlConnection& connection_;
  SqliteStoredText*& place_;
  std::string_view text_;
  std::int64_t page_ = 0;
  std::int64_t pieces_ = 0;
  std::vector<std::int64_t> replaced_;
};

/// The pages of the sites where they lie apart, in the table `pagePieces`, and `siteRows` holds their numbers (see
/// assets/schema.sql). Page 0 is the empty one. Everything raises DataAccessError.
class SqlitePages {
 public:
  explicit SqlitePages(SqliteDatabase& database) : database_(database) {}

  std::string read(std::int64_t page);
  /// Whether the page is this text, byte for byte.
  bool holds(std::int64_t page, std::string_view text);

  /// Stores a site's page: nothing where it is the one that is stored there, a number where the site's other page is
  /// the same or the text lies `ahead`, else its bytes. REQUIRES: a transaction.
  void store(const StorePage& command, std::string_view text, SqliteStoredText* ahead);

 private:
  bool isComplete(const SqliteStoredText& ahead);
  std::int64_t write(std::string_view text);

  SqliteDatabase& database_;
};

}  // namespace tarnwick
