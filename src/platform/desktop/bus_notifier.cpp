// SPDX-License-Identifier: MIT
#include "platform/desktop/bus_notifier.h"

#include <string_view>
#include <utility>
#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QTimer>
#include <QVariantMap>

#include "base/visible_text.h"
#include "platform/desktop/desktop_notifier.h"
#include "platform/desktop/session_bus.h"

namespace tarnwick {
namespace {

constexpr std::size_t kLongestLine = 300;
constexpr int kMostLines = 30;
constexpr int kAsLongAsUsual = -1;

QString service() { return QStringLiteral("org.freedesktop.Notifications"); }

QDBusMessage callOf(const char* method) {
  return QDBusMessage::createMethodCall(service(), QStringLiteral("/org/freedesktop/Notifications"), service(),
                                        QString::fromLatin1(method));
}

/// A text of several lines in which nothing is more than a letter.
QString plain(const std::string& text) {
  QString shown;
  std::string_view rest = text;
  for (int lines = 0; !rest.empty() && lines < kMostLines; ++lines) {
    const auto end = std::min(rest.find('\n'), rest.size());
    std::string_view line = rest.substr(0, end);
    line = line.substr(0, line.size() - (line.ends_with('\r') ? 1 : 0));
    shown += (lines == 0 ? QString() : QStringLiteral("\n")) + QString::fromStdString(visibleText(line, kLongestLine));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return shown;
}

}  // namespace

BusNotifier::BusNotifier(const QDBusConnection& bus) : bus_(bus) {
  const QString path = QStringLiteral("/org/freedesktop/Notifications");
  bus_.connect(service(), path, service(), QStringLiteral("ActionInvoked"), this, SLOT(onAction(uint, QString)));
  bus_.connect(service(), path, service(), QStringLiteral("NotificationClosed"), this, SLOT(onClosed(uint, uint)));
}

bool BusNotifier::isThere() { return isServed(bus_, service()); }

void BusNotifier::show(const Notice& notice, Acted acted, Done done) {
  if (!isThere()) {
    QTimer::singleShot(0, this, [done = std::move(done)] {
      if (done) {
        done("The desktop has no service that shows notices. Install one, or use a channel of another kind.");
      }
    });
    return;
  }
  // What looks like markup is markup to some services, and to others not.
  auto* const asked = new QDBusPendingCallWatcher(bus_.asyncCall(callOf("GetCapabilities")), this);
  connect(asked, &QDBusPendingCallWatcher::finished, this,
          [this, notice, acted = std::move(acted), done = std::move(done)](QDBusPendingCallWatcher* answered) {
            const QDBusPendingReply<QStringList> abilities = *answered;
            answered->deleteLater();
            notify(notice, abilities.isError() ? QStringList{QStringLiteral("body-markup")} : abilities.value(), acted,
                   done);
          });
}

void BusNotifier::notify(const Notice& notice, const QStringList& abilities, const Acted& acted, const Done& done) {
  QStringList actions;
  if (abilities.contains(QStringLiteral("actions"))) {
    for (const auto& [key, label] : notice.actions) {
      actions << QString::fromStdString(key) << plain(label);
    }
  }
  const QString text = plain(notice.text);
  QDBusMessage call = callOf("Notify");
  call << QStringLiteral("Tarnwick") << uint{0} << QStringLiteral("tarnwick")
       << plain(notice.title).replace(QLatin1Char('\n'), QLatin1Char(' '))
       << (abilities.contains(QStringLiteral("body-markup")) ? text.toHtmlEscaped() : text) << actions
       << QVariantMap{{QStringLiteral("desktop-entry"), QStringLiteral("tarnwick")}} << kAsLongAsUsual;
  auto* const asked = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
  connect(asked, &QDBusPendingCallWatcher::finished, this, [this, acted, done](QDBusPendingCallWatcher* answered) {
    const QDBusPendingReply<uint> id = *answered;
    answered->deleteLater();
    if (!id.isError() && acted) {
      acted_[id.value()] = acted;
    }
    if (done) {
      done(id.isError()
               ? "The desktop did not show the notice: " + visibleText(id.error().message().toStdString(), kLongestLine)
               : "");
    }
  });
}

void BusNotifier::onAction(uint id, const QString& key) {
  if (const auto found = acted_.find(id); found != acted_.end()) {
    const Acted acted = found->second;
    acted(key.toStdString());
  }
}

void BusNotifier::onClosed(uint id, uint) { acted_.erase(id); }

std::unique_ptr<Notifier> makeDesktopNotifier() { return std::make_unique<BusNotifier>(sessionBus()); }

}  // namespace tarnwick
