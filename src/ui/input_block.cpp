#include "ui/input_block.h"

#include <algorithm>
#include <QApplication>
#include <QEvent>

namespace tarnwick {

InputBlock::InputBlock(QDialog& front, const std::vector<QWidget*>& blocked)
    : QObject(&front), front_(front), blocked_(blocked.begin(), blocked.end()) {
  QCoreApplication::instance()->installEventFilter(this);
}

bool InputBlock::isBlocked(QObject* object) const {
  while (object != nullptr && !object->isWidgetType()) {
    object = object->parent();
  }
  return object != nullptr && std::ranges::any_of(blocked_, [&](const QPointer<QWidget>& window) {
           return window == static_cast<QWidget*>(object)->window();
         });
}

bool InputBlock::eventFilter(QObject* watched, QEvent* event) {
  // A dialog that has been closed blocks nothing until it is taken down.
  if (!front_.isVisible()) {
    return false;
  }
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
      if (watched->isWidgetType() && isBlocked(watched)) {
        front_.raise();
        front_.activateWindow();
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
      // The main window is closed even so; a dialog is not closed from under its own.
      if (event->spontaneous() && watched->isWidgetType() && watched->parent() != nullptr && isBlocked(watched)) {
        event->ignore();
        return true;
      }
      return false;
    default:
      return false;
  }
}

std::vector<QWidget*> windowsAbove(const QDialog& dialog) {
  std::vector<QWidget*> windows;
  for (QWidget* parent = dialog.parentWidget(); parent != nullptr; parent = windows.back()->parentWidget()) {
    windows.push_back(parent->window());
  }
  return windows;
}

}  // namespace tarnwick
