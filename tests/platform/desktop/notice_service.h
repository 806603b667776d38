// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>
#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace tarnwick::testing {

/// A service for notices that shows none, as a desktop has it on its bus.
class NoticeService final : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

 public:
  explicit NoticeService(const QString& address);
  ~NoticeService() override;
  NoticeService(const NoticeService&) = delete;
  NoticeService& operator=(const NoticeService&) = delete;

  struct Shown {
    QString program;
    QString title;
    QString text;
    QStringList actions;
  };
  std::vector<Shown> shown;
  QStringList abilities{QStringLiteral("actions"), QStringLiteral("body"), QStringLiteral("body-markup")};
  /// Why none is taken; nothing: they are.
  std::optional<QString> refusal;

 public Q_SLOTS:
  QStringList GetCapabilities() { return abilities; }
  uint Notify(const QString& program, uint replaces, const QString& icon, const QString& title, const QString& text,
              const QStringList& actions, const QVariantMap& hints, int expires);

 Q_SIGNALS:
  void ActionInvoked(uint id, const QString& key);
  void NotificationClosed(uint id, uint reason);

 private:
  QDBusConnection bus_;
};

}  // namespace tarnwick::testing
