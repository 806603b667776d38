#include "ui/controls/dialog_parts.h"

#include <utility>
#include <QKeyEvent>

namespace tarnwick {
namespace {

// Without it Enter on a focused button would press the dialog's default button.
class PressedByEnter final : public QPushButton {
 public:
  using QPushButton::QPushButton;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
      click();
      return;
    }
    QPushButton::keyPressEvent(event);
  }
};

}  // namespace

QGroupBox* addFrame(QWidget& parent, const char* name, const QString& caption) {
  return named(new QGroupBox(caption, &parent), name, caption);
}

QLabel* addLabel(const QString& caption, QWidget& control) {
  auto* label = new QLabel(caption, control.parentWidget());
  label->setBuddy(&control);
  return label;
}

QPushButton* addButton(QWidget& parent, const char* name, const QString& caption, const QString& toolTip) {
  auto* button = new PressedByEnter(caption, &parent);
  button->setToolTip(toolTip);
  // The default button stays the same while the focus wanders.
  button->setAutoDefault(false);
  return named(button, name, QString(caption).remove(QLatin1Char('&')));
}

void onClick(QPushButton& button, FaultBox& faults, std::function<void()> handler) {
  QObject::connect(&button, &QPushButton::clicked, &button,
                   [&faults, handler = std::move(handler)] { faults.run(handler); });
}

}  // namespace tarnwick
