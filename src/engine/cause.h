// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "engine/run_view.h"
#include "holes/page_rule.h"

namespace tarnwick {

/// Why a check failed, in one line: the transfer's error, or the first line in which the page differs from the
/// baseline, cut to what is around the difference. `rules` are those of the site.
std::string causeOf(const CheckResult& failed, std::string_view baseline, const RuleSet& rules = {});

/// The first line in which the page differs from the baseline, counted from 1; 0 when it does not.
std::size_t lineOfDifference(std::string_view baseline, std::string_view page, const RuleSet& rules = {});

/// Whether the site is up without being there: the text of a fetch that failed became its baseline, and the fetch still
/// fails so. It is never told by the page, which may begin with "11:" of its own.
bool hasFailureAsBaseline(const CheckResult& result);

/// What is worth telling of a site that is up: that its baseline is the text of a fetch that fails, that a rule of it
/// finds nothing. Empty otherwise.
std::string noteOf(const CheckResult& passed);

}  // namespace tarnwick
