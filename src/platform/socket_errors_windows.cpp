#include <winsock2.h>

#include <cerrno>

#include "platform/socket_errors.h"

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
    default:
      return error;
  }
}

}  // namespace tarnwick
