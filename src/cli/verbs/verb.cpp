// SPDX-License-Identifier: MIT
#include "cli/verbs/verb.h"

namespace tarnwick {

VerbOption siteIdOption(std::int16_t& idSite) {
  return {.name = "ID", .target = &idSite, .meaning = "The site's id, as the verb sites lists it", .required = true};
}

VerbOption jsonOption(bool& json) { return {"--json", &json, "Print JSON"}; }

std::string examples(std::initializer_list<std::pair<const char*, const char*>> lines) {
  std::string text = "Examples:";
  for (const auto& [arguments, purpose] : lines) {
    text += std::string("\n  tarnwickctl ") + arguments + "\n      " + purpose;
  }
  return text;
}

}  // namespace tarnwick
