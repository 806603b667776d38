// SPDX-License-Identifier: MIT
#include "platform/web/way_out.h"

#include <curl/curl.h>

#if __has_include(<arpa/inet.h>)
#include <arpa/inet.h>
#include <netinet/in.h>
#include <unistd.h>
#endif

namespace tarnwick {
namespace {

#if __has_include(<arpa/inet.h>)
constexpr auto kCloseSocket = &::close;
#else
constexpr auto kCloseSocket = &::closesocket;
#endif

/// A datagram socket is connected by looking up the way alone.
template <typename Address>
bool leadsTo(const Address& address, int family) {
  const curl_socket_t socket = ::socket(family, SOCK_DGRAM, 0);
  if (socket == CURL_SOCKET_BAD) {
    return false;
  }
  const bool leads = ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  kCloseSocket(socket);
  return leads;
}

}  // namespace

// To addresses that are kept for documentation (RFC 5737, RFC 3849) only the default route can lead.
bool knowsWayOut() {
  constexpr unsigned short kAnyPort = 9;
  sockaddr_in four{};
  four.sin_family = AF_INET;
  four.sin_port = htons(kAnyPort);
  sockaddr_in6 six{};
  six.sin6_family = AF_INET6;
  six.sin6_port = htons(kAnyPort);
  return (inet_pton(AF_INET, "192.0.2.1", &four.sin_addr) == 1 && leadsTo(four, AF_INET)) ||
         (inet_pton(AF_INET6, "2001:db8::1", &six.sin6_addr) == 1 && leadsTo(six, AF_INET6));
}

}  // namespace tarnwick
