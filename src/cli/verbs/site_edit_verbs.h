// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/verbs/tool.h"

namespace tarnwick {

/// Raises std::runtime_error, which says why, when a page cannot be fetched from `url`.
void requireFetchable(const std::string& url);
/// Raises std::runtime_error when alerts cannot be mailed to `email`.
void requireMailAddress(const std::string& email);
/// The method as the editor stores it; raises std::runtime_error when `text` is neither, in any letter case.
std::string methodOf(const std::string& text);
/// The interval as it is stored; raises std::runtime_error when `text` is no number of minutes from 1 to 32767.
std::string intervalOf(const std::string& text);
/// Complains when the POST variables that a site has been given will not be sent.
void hintAtMethod(Tool& tool, std::int16_t idSite);

}  // namespace tarnwick
