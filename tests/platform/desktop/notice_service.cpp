// SPDX-License-Identifier: MIT
#include "notice_service.h"

#include <QDBusError>

namespace tarnwick::testing {
namespace {

constexpr const char* kOwn = "notice service";

}  // namespace

NoticeService::NoticeService(const QString& address)
    : bus_(QDBusConnection::connectToBus(address, QString::fromLatin1(kOwn))) {
  bus_.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                      QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
  bus_.registerService(QStringLiteral("org.freedesktop.Notifications"));
}

NoticeService::~NoticeService() { QDBusConnection::disconnectFromBus(QString::fromLatin1(kOwn)); }

uint NoticeService::Notify(const QString& program, uint, const QString&, const QString& title, const QString& text,
                           const QStringList& actions, const QVariantMap&, int) {
  if (refusal) {
    sendErrorReply(QDBusError::LimitsExceeded, *refusal);
    return 0;
  }
  shown.push_back({program, title, text, actions});
  return static_cast<uint>(shown.size());
}

}  // namespace tarnwick::testing
