// SPDX-License-Identifier: MIT
#include "cli/verbs/verbs.h"

#include <algorithm>
#include <iterator>

namespace tarnwick {

std::vector<Verb> allVerbs(const Fields& fields) {
  std::vector<Verb> all;
  const auto add = [&all](std::vector<Verb> verbs) { std::ranges::move(verbs, std::back_inserter(all)); };
  add(siteVerbs());
  add(siteEditVerbs(fields));
  all.push_back(deleteVerb());
  all.push_back(postVerb());
  add(pageVerbs());
  add(settlingVerbs());
  all.push_back(tagVerb());
  all.push_back(changeVerb());
  all.push_back(countersVerb());
  all.push_back(checkVerb());
  all.push_back(runVerb());
  all.push_back(settingsVerb(fields));
  all.push_back(optionVerb(fields));
  all.push_back(channelVerb());
  all.push_back(outboxVerb());
  add(pauseVerbs());
  all.push_back(learnVerb());
  all.push_back(rulesVerb());
  all.push_back(logVerb());
  all.push_back(historyVerb());
  all.push_back(metricsVerb());
  all.push_back(statusPageVerb());
  all.push_back(monthReportVerb());
  add(upkeepVerbs());
  all.push_back(exportVerb());
  all.push_back(importVerb());
  all.push_back(initVerb());
  all.push_back(completionVerb());
  return all;
}

}  // namespace tarnwick
