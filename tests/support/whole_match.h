// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>

#include <regex>
#include <string>

namespace tarnwick::testing {

/// Matches a text that is, from its begin to its end, of the form of a regular expression (ECMAScript). That of the
/// test library itself knows no brackets on Windows.
MATCHER_P(WholeMatch, form, "") { return std::regex_match(std::string(arg), std::regex(form)); }

}  // namespace tarnwick::testing
