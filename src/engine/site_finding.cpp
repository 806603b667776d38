// SPDX-License-Identifier: MIT
#include "engine/site_finding.h"

namespace tarnwick {

FoundSite foundSiteOf(const SiteSeen& seen, const Tags& tags) {
  FoundSite found;
  found.id = seen.idSite;
  found.url = seen.url;
  found.up = seen.status == true;
  found.down = seen.status == false;
  found.changed = found.down && seen.hasPage;
  found.noAnswer = found.down && !seen.hasPage;
  found.unconfirmed = seen.alarm.state == AlarmView::State::unconfirmed;
  found.known = seen.acknowledged;
  found.slow = seen.alarm.slow;
  found.never = !seen.isChecked;
  found.active = seen.active;
  found.paused = seen.alarm.pause.has_value();
  found.offline = seen.alarm.state == AlarmView::State::unknown;
  found.certificate = seen.alarm.daysLeft.has_value();
  found.unwatched = seen.unwatched != Unwatched::no;
  found.tags = tags;
  return found;
}

}  // namespace tarnwick
