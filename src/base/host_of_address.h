// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// The host of an address, in lower case and without its port.
std::string hostOfAddress(std::string_view url);

/// The address without the name and the password that may stand before its host.
std::string withoutCredentials(std::string_view url);

}  // namespace tarnwick
