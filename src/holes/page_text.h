// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// A page as holes are found in it: its bytes as they are. One in UTF-16 (known by its byte order mark, or by every
/// second byte of it being zero) has its characters in UTF-8, behind a byte that tells its order, so that two pages are
/// the same bytes here exactly if they are at their source. What is not valid UTF-16 is left as it is.
std::string pageText(std::string_view page);

}  // namespace tarnwick
