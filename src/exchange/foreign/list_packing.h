// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "exchange/foreign/list_reading.h"

namespace tarnwick {

/// A list that was read, or the message of what was raised, as bytes from one process to another of the same program.
std::string packed(ReadList list);
std::string packedFailure(const std::string& message);

/// What that was made of; raises std::runtime_error with the message of a failure.
ReadList unpacked(const std::string& bytes);

}  // namespace tarnwick
