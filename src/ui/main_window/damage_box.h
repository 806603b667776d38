// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "program/program.h"

namespace tarnwick {

/// Runs `open`, which opens the list of `program` for the first time; a failure is shown in one box. Where the list is
/// damaged the box lets the user choose a copy to be put in its place, until he has named a good one or has had enough,
/// and `again` follows when one is; the application does not end meanwhile, though no window of it may be open. True
/// when `open` has succeeded.
bool openOrOfferCopy(Program& program, const std::function<void()>& open, const std::function<void()>& again);

}  // namespace tarnwick
