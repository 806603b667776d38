// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <QDialog>
#include <QPointer>

namespace tarnwick {

/// While it lives and `front` is shown, some widgets take no input, and a click on one of them brings `front` before
/// it. Unlike a modal dialog this lets the main window be closed, and so the program ended.
class InputBlock final : public QObject {
 public:
  /// Tells whether the widget is one of those that take no input.
  using Blocked = std::function<bool(QWidget& widget)>;

  /// With a `parent` it goes with that.
  InputBlock(QDialog& front, Blocked blocked, QObject* parent = nullptr);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool isBlocked(QObject* object) const;

  // Asked for while it is being taken apart, too, when it is no dialog any more.
  QPointer<QWidget> front_;
  Blocked blocked_;
};

}  // namespace tarnwick
