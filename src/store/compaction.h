// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "platform/file_system.h"
#include "platform/prompts.h"
#include "platform/sql_connection.h"
#include "store/database.h"

namespace tarnwick {

/// Shrinks the database file, and keeps a copy of it as it was before.
class Compaction {
 public:
  /// What `databases` makes must be of the kind that `database` uses.
  Compaction(Database& database, SqlConnectionMaker& databases, FileSystem& files, Prompts& prompts)
      : db_(database), databases_(databases), files_(files), prompts_(prompts) {}

  /// Copies "tarnwick.mdb" to "backup.mdb", compacts it into "temp.mdb", and puts a copy of that in its place; the
  /// three lie in the program folder. "temp.mdb" stays until the next compaction. The connection is closed meanwhile
  /// and open again on return. At every moment "tarnwick.mdb" is a whole database with all rows.
  ///
  /// False, with "tarnwick.mdb" untouched, when no backup can be made - also because another program has the database
  /// open -, after a box that tells why; and, without a box, when the compaction fails. True otherwise, even when the
  /// compacted file could not be put in place. Raises DataAccessError only when the database cannot be opened again.
  bool compact();
  /// Whether the last compaction that succeeded has put its file in place; a full disk may keep it from that.
  bool compactedInPlace() const { return inPlace_; }

  /// Removes what a compaction or a restoration that was killed has left behind: whole copies of the list, passwords
  /// included. Nothing that is still needed: none is at work while the database is open here. Where the folder may not
  /// be changed it all stays.
  void removeRemains() noexcept;

  /// The connection string with every "tarnwick.mdb", in these letters, replaced by "temp.mdb".
  static std::string destinationOf(std::string connString);

 private:
  /// What became of the steps that need the connection closed.
  struct Outcome {
    bool compacted = false;
    /// Why there is no backup; empty when there is one.
    std::string noBackup;
  };

  Outcome compactClosed();
  void backUp(HeldDatabase& held);
  bool compactToTemp(HeldDatabase& held);
  void putInPlace(std::unique_ptr<HeldDatabase> held);
  std::string inFolder(const std::string& name) const { return db_.programFolder() + "/" + name; }

  Database& db_;
  SqlConnectionMaker& databases_;
  FileSystem& files_;
  Prompts& prompts_;
  bool inPlace_ = false;
};

}  // namespace tarnwick
