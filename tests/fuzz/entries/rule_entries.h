// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "fuzz/entries/fuzz_target.h"

namespace tarnwick::testing {

/// A rule and a page, in pieces; one target a language.
void fuzzRegexRule(std::string_view input);
void fuzzCssRule(std::string_view input);
void fuzzXPathRule(std::string_view input);
void fuzzJsonRule(std::string_view input);
void fuzzLineRule(std::string_view input);
/// Rules in words, a line each, then a baseline and a page: what is cut out, and the verdict.
void fuzzRulesJudge(std::string_view input);

inline constexpr std::array<FuzzTarget, 6> kRuleFuzzTargets{{{"rule_regex", fuzzRegexRule},
                                                             {"rule_css", fuzzCssRule},
                                                             {"rule_xpath", fuzzXPathRule},
                                                             {"rule_json", fuzzJsonRule},
                                                             {"rule_lines", fuzzLineRule},
                                                             {"rules_judge", fuzzRulesJudge}}};

}  // namespace tarnwick::testing
