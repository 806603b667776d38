// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "base/errors.h"
#include "store/database.h"
#include "store/fields.h"
#include "store/sql_quote.h"

namespace tarnwick {

/// A setting to be stored: a column's name, and a text or a yes/no.
struct Setting {
  std::string key;
  FieldValue value;
  bool operator==(const Setting&) const = default;
};

/// A setting that could not be stored.
class SettingRefused : public DataAccessError {
 public:
  SettingRefused(std::string key, const DataAccessError& error) : DataAccessError(error), key_(std::move(key)) {}

  /// Which one.
  const std::string& key() const noexcept { return key_; }

 private:
  std::string key_;
};

/// The program's settings, which are the columns of the one row of table `control`, and the log of check results.
/// Nothing is cached: a changed setting takes effect at its next use. Every failed statement raises DataAccessError.
class SettingsAndLog {
 public:
  explicit SettingsAndLog(Database& database, const Fields& fields = programFields())
      : db_(database), fields_(fields) {}

  /// The setting `key`, a column's name in any letter case; an empty text when the settings row is missing. Raises
  /// DataAccessError when there is no such column.
  SqlValue getControl(const std::string& key);

  /// Vocabulary: no front end calls it.
  /// Writes the setting `key`: a text, a yes/no or a whole number. Raises DataAccessError when there is no such
  /// column or it cannot hold the value; the stored value stays then.
  template <typename Value>
  requires std::integral<Value> || std::convertible_to<const Value&, std::string_view>
  void setControl(const std::string& key, const Value& value) { writeControl(key, sqlQuote(value)); }

  /// Writes several settings in the order given: all of them or, when one cannot be stored, none. Raises
  /// SettingRefused then, and DataAccessError when the database cannot be changed or has no settings row.
  void storeSettings(const std::vector<Setting>& settings);

  /// The setting `timeout`; 60 seconds when it is Null, empty, 0 or less. Raises OverflowError past 32 bits.
  std::chrono::seconds requestTimeout();

  /// Adds a check's result to the log when the setting `clogs` is true; its time is filled in by the database.
  void addLog(std::int16_t idSite, const std::string& url, bool status, std::int32_t errCode,
              const std::string& errDescription, std::string_view content);

  /// Empties the log: all of it or nothing, but on a disk that is too full for that piece by piece.
  void clearLog();
  /// Gives what is free in the database file back to the disk, as far as that has the room for it.
  void giveRoomBack() noexcept;

  /// Vocabulary: no front end calls it.
  /// Writes ten rows to the scratch table `test` and reads them back.
  void Test();

 private:
  void clearLogByPieces();
  void writeControl(const std::string& key, const std::string& quotedValue);

  Database& db_;
  const Fields& fields_;
};

}  // namespace tarnwick
