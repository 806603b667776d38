// SPDX-License-Identifier: MIT
#include "platform/events/name_lookup.h"

#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <QByteArray>
#include <QMetaObject>
#include <QObject>
#include <QUrl>

#include "platform/events/host_addresses.h"

namespace tarnwick {

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
    std::thread([answer = answer_, asciiName] { answer->give(hostAddresses(asciiName)); }).detach();
  } catch (const std::system_error&) {
    answer_->give({});  // a machine out of threads
  }
}

NameLookup::~NameLookup() { answer_->abandon(); }

bool NameLookup::pending() const { return answer_->pending; }

}  // namespace tarnwick
