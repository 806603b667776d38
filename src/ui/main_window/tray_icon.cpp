// SPDX-License-Identifier: MIT
#include "ui/main_window/tray_icon.h"

#include <utility>
#include <QSystemTrayIcon>

namespace tarnwick {
namespace {

class SystemTrayIcon final : public TrayIcon {
 public:
  bool isThere() const override { return QSystemTrayIcon::isSystemTrayAvailable(); }

  void show(const QIcon& icon, const QString& text) override {
    icon_.setIcon(icon);
    icon_.setToolTip(text);
    icon_.show();
  }

  void setMenu(QMenu& menu) override { icon_.setContextMenu(&menu); }

  void onClicked(std::function<void()> clicked) override {
    QObject::connect(&icon_, &QSystemTrayIcon::activated, &icon_,
                     [clicked = std::move(clicked)](QSystemTrayIcon::ActivationReason reason) {
                       if (reason == QSystemTrayIcon::Trigger) {
                         clicked();
                       }
                     });
  }

 private:
  QSystemTrayIcon icon_;
};

}  // namespace

std::unique_ptr<TrayIcon> makeTrayIcon() { return std::make_unique<SystemTrayIcon>(); }

}  // namespace tarnwick
