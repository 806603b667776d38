// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "program/program.h"

namespace tarnwick {

/// Lets the user choose the file that the list is written to, as CSV or JSON, and tells when it is there. A file that
/// cannot be completed is not there at all; one that is there already is replaced when the new one is complete, after a
/// question.
std::function<void()> exportOf(Program& program, QWidget& parent);

}  // namespace tarnwick
