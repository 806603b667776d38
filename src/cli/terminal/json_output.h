// SPDX-License-Identifier: MIT
#pragma once

#include "cli/terminal/console.h"
#include "exchange/json/json_text.h"

namespace tarnwick {

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
