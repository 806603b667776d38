// SPDX-License-Identifier: MIT
#include "store/settings_and_log.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <string_view>

#include "base/text.h"
#include "platform/transfer_control.h"
#include "store/first_field.h"

namespace tarnwick {
namespace {

/// What kind of setting `key` is; a text where it is none of the program's own.
FieldKind kindOf(const Fields& fields, const std::string& key) {
  const auto field = std::ranges::find_if(
      fields.settings, [&](const SettingField& setting) { return equalsIgnoringCase(setting.name, key); });
  return field != fields.settings.end() ? field->kind : FieldKind::text;
}

}  // namespace

SqlValue SettingsAndLog::getControl(const std::string& key) {
  return firstField(db_, joinSql("select ", sqlQuote(key), " from control ", "where id = 1"))
      .value_or(SqlValue(std::string()));
}

void SettingsAndLog::writeControl(const std::string& key, const std::string& quotedValue) {
  const FieldKind kind = kindOf(fields_, key);
  // Yes/no settings go into the statement bare, all others quoted; the database makes a number of a quoted number.
  const std::string_view delimiter = kind == FieldKind::flag ? "" : "'";
  const auto write = [&](std::string_view around, std::string_view value) {
    db_.execute(joinSql("update control set ", sqlQuote(key), " = ", around, value, around, " where id = 1"));
  };
  try {
    write(delimiter, quotedValue);
  } catch (const DataAccessError&) {
    if (kind != FieldKind::seconds || !quotedValue.empty()) {
      throw;
    }
    // A list that was laid down by an older program takes no empty text for a number; a Null counts for the same.
    write("", "null");
  }
}

void SettingsAndLog::storeSettings(const std::vector<Setting>& settings) {
  Transaction whole(db_);
  if (getControl("id") == SqlValue(std::string())) {
    throw DataAccessError("The database " + db_.dbPath() +
                              " has no settings row, so nothing could be stored. Put back a good copy, for instance "
                              "backup.mdb.",
                          "");
  }
  for (const Setting& setting : settings) {
    try {
      if (const bool* const flag = std::get_if<bool>(&setting.value)) {
        setControl(setting.key, *flag);
      } else {
        setControl(setting.key, std::get<std::string>(setting.value));
      }
    } catch (const DataAccessError& error) {
      throw SettingRefused(setting.key, error);
    }
  }
  whole.commit();
}

std::chrono::seconds SettingsAndLog::requestTimeout() {
  const std::chrono::seconds timeout(getControl("timeout").toInt32("the setting timeout"));
  return timeout > std::chrono::seconds::zero() ? timeout : kDefaultRequestTimeout;
}

void SettingsAndLog::addLog(std::int16_t idSite, const std::string& url, bool status, std::int32_t errCode,
                            const std::string& errDescription, std::string_view content) {
  if (!getControl("clogs").toBool()) {
    return;
  }
  db_.execute(joinSql("insert into log (idSite,url,status,errCode,errDescription,content) values ", "(",
                      sqlQuote(idSite), ",", "'", sqlQuote(url), "'", ",", sqlQuote(status), ",", sqlQuote(errCode),
                      ",", "'", sqlQuote(errDescription), "',", "'"),
              content, "')");
}

void SettingsAndLog::clearLog() {
  try {
    db_.execute("delete from log");
    return;
  } catch (const DataAccessError& error) {
    if (!error.forWantOfRoom() || db_.conn().inTransaction()) {
      throw;
    }
  }
  clearLogByPieces();
}

// Whoever clears the log on a full disk wants room. Few rows at a time change few pages of the file, and each change
// takes the place of the one before in the log beside the database.
void SettingsAndLog::clearLogByPieces() {
  const auto run = [this](std::string_view sql, std::span<const SqlValue> parameters = {}) {
    return db_.conn().execute(sql, parameters);
  };
  std::int64_t rows = 256;
  while (!run("select 1 from log limit 1")->eof()) {
    const SqlValue most(rows);
    try {
      run("delete from log where rowid in (select rowid from log limit ?1)", {&most, 1})->close();
    } catch (const DataAccessError& error) {
      if (!error.forWantOfRoom() || rows == 1) {
        throw;
      }
      rows /= 4;
    }
    run("pragma wal_checkpoint(passive)")->close();
  }
  giveRoomBack();
}

void SettingsAndLog::giveRoomBack() noexcept {
  const auto answer = [this](std::string_view sql) { return db_.conn().execute(sql, {})->field(std::size_t{0}); };
  const auto run = [this](std::string_view sql) { db_.conn().execute(sql, {})->close(); };
  try {
    if (answer("pragma freelist_count").toInt64() == 0) {
      return;
    }
    // The temporary files of a small list are kept off the disk.
    if (answer("select page_count - freelist_count < 16384 from pragma_page_count, pragma_freelist_count").toBool()) {
      run("pragma temp_store = memory");
    }
    run("vacuum");
    run("pragma wal_checkpoint(truncate)");
  } catch (const DataAccessError&) {
    // There is too little of it even for that: it is used again for what is recorded next.
  }
}

void SettingsAndLog::Test() {
  db_.execute("delete from test");
  for (int i = 1; i <= 10; ++i) {
    const std::string number = sqlQuote(i);
    db_.execute(joinSql("insert into test ", "(tname,tvalue)", " values ", "(", "'", "tname", number, "'", ",", "'",
                        "tvalue-", number, number, "'", ")"));
  }
  const auto rows = db_.query("select id,tname,tvalue from test");
  for (; !rows->eof(); rows->moveNext()) {
    for (const std::string_view column : {"id", "tname", "tvalue"}) {
      static_cast<void>(rows->field(column));  // a column that cannot be read raises the error that is looked for
    }
  }
  rows->close();
}

}  // namespace tarnwick
