// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "program/site_draft.h"

namespace tarnwick {

/// POST variables as one text: pairs name=value between "&", in which all bytes but letters, digits and "-._~" are
/// written as "%" and two hexadecimal digits (RFC 3986, section 2). Without variables it is empty.
std::string encodePostVars(const std::vector<PostVar>& vars);

/// What that was made of. A byte that is not encoded stands for itself, also a "+", and a value may hold "=". Raises
/// std::invalid_argument with the cause and the remedy for a pair without "=" and for a "%" without its digits.
std::vector<PostVar> decodePostVars(std::string_view text);

}  // namespace tarnwick
