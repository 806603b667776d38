#include "platform/name_lookup.h"

#ifdef _WIN32
#include <winsock2.h>
#include <ws2tcpip.h>
#else
#include <netdb.h>
#include <sys/socket.h>
#endif

#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <QByteArray>
#include <QMetaObject>
#include <QObject>
#include <QUrl>

namespace tarnwick {
namespace {

struct AddressListEnd {
  void operator()(addrinfo* list) const { freeaddrinfo(list); }
};

QList<QHostAddress> addressesOf(const QByteArray& asciiName) {
#ifdef _WIN32
  static const bool ready = [] {
    WSADATA ignored;
    return WSAStartup(MAKEWORD(2, 2), &ignored) == 0;
  }();
  if (!ready) {
    return {};
  }
#endif
  addrinfo wanted{};
  wanted.ai_family = AF_UNSPEC;
  wanted.ai_socktype = SOCK_STREAM;
  wanted.ai_flags = AI_ADDRCONFIG;
  addrinfo* raw = nullptr;
  if (getaddrinfo(asciiName.constData(), nullptr, &wanted, &raw) != 0) {
    return {};
  }
  const std::unique_ptr<addrinfo, AddressListEnd> list(raw);
  QList<QHostAddress> addresses;
  for (const addrinfo* entry = list.get(); entry != nullptr; entry = entry->ai_next) {
    addresses << QHostAddress(entry->ai_addr);
  }
  return addresses;
}

}  // namespace

/// Where the background thread, which may outlive everything else, leaves what it found.
struct NameLookup::Answer {
  explicit Answer(Found handler) : found(std::move(handler)) {}

  void give(const QList<QHostAddress>& addresses) {
    const std::lock_guard lock(mutex);
    if (receiver) {
      QMetaObject::invokeMethod(
          receiver.get(),
          [this, addresses] {
            pending = false;
            found(addresses);
          },
          Qt::QueuedConnection);
    }
  }

  /// What is on its way goes with its receiver.
  void abandon() {
    const std::lock_guard lock(mutex);
    receiver.reset();
  }

  Found found;
  bool pending = true;
  std::mutex mutex;  ///< of the receiver
  std::unique_ptr<QObject> receiver = std::make_unique<QObject>();
};

NameLookup::NameLookup(const QString& name, Found found) : answer_(std::make_shared<Answer>(std::move(found))) {
  // The name as name servers know it; empty for what can be no name.
  const QByteArray asciiName = QUrl::toAce(name);
  if (asciiName.isEmpty()) {
    answer_->give({});
    return;
  }
  try {
    std::thread([answer = answer_, asciiName] { answer->give(addressesOf(asciiName)); }).detach();
  } catch (const std::system_error&) {
    answer_->give({});  // a machine out of threads
  }
}

NameLookup::~NameLookup() { answer_->abandon(); }

bool NameLookup::pending() const { return answer_->pending; }

}  // namespace tarnwick
