// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>
#include <QDBusConnection>
#include <QObject>
#include <QStringList>

#include "platform/notifier.h"

namespace tarnwick {

/// Notices by the service "org.freedesktop.Notifications" of a bus.
class BusNotifier final : public QObject, public Notifier {
  Q_OBJECT

 public:
  explicit BusNotifier(const QDBusConnection& bus);

  void show(const Notice& notice, std::function<void(std::string key)> acted,
            std::function<void(std::string why)> done) override;
  bool isThere() override;

 private Q_SLOTS:
  void onAction(uint id, const QString& key);
  void onClosed(uint id, uint reason);

 private:
  using Acted = std::function<void(std::string key)>;
  using Done = std::function<void(std::string why)>;

  void notify(const Notice& notice, const QStringList& abilities, const Acted& acted, const Done& done);

  QDBusConnection bus_;
  // Of the notices that are there.
  std::map<uint, Acted> acted_;
};

}  // namespace tarnwick
