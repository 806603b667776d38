// SPDX-License-Identifier: MIT
#include "cli/terminal/consent.h"

#include <stdexcept>

namespace tarnwick {

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
  if (answer == "y" || answer == "Y" || answer == "yes" || answer == "Yes" || answer == "YES") {
    return true;
  }
  console.complain("Nothing was changed.");
  return false;
}

}  // namespace tarnwick
