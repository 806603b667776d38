// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sqlite/sqlite_database.h"

namespace tarnwick {

/// Several changes as one: all of them stay after `keep`, none otherwise. Works inside a transaction and without.
class AtomicChange {
 public:
  explicit AtomicChange(SqliteDatabase& database) : database_(database) {
    database_.run(PlainStatement{"savepoint atomic_change", {}, true});
  }
  ~AtomicChange() {
    if (!kept_) {
      sqlite3_exec(database_.handle(), "rollback to atomic_change; release atomic_change", nullptr, nullptr, nullptr);
    }
  }
  AtomicChange(const AtomicChange&) = delete;
  AtomicChange& operator=(const AtomicChange&) = delete;

  void keep() {
    database_.run(PlainStatement{"release atomic_change", {}, true});
    kept_ = true;
  }

 private:
  SqliteDatabase& database_;
  bool kept_ = false;
};

}  // namespace tarnwick
