#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "cli/terminal/console.h"

namespace tarnwick {

/// JSON whose members keep their order.
using Json = nlohmann::ordered_json;

/// Bytes as JSON: a string when they are UTF-8, otherwise an object whose one member "base64" holds them.
Json jsonText(std::string_view bytes);
/// The bytes that `jsonText` made that of; raises std::runtime_error when `value` is neither form.
std::string bytesOfJson(const Json& value);
/// The cell of a row table: null for a Null.
Json jsonCell(const std::string& cell);

/// Writes a JSON value and a line end.
void sayJson(Console& console, const Json& value);

/// Writes an array of JSON values, one a line, without holding them all.
class JsonArray {
 public:
  explicit JsonArray(Console& console) : console_(console) {}
  void add(const Json& value);
  void end();

 private:
  Console& console_;
  bool begun_ = false;
};

}  // namespace tarnwick
