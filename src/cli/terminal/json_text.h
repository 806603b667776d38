// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "cli/terminal/console.h"
#include "cli/terminal/json_value.h"

namespace tarnwick {

/// Bytes as JSON: a string when they are UTF-8, otherwise an object whose one member "base64" holds them.
JsonValue jsonText(std::string_view bytes);
/// The bytes that `jsonText` made that of; raises std::runtime_error when `value` is neither form.
std::string bytesOfJson(const JsonValue& value);
/// A text that is a number of JSON as that number, any other as `jsonText`.
JsonValue jsonNumber(std::string_view text);

/// The text of a value, on one line.
std::string jsonLine(JsonValue value);
/// Writes a JSON value and a line end.
void sayJson(Console& console, JsonValue value);

/// Writes an array of JSON values, one a line, without holding them all.
class JsonArray {
 public:
  explicit JsonArray(Console& console) : console_(console) {}
  void add(JsonValue value);
  void end();

 private:
  Console& console_;
  bool begun_ = false;
};

}  // namespace tarnwick
