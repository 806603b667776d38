// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "fuzz/entries/fuzz_target.h"

namespace tarnwick::testing {

// A mail is handed to a server that answers with any bytes, breaks off at any time or stays silent: no command is sent
// before the reply to the one before, none but the five, and the mail counts as sent exactly when none was refused.
void fuzzSmtpExchange(std::string_view input);

inline constexpr std::array<FuzzTarget, 1> kMailFuzzTargets{{{"smtp_exchange", fuzzSmtpExchange}}};

}  // namespace tarnwick::testing
