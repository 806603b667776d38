// SPDX-License-Identifier: MIT
#include <windows.h>

#include "platform/os/socket_inheritance.h"

namespace tarnwick {

void setCloseOnExec(std::uintptr_t socket) {
  SetHandleInformation(reinterpret_cast<HANDLE>(socket), HANDLE_FLAG_INHERIT, 0);
}

// A program that is started there inherits what is named to it, and nothing else.
void setCloseOnExecOnAll() {}

}  // namespace tarnwick
