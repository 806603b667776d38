// SPDX-License-Identifier: MIT
#include "cli/verbs/unwatched.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "platform/run_lock_file.h"
#include "store/site_table.h"

namespace tarnwick {
namespace {

// A command that names more is none to be typed.
constexpr std::size_t kMostNamed = 10;

bool waits(m& data, std::int16_t idSite) {
  const TextTable site = data.asStored(idSite);
  return site.lastRow() > 0 && !parseStamp(site.at(site_column::lastChecked, 1)) &&
         SqlValue(site.at(site_column::active, 1)).toBool();
}

}  // namespace

bool seemsToRun(Tool& tool) {
  return tool.services().files.kindOf(tool.programFolder() + "/" + kRunLockFile) == FileKind::file;
}

void hintAtUnwatched(Tool& tool, const std::vector<std::int16_t>& changed) {
  m& data = tool.data();
  if ((!seemsToRun(tool) && !tool.console().isTerminal()) || data.optionsInForce().newSitesAtOnce()) {
    return;
  }
  std::vector<std::int16_t> waiting;
  std::ranges::copy_if(changed, std::back_inserter(waiting), [&](std::int16_t id) { return waits(data, id); });
  if (waiting.empty()) {
    return;
  }
  std::string ids;
  if (waiting.size() <= kMostNamed) {
    for (const std::int16_t id : waiting) {
      ids += " " + std::to_string(id);
    }
  }
  tool.console().complain(
      waiting.size() == 1
          ? "A run that is on takes the site on once it was checked. Check it with: tarnwickctl check" + ids
          : "A run that is on takes " + std::to_string(waiting.size()) +
                " of the sites on once they were checked. Check them with: tarnwickctl check" + ids);
}

}  // namespace tarnwick
