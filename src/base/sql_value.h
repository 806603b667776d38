// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <variant>

#include "base/nothing.h"

namespace tarnwick {

/// What a Null is in the row tables.
inline constexpr const char* kNullText = "NULL";

/// One field of a recordset: Null, a yes/no, a whole number, a number, or a byte string (text and dates).
class SqlValue {
 public:
  SqlValue() = default;
  explicit SqlValue(bool value) : value_(value) {}
  explicit SqlValue(std::int64_t value) : value_(value) {}
  explicit SqlValue(double value) : value_(value) {}
  explicit SqlValue(std::string value) : value_(std::move(value)) {}

  bool isNull() const { return std::holds_alternative<Nothing>(value_); }

  /// The value as the program writes it: "True" or "False", a decimal number, the bytes of a text; empty for Null.
  std::string toText() const&;
  /// The same of a value that is not needed any more: a page of many megabytes is not copied.
  std::string toText() &&;
  /// The same, but `kNullText` for Null: the form of the row tables.
  std::string toTableText() const&;
  std::string toTableText() &&;

  /// True for a true yes/no, any number but 0, and the texts "True" (any letter case) and non-zero numbers.
  /// Null and everything else is false.
  bool toBool() const;

  /// The value as a whole number of 16 (32) bits; Null, and a text that is no number, is 0.
  /// `what` names the value in the message of the OverflowError that is raised when it does not fit.
  std::int16_t toInt16(const std::string& what) const;
  std::int32_t toInt32(const std::string& what) const;
  /// The value as a whole number, fractions cut; Null, and a text that is no number, is 0.
  std::int64_t toInt64() const;

  using Held = std::variant<Nothing, bool, std::int64_t, double, std::string>;
  /// The value as it is held; the first of the kinds is Null.
  const Held& held() const { return value_; }

  bool operator==(const SqlValue&) const = default;

 private:
  Held value_;
};

/// Narrows `value` to 16 bits; raises OverflowError naming `what` and the value when it does not fit.
std::int16_t checkedInt16(std::int64_t value, const std::string& what);

/// Reads a site id from a row table's text; raises OverflowError naming the id when it does not fit 16 bits.
std::int16_t siteIdFromText(const std::string& text);

}  // namespace tarnwick
