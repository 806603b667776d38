// SPDX-License-Identifier: MIT
#include "holes/hole_words.h"

namespace tarnwick {
namespace {

std::string ofLength(const std::string& what, const Hole& hole, const std::string& unit) {
  const std::string most = std::to_string(hole.most);
  return what + " of " + (hole.least == hole.most ? most : std::to_string(hole.least) + " to " + most) + unit;
}

bool names(const Hole& hole, std::string_view fields) {
  for (std::size_t at = hole.form.find('%'); at != std::string::npos && at + 1 < hole.form.size();
       at = hole.form.find('%', at + 2)) {
    if (fields.find(hole.form[at + 1]) != std::string_view::npos) {
      return true;
    }
  }
  return false;
}

}  // namespace

std::string describe(const Hole& hole) {
  switch (hole.kind) {
    case HoleClass::digits:
      return ofLength("a number", hole, " digits");
    case HoleClass::hex:
      return ofLength("a hex number", hole, " digits");
    case HoleClass::base64:
      return ofLength("a key", hole, " characters");
    case HoleClass::letters:
      return "letters";
    case HoleClass::date: {
      const bool hasTime = names(hole, "HMS");
      const bool hasDate = names(hole, "YymdeBL");
      return hasTime && hasDate ? "a date and time" : hasTime ? "a time" : "a date";
    }
    case HoleClass::list:
      return "one of " + std::to_string(hole.choices.size()) + " texts";
    case HoleClass::text:
      return "words";
    default:
      return "anything";
  }
}

}  // namespace tarnwick
