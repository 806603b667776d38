// SPDX-License-Identifier: MIT
#include "platform/desktop/desktop_habits.h"

#include <QSettings>
#include <QSystemTrayIcon>

#include "platform/desktop/desktop_start.h"

namespace tarnwick {
namespace {

constexpr const char* kCloseToTray = "closeToTray";

class DesktopHabits final : public UserHabits {
 public:
  bool hasTray() const override { return QSystemTrayIcon::isSystemTrayAvailable(); }
  bool closesToTray() const override { return settings_.value(QLatin1String(kCloseToTray)).toBool(); }
  void setClosesToTray(bool wanted) override { settings_.setValue(QLatin1String(kCloseToTray), wanted); }
  bool startsWithDesktop() const override { return isStartedWithDesktop(); }
  void setStartsWithDesktop(bool wanted) override { startWithDesktop(wanted); }
  std::optional<int> remembered(const std::string& name) const override {
    bool isNumber = false;
    const int value = settings_.value(QString::fromStdString(name)).toInt(&isNumber);
    return isNumber ? std::optional(value) : std::nullopt;
  }
  void remember(const std::string& name, int value) override {
    settings_.setValue(QString::fromStdString(name), value);
  }

 private:
  QSettings settings_{QSettings::IniFormat, QSettings::UserScope, QStringLiteral("tarnwick"), QStringLiteral("window")};
};

}  // namespace

std::unique_ptr<UserHabits> makeUserHabits() { return std::make_unique<DesktopHabits>(); }

}  // namespace tarnwick
