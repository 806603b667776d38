// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "engine/learnt.h"

namespace tarnwick {

/// What of a page's difference from its baseline looks like something that always changes: a number, a key, a date or a
/// time, where these rules and holes do not let it vary yet. `holes` of the result are such places, one that was too
/// narrow in place of the hole that it was; nothing else is proposed. `watched` is the share when the site has them
/// too, and `explains` whether the page is then the same as the baseline. Both as they were fetched. Takes as long as
/// `learntFrom`.
Learnt widenedBy(const std::string& baseline, const RuleSet& set, const std::string& page, LocalTime now);

/// The same where that takes too long: nothing is proposed.
Learnt roughlyWidenedBy(const std::string& baseline, const RuleSet& set, const std::string& page);

/// What the first line that differs looks like, where that always changes: "a time", "a number", "a key". Empty where
/// it does not, where more differs in that line, and where it is a long one. Looks at no more of the pages than
/// judging.
std::string firstLook(std::string_view baseline, const RuleSet& set, std::string_view page);

/// Whether it is a number, a key, a date or a time: what changes without being a change.
bool looksVolatile(const Hole& hole);

}  // namespace tarnwick
