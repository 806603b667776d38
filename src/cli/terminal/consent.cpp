// SPDX-License-Identifier: MIT
#include "cli/terminal/consent.h"

#include <stdexcept>
#include <string_view>

#include "base/text.h"

namespace tarnwick {
namespace {

// The word or its first letter.
bool isYes(std::string_view answer, std::string_view yes) {
  return !answer.empty() && (equalsIgnoringCase(answer, yes) || equalsIgnoringCase(answer, yes.substr(0, 1)));
}

}  // namespace

bool consents(Console& console, bool yes, const std::string& question) {
  if (yes) {
    return true;
  }
  if (!console.canAsk()) {
    throw std::runtime_error(question + " Nobody can be asked here: to do it without a question, add --yes.");
  }
  std::string answer = console.ask(question + " [y/N]");
  while (!answer.empty() && (answer.back() == '\r' || answer.back() == ' ')) {
    answer.pop_back();
  }
  if (isYes(answer, "yes") || isYes(answer, console.worded("yes"))) {
    return true;
  }
  console.complain("Nothing was changed.");
  return false;
}

}  // namespace tarnwick
