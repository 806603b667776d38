// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// What of a statement goes into an error: enough for a message box, however long the statement is. A quoted text
/// stands there as '...': it may be a password, or a page with bytes that a terminal would obey.
std::string shownStatement(std::string_view sql);

}  // namespace tarnwick
