// SPDX-License-Identifier: MIT
#include "cli/verbs/settling_words.h"

#include "cli/verbs/tool.h"

namespace tarnwick {

using State = ToSettle::State;

std::string siteName(std::int16_t id) { return "Site " + std::to_string(id); }

std::string checkCommand(std::int16_t id) { return "tarnwickctl check " + std::to_string(id); }

std::string nothingToSettle(std::int16_t id, const ToSettle& found) {
  switch (found.state) {
    case State::noSuchSite:
      return noSuchSite(id).what();
    case State::never:
      return siteName(id) + " has no latest page. Fetch it with: " + checkCommand(id);
    case State::same:
      return siteName(id) + " is as it should be: its latest page is a good one.";
    case State::notKept:
      return "The latest page of site " + std::to_string(id) +
             " was not kept, since there was too little room on the disk. Make room, then fetch it with: " +
             checkCommand(id);
    case State::failedFetch:
    case State::emptyPage:
    case State::differs:
      break;
  }
  return "";
}

std::string nothingToAccept(std::int16_t id, const ToSettle& found) {
  return found.state == State::emptyPage
             ? "The latest page of site " + std::to_string(id) +
                   " is empty, which cannot be a baseline. Check again with: " + checkCommand(id)
             : nothingToSettle(id, found);
}

}  // namespace tarnwick
