// SPDX-License-Identifier: MIT
#include "ui/controls/dialog_parts.h"

#include <utility>
#include <QKeyEvent>
#include <QShortcut>
#include <QTabBar>

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
  return named(new QGroupBox(caption, &parent), name);
}

QLabel* addLabel(const QString& caption, QWidget& control) {
  auto* label = new QLabel(caption, control.parentWidget());
  label->setBuddy(&control);
  return label;
}

QTabWidget* addPages(QDialog& dialog, const std::vector<Page>& pages) {
  auto* tabs = named(new QTabWidget(&dialog), "pages", QObject::tr("Pages"));
  // The tabs themselves take the focus, not the frame around them.
  tabs->setFocusPolicy(Qt::NoFocus);
  tabs->tabBar()->setFocusPolicy(Qt::StrongFocus);
  for (const Page& page : pages) {
    const int index = tabs->addTab(page.content, page.caption);
    const QKeySequence keys(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + index));
    tabs->setTabToolTip(index, keys.toString(QKeySequence::NativeText));
    QObject::connect(new QShortcut(keys, &dialog), &QShortcut::activated, tabs,
                     [tabs, index] { tabs->setCurrentIndex(index); });
  }
  return tabs;
}

void turnTo(QWidget& control) {
  for (QWidget* around = control.parentWidget(); around != nullptr; around = around->parentWidget()) {
    if (auto* tabs = qobject_cast<QTabWidget*>(around)) {
      for (int page = 0; page < tabs->count(); ++page) {
        if (tabs->widget(page) == &control || tabs->widget(page)->isAncestorOf(&control)) {
          tabs->setCurrentIndex(page);
        }
      }
    }
  }
  control.setFocus();
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
