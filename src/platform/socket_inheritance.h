#pragma once

#include <cstdint>

namespace tarnwick {

/// A program started as an alert must not inherit the connection and keep it open. `socket` is the system's handle.
void keepFromPrograms(std::uintptr_t socket);

}  // namespace tarnwick
