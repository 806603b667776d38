// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace tarnwick {

/// What to look at after a message was not taken with these words: "Check the address in To." Servers speak in numbers
/// (RFC 5321, section 4.2.3; RFC 9110, section 15.5). Empty where the words say it themselves.
std::string_view adviceOn(std::string_view words);

}  // namespace tarnwick
