// SPDX-License-Identifier: MIT
#include "cli/terminal/json_output.h"

#include <ostream>
#include <utility>

namespace tarnwick {

void sayJson(Console& console, JsonValue value) { console.say(jsonLines(std::move(value))); }

void JsonArray::add(JsonValue value) {
  console_.out() << (begun_ ? ",\n " : "[\n ") << jsonLine(std::move(value));
  begun_ = true;
}

void JsonArray::end() { console_.say(begun_ ? "\n]" : "[]"); }

}  // namespace tarnwick
