#include "platform/desktop/exclusive_dialog.h"

#include <QApplication>
#include <QEventLoop>
#include <QWidget>

namespace tarnwick {
namespace {

// Keeps what the user does away from all windows but one.
class InputGuard final : public QObject {
 public:
  explicit InputGuard(QDialog& dialog) : dialog_(dialog) { QCoreApplication::instance()->installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
      case QEvent::MouseButtonPress:
      case QEvent::TouchBegin:
        if (isElsewhere(watched)) {
          dialog_.raise();
          dialog_.activateWindow();
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
        return isElsewhere(watched);
      case QEvent::Close:
        return refusesClose(watched, *event);
      default:
        return false;
    }
  }

 private:
  bool isElsewhere(QObject* object) const {
    bool ofWidget = false;
    for (; object != nullptr; object = object->parent()) {
      if (object == &dialog_) {
        return false;
      }
      ofWidget = ofWidget || object->isWidgetType();
    }
    return ofWidget;
  }

  // A window above which this dialog stands is not closed from under it, but the main window ends the program.
  bool refusesClose(QObject* watched, QEvent& event) const {
    const bool secondary = watched->isWidgetType() && watched->parent() != nullptr;
    if (event.spontaneous() && secondary && isElsewhere(watched)) {
      event.ignore();
      return true;
    }
    return false;
  }

  QDialog& dialog_;
};

}  // namespace

int runExclusively(QDialog& dialog) {
  const InputGuard guard(dialog);
  QEventLoop loop;
  QObject::connect(&dialog, &QDialog::finished, &loop, &QEventLoop::quit);
  dialog.setWindowModality(Qt::NonModal);
  dialog.show();
  dialog.activateWindow();
  loop.exec(QEventLoop::DialogExec);
  // The loop also ends with the program, the dialog still standing.
  if (dialog.isVisible()) {
    dialog.reject();
  }
  return dialog.result();
}

}  // namespace tarnwick
