// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "cli/verbs/verb.h"

namespace tarnwick {

/// What the shells complete of the tool's verbs, their options and the values of these: scripts, without a line feed at
/// the end.
std::string bashCompletion(const std::vector<Verb>& verbs);
std::string zshCompletion(const std::vector<Verb>& verbs);
std::string fishCompletion(const std::vector<Verb>& verbs);

}  // namespace tarnwick
