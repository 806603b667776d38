// SPDX-License-Identifier: MIT
#include "base/sql_value.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

#include "base/errors.h"
#include "base/text.h"

namespace tarnwick {
namespace {

double numberIn(std::string_view text) {
  text = trimmed(text, " ");
  double number = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = fault == std::errc{} && end == text.data() + text.size();
  return whole ? number : 0;
}

std::int64_t clampedInt64(double number) {
  constexpr double kEdge = 9223372036854775808.0;
  if (std::isnan(number)) {
    return 0;
  }
  if (number >= kEdge) {
    return std::numeric_limits<std::int64_t>::max();
  }
  if (number < -kEdge) {
    return std::numeric_limits<std::int64_t>::min();
  }
  return static_cast<std::int64_t>(number);
}

}  // namespace

std::string SqlValue::toText() const& {
  if (const auto* flag = std::get_if<bool>(&value_)) {
    return *flag ? "True" : "False";
  }
  if (const auto* whole = std::get_if<std::int64_t>(&value_)) {
    return std::to_string(*whole);
  }
  if (const auto* number = std::get_if<double>(&value_)) {
    std::array<char, 64> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), *number);
    return {text.data(), result.ptr};
  }
  if (const auto* text = std::get_if<std::string>(&value_)) {
    return *text;
  }
  return {};
}

std::string SqlValue::toText() && {
  if (auto* text = std::get_if<std::string>(&value_)) {
    return std::move(*text);
  }
  return std::as_const(*this).toText();
}

std::string SqlValue::toTableText() const& { return isNull() ? kNullText : toText(); }

std::string SqlValue::toTableText() && { return isNull() ? kNullText : std::move(*this).toText(); }

bool SqlValue::toBool() const {
  if (const auto* flag = std::get_if<bool>(&value_)) {
    return *flag;
  }
  if (const auto* whole = std::get_if<std::int64_t>(&value_)) {
    return *whole != 0;
  }
  if (const auto* number = std::get_if<double>(&value_)) {
    return *number != 0;
  }
  if (const auto* text = std::get_if<std::string>(&value_)) {
    return equalsIgnoringCase(*text, "true") || numberIn(*text) != 0;
  }
  return false;
}

std::int64_t SqlValue::toInt64() const {
  if (const auto* flag = std::get_if<bool>(&value_)) {
    return *flag ? 1 : 0;
  }
  if (const auto* whole = std::get_if<std::int64_t>(&value_)) {
    return *whole;
  }
  if (const auto* number = std::get_if<double>(&value_)) {
    return clampedInt64(*number);
  }
  if (const auto* text = std::get_if<std::string>(&value_)) {
    return clampedInt64(numberIn(*text));
  }
  return 0;
}

std::int16_t SqlValue::toInt16(const std::string& what) const { return checkedInt16(toInt64(), what); }

std::int32_t SqlValue::toInt32(const std::string& what) const {
  const std::int64_t value = toInt64();
  if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max()) {
    throw OverflowError("Overflow: " + what + " is " + std::to_string(value) + ", which does not fit 32 bits.");
  }
  return static_cast<std::int32_t>(value);
}

std::int16_t checkedInt16(std::int64_t value, const std::string& what) {
  if (value < std::numeric_limits<std::int16_t>::min() || value > std::numeric_limits<std::int16_t>::max()) {
    throw OverflowError("Overflow: " + what + " is " + std::to_string(value) +
                        ", which is outside the range of -32768 to 32767.");
  }
  return static_cast<std::int16_t>(value);
}

std::int16_t siteIdFromText(const std::string& text) { return SqlValue(text).toInt16("the site id " + text); }

}  // namespace tarnwick
