// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "cli/verbs/verb.h"
#include "store/fields.h"

namespace tarnwick {

/// sites, site
std::vector<Verb> siteVerbs();
/// add, set
std::vector<Verb> siteEditVerbs(const Fields& fields);
Verb deleteVerb();
Verb postVerb();
/// baseline, diff
std::vector<Verb> pageVerbs();
Verb tagVerb();
Verb changeVerb();
/// accept, acknowledge, changes
std::vector<Verb> settlingVerbs();
Verb countersVerb();
Verb checkVerb();
Verb runVerb();
/// The verb with the names and meanings of the settings in its help.
Verb settingsVerb(const Fields& fields);
/// The verb with all options in its help.
Verb optionVerb(const Fields& fields);
/// The verb with all fields of channels in its help.
Verb channelVerb();
Verb outboxVerb();
/// pause, resume
std::vector<Verb> pauseVerbs();
Verb learnVerb();
Verb rulesVerb();
Verb logVerb();
Verb historyVerb();
Verb metricsVerb();
Verb statusPageVerb();
Verb monthReportVerb();
Verb initVerb();
/// Prints the completions of all verbs.
Verb completionVerb();
/// report, compact, restore
std::vector<Verb> upkeepVerbs();
Verb exportVerb();
Verb importVerb();

/// All of them, in the order of the help.
std::vector<Verb> allVerbs(const Fields& fields);

}  // namespace tarnwick
