// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <unistd.h>

#include <charconv>
#include <filesystem>
#include <string>

#include "platform/os/socket_inheritance.h"

namespace tarnwick {

void setCloseOnExec(std::uintptr_t socket) { ::fcntl(static_cast<int>(socket), F_SETFD, FD_CLOEXEC); }

void setCloseOnExecOnAll() {
  std::error_code unreadable;
  for (std::filesystem::directory_iterator entry("/dev/fd", unreadable), end; !unreadable && entry != end;
       entry.increment(unreadable)) {
    const std::string name = entry->path().filename().string();
    int descriptor = -1;
    std::from_chars(name.data(), name.data() + name.size(), descriptor);
    if (descriptor > STDERR_FILENO) {
      ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
    }
  }
}

}  // namespace tarnwick
