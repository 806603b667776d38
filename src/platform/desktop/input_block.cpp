// SPDX-License-Identifier: MIT
#include "platform/desktop/input_block.h"

#include <utility>
#include <QCoreApplication>
#include <QEvent>

namespace tarnwick {

InputBlock::InputBlock(QDialog& front, Blocked blocked, QObject* parent)
    : QObject(parent), front_(&front), blocked_(std::move(blocked)) {
  QCoreApplication::instance()->installEventFilter(this);
}

bool InputBlock::isBlocked(QObject* object) const {
  while (object != nullptr && !object->isWidgetType()) {
    object = object->parent();
  }
  return object != nullptr && blocked_(*static_cast<QWidget*>(object));
}

bool InputBlock::eventFilter(QObject* watched, QEvent* event) {
  // A dialog that has been closed blocks nothing until it is taken down.
  if (front_ == nullptr || !front_->isVisible()) {
    return false;
  }
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
      if (isBlocked(watched)) {
        front_->raise();
        front_->activateWindow();
        return true;
      }
      return false;
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
      return isBlocked(watched);
    case QEvent::Close:
      // The main window is closed even so, which ends the program; no other window is closed from under `front`.
      if (event->spontaneous() && watched->isWidgetType() && watched->parent() != nullptr && isBlocked(watched)) {
        event->ignore();
        return true;
      }
      return false;
    default:
      return false;
  }
}

}  // namespace tarnwick
