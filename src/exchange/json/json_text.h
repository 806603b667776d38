// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "exchange/json/json_value.h"

namespace tarnwick {

/// Bytes as JSON: a string when they are UTF-8, otherwise an object whose one member "base64" holds them.
JsonValue jsonText(std::string_view bytes);
/// The bytes that `jsonText` made that of; raises std::runtime_error when `value` is neither form.
std::string bytesOfJson(const JsonValue& value);
/// A text that is a number of JSON as that number, any other as `jsonText`.
JsonValue jsonNumber(std::string_view text);

/// The text of a value, on one line.
std::string jsonLine(JsonValue value);
/// The same on lines of its own for each member and element, as a person reads it.
std::string jsonLines(JsonValue value);

}  // namespace tarnwick
