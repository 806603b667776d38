// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// What the Windows sources of this folder share: texts in the form that the system's functions take.
namespace tarnwick {

/// UTF-16 of UTF-8 text, and back. What is no valid text becomes replacement characters.
std::wstring wideOf(std::string_view utf8);
std::string utf8Of(std::wstring_view wide);

/// A path for the system's functions. One that is longer than they take by default is given in the form that has no
/// such bound: absolute, behind "\\?\".
std::wstring systemPath(const std::string& utf8);

/// What went wrong, in the system's own words and the user's language. `error` is what GetLastError returned.
std::string systemMessage(std::uint32_t error);

}  // namespace tarnwick
