// SPDX-License-Identifier: MIT
#include <netdb.h>
#include <sys/socket.h>

#include <memory>

#include "platform/events/host_addresses.h"

namespace tarnwick {

QList<QHostAddress> hostAddresses(const QByteArray& asciiName) {
  addrinfo wanted{};
  wanted.ai_family = AF_UNSPEC;
  wanted.ai_socktype = SOCK_STREAM;
  wanted.ai_flags = AI_ADDRCONFIG;
  addrinfo* raw = nullptr;
  if (getaddrinfo(asciiName.constData(), nullptr, &wanted, &raw) != 0) {
    return {};
  }
  const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> list(raw, &freeaddrinfo);
  QList<QHostAddress> addresses;
  for (const addrinfo* entry = list.get(); entry != nullptr; entry = entry->ai_next) {
    addresses << QHostAddress(entry->ai_addr);
  }
  return addresses;
}

}  // namespace tarnwick
