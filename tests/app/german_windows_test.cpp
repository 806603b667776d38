// SPDX-License-Identifier: MIT
// Every window in German: whole, without two keys that are the same, and with room for each text.
#include <algorithm>
#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTableView>

#include "app/translations.h"
#include "app/users_language.h"
#include "store/channel_table.h"
#include "ui/controls/quiet_hours_form.h"
#include "ui/outbox/outbox_dialog.h"
#include "ui/settings/control_dialog.h"
#include "ui/support/dialog_fixture.h"

namespace tarnwick::testing {
namespace {

QString onOneLine(const QString& text) { return QString(text).remove(QLatin1Char('&')).simplified(); }

class GermanWindowsTest : public DialogTest {
 protected:
  void SetUp() override {
    if (!QFile::exists(QStringLiteral(TARNWICK_BUILD "/translations/tarnwick_de.qm"))) {
      GTEST_SKIP() << "the tool that compiles translations is not installed";
    }
    QLocale::setDefault(QLocale::German);
    loadTranslations(*qApp, {QStringLiteral(TARNWICK_BUILD)});
  }
  void TearDown() override { master.reset(); }

  static void expectRoom(const QWidget& control, const QString& text, int needed, int given) {
    EXPECT_LE(needed, given) << control.objectName().toStdString() << ": \"" << onOneLine(text).toStdString() << '"';
  }
  static void expectNothingAtItsRight(const QAbstractScrollArea& area) {
    EXPECT_EQ(area.horizontalScrollBar()->maximum(), 0) << area.objectName().toStdString() << " is cut at its right";
  }
  static void expectRoomFor(const QHeaderView& header) {
    for (int section = 0; section < header.count(); ++section) {
      const QString text = header.model()->headerData(section, Qt::Horizontal).toString();
      if (!header.isSectionHidden(section) && !text.isEmpty()) {
        expectRoom(header, text, header.fontMetrics().horizontalAdvance(text), header.sectionSize(section));
      }
    }
  }
  /// What is visible of a window has room for its text, but for what shortens it itself and tells it whole in a tip.
  static void expectRoomInAll(QWidget& window) {
    for (const QWidget* control : window.findChildren<QWidget*>()) {
      if (!control->isVisible() || control->window() != &window) {
        continue;
      }
      if (const auto* button = qobject_cast<const QAbstractButton*>(control); button && !button->text().isEmpty()) {
        expectRoom(*button, button->text(), button->minimumSizeHint().width(), button->width());
      } else if (const auto* label = qobject_cast<const QLabel*>(control);
                 label && label->sizePolicy().horizontalPolicy() != QSizePolicy::Ignored && !label->wordWrap()) {
        expectRoom(*label, label->text(), label->sizeHint().width(), label->width());
      } else if (const auto* frame = qobject_cast<const QGroupBox*>(control)) {
        expectRoom(*frame, frame->title(), frame->fontMetrics().horizontalAdvance(frame->title()), frame->width());
      } else if (const auto* table = qobject_cast<const QTableView*>(control)) {
        expectRoomFor(*table->horizontalHeader());
        expectNothingAtItsRight(*table);
      } else if (const auto* page = qobject_cast<const QScrollArea*>(control)) {
        expectNothingAtItsRight(*page);
      }
    }
  }
  static void expectKeysOfTheirOwn(QWidget& window) {
    std::vector<QChar> keys = mnemonics(window);
    std::ranges::sort(keys);
    const auto twice = std::ranges::adjacent_find(keys);
    EXPECT_TRUE(twice == keys.end()) << "two controls have the key " << QString(*twice).toStdString();
  }
  static void expectWhole(QWidget& window) {
    SCOPED_TRACE(window.metaObject()->className());
    // As on a screen with room for it; that of the tests is a small one.
    window.resize(window.size().expandedTo(window.sizeHint()));
    expectKeysOfTheirOwn(window);
    auto* pages = window.findChild<QTabWidget*>();
    for (int page = 0; page < (pages == nullptr ? 1 : pages->count()); ++page) {
      if (pages != nullptr) {
        pages->setCurrentIndex(page);
      }
      QCoreApplication::processEvents();
      expectRoomInAll(window);
    }
  }

 private:
  const UsersLanguage language_;
};

TEST_F(GermanWindowsTest, TheMainWindowHasRoomForItsTexts) {
  addSite(1, server.url("/a"));
  openProgram();
  ASSERT_EQ(find<QPushButton>("btnSetup").text(), QStringLiteral("&Einrichten"));
  expectWhole(*master);
}

TEST_F(GermanWindowsTest, TheSettingsHaveRoomForTheirTexts) {
  open();
  master->setEditors({.site = {}, .settings = settingsDialogOf(master->program(), *master)});
  click("btnSetup");
  expectWhole(opened<ControlDialog>());
}

TEST_F(GermanWindowsTest, TheOutboxAndEveryKindOfChannelHaveRoomForTheirTexts) {
  open();
  master->setEditors({.site = {},
                      .settings = settingsDialogOf(master->program(), *master),
                      .outbox = outboxOf(master->program(), *master, {})});
  find<QAction>("outbox").trigger();
  expectWhole(opened<OutboxDialog>());
  opened<OutboxDialog>().reject();
  click("btnSetup");
  auto& dialog = opened<ControlDialog>();
  dialog.resize(dialog.size().expandedTo(dialog.sizeHint()));
  dialog.findChild<QTabWidget*>()->setCurrentIndex(2);
  for (const ChannelKind& kind : channelKinds()) {
    SCOPED_TRACE(kind.name);
    dialog.findChild<QAction*>(QStringLiteral("channelAdd_") + QString::fromStdString(kind.name))->trigger();
    QCoreApplication::processEvents();
    expectRoomInAll(dialog);
  }
}

TEST_F(GermanWindowsTest, TheFormsOfASiteHaveRoomForTheirTexts) {
  addSite(1, server.url("/a"));
  addVar(1, "name", "value");
  auto& editor = openEditor();
  expectWhole(editor);
  press(editor, "alarmQuietEdit");
  expectWhole(opened<QuietHoursDialog>());
  opened<QuietHoursDialog>().reject();
  editor.findChild<QTabWidget*>()->setCurrentIndex(0);
  press(editor, "Command7");
  expectWhole(opened<CountersDialog>());
  opened<CountersDialog>().reject();
  press(editor, "Command2");
  expectWhole(opened<ContentDialog>());
}

TEST(Translations, AreWholeAndNameNoTextThatIsGone) {
  const QDir folder(QStringLiteral(TARNWICK_TRANSLATIONS));
  const QStringList files = folder.entryList({QStringLiteral("tarnwick_*.ts")});
  ASSERT_FALSE(files.isEmpty());
  for (const QString& name : files) {
    QFile file(folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    int line = 0;
    for (const QByteArray& text : file.readAll().split('\n')) {
      ++line;
      EXPECT_FALSE(text.contains("<translation type=")) << name.toStdString() << ':' << line;
    }
  }
}

}  // namespace
}  // namespace tarnwick::testing
