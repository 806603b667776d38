// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "fuzz/entries/fuzz_target.h"

namespace tarnwick::testing {

// Any line is split into arguments of its own characters, which come back from the line that they make again.
void fuzzCommandLine(std::string_view input);
// Any arguments come back from the line that Windows gives a program.
void fuzzWindowsCommandLine(std::string_view input);
// Templates are filled as the plainest way to do it fills them.
void fuzzFillTemplate(std::string_view input);
// Commands likewise, and no quote of a value opens or closes an argument.
void fuzzFillCommand(std::string_view input);

inline constexpr std::array<FuzzTarget, 4> kCommandFuzzTargets{{{"command_line", fuzzCommandLine},
                                                                {"windows_command_line", fuzzWindowsCommandLine},
                                                                {"fill_template", fuzzFillTemplate},
                                                                {"fill_command", fuzzFillCommand}}};

}  // namespace tarnwick::testing
