#include <fcntl.h>

#include "platform/socket_inheritance.h"

namespace tarnwick {

void keepFromPrograms(std::uintptr_t socket) { ::fcntl(static_cast<int>(socket), F_SETFD, FD_CLOEXEC); }

}  // namespace tarnwick
