// SPDX-License-Identifier: MIT
#include <winsock2.h>

#include <cerrno>

#include "platform/web/socket_errors.h"

namespace tarnwick {

int errnoOfSocket(int error) {
  switch (error) {
    case WSAECONNREFUSED:
      return ECONNREFUSED;
    case WSAECONNRESET:
      return ECONNRESET;
    case WSAENETUNREACH:
      return ENETUNREACH;
    case WSAEHOSTUNREACH:
      return EHOSTUNREACH;
    case WSAENETDOWN:
      return ENETDOWN;
    case WSAETIMEDOUT:
      return ETIMEDOUT;
    case WSAEMFILE:
      return EMFILE;
    case WSAENOBUFS:
      return ENOBUFS;
    default:
      return error;
  }
}

// Handles are not scarce there: what a program may open is bounded by memory alone.
int shortageOfSockets() { return 0; }

int lastSocketError() { return errnoOfSocket(WSAGetLastError()); }

}  // namespace tarnwick
