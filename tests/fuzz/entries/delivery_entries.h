// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "fuzz/entries/fuzz_target.h"

namespace tarnwick::testing {

// No text of a list, a page or a server becomes a header, or the end of a line, in a request of a web hook.
void fuzzHookRequest(std::string_view input);
// In a body of JSON it is the same text again, whatever the service does to it first.
void fuzzHookJson(std::string_view input);
// No such text becomes a header or a further line of one in a mail, nor markup in its page.
void fuzzMailLetter(std::string_view input);
// Any bytes are refused, or a preset whose fields can be stored.
void fuzzPreset(std::string_view input);

/// Without the library that reads JSON.
inline constexpr std::array<FuzzTarget, 3> kDeliveryFuzzTargets{
    {{"hook_request", fuzzHookRequest}, {"mail_letter", fuzzMailLetter}, {"preset", fuzzPreset}}};
inline constexpr std::array<FuzzTarget, 1> kHookJsonFuzzTargets{{{"hook_json", fuzzHookJson}}};

}  // namespace tarnwick::testing
