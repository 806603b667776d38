// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "engine/settling.h"

namespace tarnwick {

/// "Site 3".
std::string siteName(std::int16_t id);
/// The command that checks it.
std::string checkCommand(std::int16_t id);

/// Why there is nothing to settle, with the remedy; empty where there is.
std::string nothingToSettle(std::int16_t id, const ToSettle& found);
/// The same of a page that is to be the baseline.
std::string nothingToAccept(std::int16_t id, const ToSettle& found);

}  // namespace tarnwick
