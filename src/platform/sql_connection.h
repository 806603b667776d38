// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "base/sql_value.h"
#include "platform/file_system.h"

namespace tarnwick {

/// The rows that a statement returned, read one after the other. Holds the database's read lock until it is closed
/// or destroyed, so it lives no longer than the procedure that reads it.
class Recordset {
 public:
  virtual ~Recordset() = default;

  /// True when there is no current row: past the last one, no row at all, or closed.
  virtual bool eof() const = 0;
  /// Goes back to the first row.
  virtual void moveFirst() = 0;
  virtual void moveNext() = 0;
  virtual std::size_t fieldCount() const = 0;
  /// The name of field `index` (from 0): its alias, or the column's name as the table spells it.
  virtual std::string fieldName(std::size_t index) const = 0;
  /// The current row's field; a column declared yes/no gives a yes/no. Raises DataAccessError at end of file.
  virtual SqlValue field(std::size_t index) const = 0;
  /// The current row's field of that name, in any letter case; raises DataAccessError when there is none.
  virtual SqlValue field(std::string_view name) const = 0;
  /// Whether that field is `text`, byte for byte; a Null is an empty one. For pages, which need no copy for it.
  virtual bool holds(std::string_view name, std::string_view text) const { return field(name).toText() == text; }
  virtual void close() noexcept = 0;
};

/// A text that is stored before the statement that names it; see `SqlConnection::storeAhead`.
class StoredText {
 public:
  virtual ~StoredText() = default;

  /// The text is not needed any more. Removes the page that has given way to it, a part at a time, with `between`
  /// called after each; otherwise that is done at the end of this object's life, at once. What another program's lock
  /// or a fault keeps from it is removed later. REQUIRES: no transaction.
  virtual void settle(const std::function<void()>& between) = 0;
};

/// A connection to one database file. Statements are plain SQL text in the program's own dialect: quoted texts may
/// hold any bytes. Every failure raises DataAccessError.
class SqlConnection {
 public:
  virtual ~SqlConnection() = default;

  /// Opens the file that `connString` names after "Data Source=". The file must exist; none is created.
  virtual void open(const std::string& connString) = 0;
  virtual void close() noexcept = 0;
  virtual bool isOpen() const = 0;

  /// Runs one statement; one without rows gives a recordset at end of file.
  virtual std::unique_ptr<Recordset> execute(std::string_view sql) = 0;

  /// Runs one statement of SQLite's own SQL as it stands, without the dialect: `?1` in it is the first of `parameters`,
  /// and so on; there are exactly as many. A yes/no is stored as 1 or 0, a text whatever bytes it holds.
  virtual std::unique_ptr<Recordset> execute(std::string_view sql, std::span<const SqlValue> parameters) = 0;

  /// Runs the statement that `before`, `text` with its quotes doubled and `behind` make, where quotes stand around the
  /// text, and which does not copy it: a page may be long. Nothing, with nothing done, from a connection that takes
  /// whole statements only.
  virtual std::unique_ptr<Recordset> execute(std::string_view /*before*/, std::string_view /*text*/,
                                             std::string_view /*behind*/) {
    return nullptr;
  }

  /// Writes a long text before the statement that stores it as a site's page, a part at a time, with `between` called
  /// after each, so that the transaction of that statement, which must name the text at this very place during the
  /// returned object's life, is a short one. Nothing where that is not possible. REQUIRES: no transaction.
  virtual std::unique_ptr<StoredText> storeAhead(std::string_view /*text*/, const std::function<void()>& /*between*/) {
    return nullptr;
  }

  /// A number that is another one as soon as somebody else may have changed the database since it was asked for last,
  /// and the same as long as nobody has. It may be asked for every second: while nothing happens that costs next to
  /// nothing. That the file was exchanged for another one is then noticed within seconds.
  virtual std::int64_t changesOfOthers() {
    const auto rows = execute("pragma data_version", {});  // https://www.sqlite.org/pragma.html#pragma_data_version
    return rows->eof() ? 0 : rows->field(std::size_t{0}).toInt64();
  }

  /// Begin and end a transaction that takes the write lock at once. They do not nest.
  virtual void begin() = 0;
  /// Begins one at once, or not at all: false while another program has the write lock. A connection that knows only
  /// `begin` waits as that does.
  virtual bool tryBegin() {
    begin();
    return true;
  }
  virtual void commit() = 0;
  /// Takes back everything since `begin`; harmless when the database has already done so itself. Where that is
  /// impossible the connection is closed, which does it too.
  virtual void rollback() noexcept = 0;
  virtual bool inTransaction() const = 0;

  /// Stores something for good that changes no record: raises DataAccessError when nothing can be stored just now.
  /// REQUIRES: no transaction.
  virtual void proveWritable() = 0;

  /// Which form the tables of the file have: a number of 32 bits that it carries (SQLite's `user_version`), 0 in one
  /// that was never given any. Compaction keeps it. Setting it belongs to the transaction it is done in; raises
  /// OverflowError for a number of more bits.
  virtual std::int64_t formOfTables() = 0;
  virtual void setFormOfTables(std::int64_t form) = 0;

  /// Whether the file that is open can only be read, since its permissions or its disk allow no more. One that lies in
  /// a folder without room for the log beside it is not known to be so until it is written to. False when closed.
  virtual bool readOnly() const = 0;
};

/// A file, sound or not, that no connection has open as a database, and that is kept so, by every program, for this
/// object's life: it can be copied and replaced as a whole.
class HeldFile {
 public:
  virtual ~HeldFile() = default;

  /// Hands all bytes of the file to `sink`, piece by piece from its start. Raises DataAccessError, and whatever the
  /// sink raises. The file must be read here and nowhere else: on some systems opening and closing it a second time
  /// would end the hold.
  virtual void read(const ByteSink& sink) = 0;
};

/// A held file that is a sound database. Nothing that belongs to it lies in a file beside it.
class HeldDatabase : public HeldFile {
 public:
  /// Writes the database without its unused space to the file that `destination`, a connection string, names, and
  /// checks what was written. The file must not exist; it gets this database's permissions. Raises DataAccessError, and
  /// may leave a partial file then.
  virtual void compactInto(const std::string& destination) = 0;
};

/// Makes connections.
class SqlConnectionMaker {
 public:
  virtual ~SqlConnectionMaker() = default;
  virtual std::unique_ptr<SqlConnection> makeSqlConnection() = 0;

  /// Holds the file that `connString` names. Raises DataAccessError when it is missing or damaged, and when a
  /// connection of this program or another one has it open; it is as it was then.
  virtual std::unique_ptr<HeldDatabase> holdDatabase(const std::string& connString) = 0;

  /// The same for a file that may be damaged, or no database at all; what lies beside it is left as it is.
  virtual std::unique_ptr<HeldFile> holdFile(const std::string& connString) = 0;
};

}  // namespace tarnwick
