// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <QIcon>
#include <QMenu>
#include <QString>

namespace tarnwick {

/// The place for an icon that desktops have beside their clock.
class TrayIcon {
 public:
  virtual ~TrayIcon() = default;

  /// Whether there is such a place now: it may come after the program, and go before it.
  virtual bool isThere() const = 0;
  /// Shows the icon there, or as soon as the place comes, with a text for who points at it.
  virtual void show(const QIcon& icon, const QString& text) = 0;
  /// What opens with a click of the other button. It outlives the icon.
  virtual void setMenu(QMenu& menu) = 0;
  /// Called when the icon is clicked.
  virtual void onClicked(std::function<void()> clicked) = 0;
};

/// The one of this desktop.
std::unique_ptr<TrayIcon> makeTrayIcon();

}  // namespace tarnwick
