// SPDX-License-Identifier: MIT
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "platform/web/socket_errors.h"

namespace tarnwick {

int errnoOfSocket(int error) { return error; }

int lastSocketError() { return errno; }

int shortageOfSockets() {
  std::array<int, 4> sockets{};  // about what a look-up of a name needs at once
  int error = 0;
  for (int& socket : sockets) {
    socket = ::socket(AF_INET, SOCK_STREAM, 0);
    if (socket < 0) {
      error = errno;
    }
  }
  for (const int socket : sockets) {
    if (socket >= 0) {
      ::close(socket);
    }
  }
  return error;
}

}  // namespace tarnwick
