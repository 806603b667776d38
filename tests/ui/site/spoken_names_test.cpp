// SPDX-License-Identifier: MIT
// What a screen reader is told of every control: it follows what is to be seen, and is plain text.
#include <algorithm>
#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAction>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>

#include "ui/exchange/addresses_dialog.h"
#include "ui/exchange/export_dialog.h"
#include "ui/settings/control_dialog.h"
#include "ui/support/dialog_fixture.h"

namespace tarnwick::testing {
namespace {

class SpokenNamesTest : public DialogTest {
 protected:
  static bool isLetter(QChar sign) { return sign.isLetter(); }
  static QString seen(const QWidget& control) {
    QString text;
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
      text = button->text();
    } else if (const auto* frame = qobject_cast<const QGroupBox*>(&control)) {
      text = frame->title();
    } else if (const auto* label = qobject_cast<const QLabel*>(&control)) {
      text = label->text();
    }
    // A sign alone, as an arrow, is spoken by a word.
    return std::ranges::any_of(text, &isLetter) ? text.remove(QLatin1Char('&')).trimmed() : QString();
  }
  /// What was looked at, to see that something was.
  static int expectSpoken(QWidget& window) {
    int count = 0;
    QList<QWidget*> controls = window.findChildren<QWidget*>();
    controls << &window;
    for (QWidget* control : controls) {
      if (!control->isVisible() || (control != &window && control->isWindow())) {
        continue;
      }
      SCOPED_TRACE(window.objectName().toStdString() + ", " + control->metaObject()->className() + " " +
                   control->objectName().toStdString());
      const QString name = spoken(*control, QAccessible::Name);
      const bool isStatus = control->inherits("tarnwick::StatusLine");
      if (const QString text = seen(*control); !text.isEmpty()) {
        EXPECT_TRUE(name.startsWith(text) || (isStatus && name.endsWith(text)))
            << "seen \"" << text.toStdString() << "\", spoken \"" << name.toStdString() << '"';
        ++count;
      }
      if ((control->focusPolicy() & Qt::TabFocus) != 0 && !control->objectName().isEmpty() &&
          !control->objectName().startsWith(QLatin1String("qt_"))) {
        EXPECT_FALSE(name.isEmpty());
      }
      for (const QAccessible::Text what : {QAccessible::Name, QAccessible::Description, QAccessible::Help}) {
        EXPECT_FALSE(spoken(*control, what).contains(QLatin1String("<span"))) << spoken(*control, what).toStdString();
      }
    }
    return count;
  }
};

TEST_F(SpokenNamesTest, OfTheMainWindow) {
  addSite(1, "http://one.test/", ",content_compare,content_runtime,status,lastChecked",
          ",'old','<b>',0,'2024-02-03 04:05:06'");
  openProgram();
  ASSERT_TRUE(waitUntil([&] { return find<QLabel>("lReason").isVisible(); }));
  EXPECT_GT(expectSpoken(*master), 8);
  master->showStatus("Testing: http://one.test/" + std::string(500, 'x'));
  EXPECT_GT(expectSpoken(*master), 8);
}

TEST_F(SpokenNamesTest, OfTheSiteEditorAndItsDialogs) {
  addSite(5, "http://one.test/");
  addVar(5, "a", "b");
  auto& editor = openEditor();
  EXPECT_EQ(spoken(in<QWidget>(editor, "Frame1"), QAccessible::Name), QStringLiteral("Site ID: 5"));
  EXPECT_GT(expectSpoken(editor), 15);
  in<QTabWidget>(editor, "pages").setCurrentIndex(1);
  EXPECT_GT(expectSpoken(editor), 8);
  press(editor, "Command7");
  EXPECT_GT(expectSpoken(opened<CountersDialog>()), 3);
}

TEST_F(SpokenNamesTest, OfTheContentDialog) {
  addSite(5, "http://one.test/");
  auto& editor = openEditor();
  press(editor, "Command2");
  auto& content = opened<ContentDialog>();
  EXPECT_GT(expectSpoken(content), 3);
  EXPECT_EQ(spoken(in<QWidget>(content, "lblUrl"), QAccessible::Name), QStringLiteral("Url: http://one.test/"));
}

TEST_F(SpokenNamesTest, OfTheSettings) {
  openProgram();
  settingsDialogOf(master->program(), *master)();
  auto& settings = opened<ControlDialog>();
  EXPECT_GT(expectSpoken(settings), 15);
  EXPECT_EQ(spoken(in<QWidget>(settings, "cLogs"), QAccessible::Name), QStringLiteral("Logs"));
  EXPECT_FALSE(spoken(in<QWidget>(settings, "cLogs"), QAccessible::Description).isEmpty());
  in<QLabel>(settings, "lblLogs").setText(QStringLiteral("Complete"));
  EXPECT_EQ(spoken(in<QWidget>(settings, "lblLogs"), QAccessible::Name), QStringLiteral("Complete"));
  in<QTabWidget>(settings, "pages").setCurrentIndex(1);
  EXPECT_GT(expectSpoken(settings), 6);
}

TEST_F(SpokenNamesTest, OfTheWindowsThatTheListOpens) {
  addSite(5, "http://one.test/");
  openProgram();
  const auto spokenIn = [&](const std::function<void()>& open) {
    open();
    QDialog* dialog = nullptr;
    for (auto* one : master->findChildren<QDialog*>()) {
      dialog = one->isVisible() ? one : dialog;
    }
    ASSERT_NE(dialog, nullptr);
    EXPECT_GT(expectSpoken(*dialog), 1);
    for (auto* view : dialog->findChildren<QAbstractScrollArea*>()) {
      const bool isReached = view->isVisible() && (view->focusPolicy() & Qt::TabFocus) != 0;
      EXPECT_TRUE(!isReached || !spoken(*view, QAccessible::Name).isEmpty())
          << dialog->objectName().toStdString() << ": " << view->metaObject()->className();
    }
    std::vector<QChar> keys = mnemonics(*dialog);
    std::ranges::sort(keys);
    EXPECT_TRUE(std::ranges::adjacent_find(keys) == keys.end()) << dialog->objectName().toStdString();
    dialog->reject();
  };
  for (const char* const action : {"historyOfAll", "sameChanges"}) {
    spokenIn([&] { find<QAction>(action).trigger(); });
  }
  spokenIn(exportOf(master->program(), *master));
  spokenIn([&] { addAddressesOf(master->program(), *master)({}); });
}

}  // namespace
}  // namespace tarnwick::testing
