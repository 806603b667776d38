// SPDX-License-Identifier: MIT
#include "ui/exchange/import_dialog.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <QAbstractItemView>
#include <QMenu>
#include <QSignalSpy>

#include "support/file_bytes.h"
#include "support/system.h"
#include "ui/support/dialog_fixture.h"
#include "ui/support/longest_gap.h"
#include "ui/support/patience.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

// In every build there is a reader for it.
const std::string kAddresses = "http://a.example/ First\nhttp://b.example Second\nmailto:me@example.org\n";

std::string manyAddresses(int count) {
  std::string lines;
  for (int i = 1; i <= count; ++i) {
    lines += "http://host" + std::to_string(i % 500) + ".example/" + std::to_string(i) + "\n";
  }
  return lines;
}

class ImportDialogTest : public DialogTest {
 protected:
  ImportDialogTest() {
    addSite(1, "http://b.example/");
    open();
    master->setEditors({.site = {}, .settings = {}, .importList = importOf(master->program(), *master)});
  }

  /// Chooses the file by the menu, as a user does, and waits until it is read.
  ImportDialog& choose(const std::string& bytes) {
    const std::string path = folder.file("import.txt");
    writeFile(path, bytes);
    machine.prompts.answerFile(path);
    find<QAction>("importList").trigger();
    auto& dialog = opened<ImportDialog>();
    waitUntil([&] { return !in<QWidget>(dialog, "importBar").isVisible(); });
    return dialog;
  }

  static std::string state(ImportDialog& dialog) { return in<QLabel>(dialog, "importState").text().toStdString(); }
  static bool isDone(ImportDialog& dialog) { return caption<QPushButton>(dialog, "btnCancel") == "Close"; }
  static std::vector<std::string> notes(ImportDialog& dialog) {
    auto* model = in<QAbstractItemView>(dialog, "importNotes").model();
    std::vector<std::string> lines;
    for (int row = 0; row < model->rowCount(); ++row) {
      lines.push_back(model->index(row, 0).data().toString().toStdString());
    }
    return lines;
  }
  std::string urls() { return folder.queryRows("select idSite, url from sites"); }
};

TEST_F(ImportDialogTest, ShowsWhatWouldComeAndTakesItWhenTheUserAgrees) {
  auto& dialog = choose(kAddresses);
  EXPECT_EQ(state(dialog), "New sites: 1. To change: 0. There already: 1. Not taken over, and named below: 3.");
  EXPECT_THAT(notes(dialog), ElementsAre("line 1, http://a.example/: not taken over: the text behind it, \"First\"",
                                         "line 2, http://b.example: not taken over: the text behind it, \"Second\"",
                                         "line 3, mailto:me@example.org: left out: it is the address of no page"));
  EXPECT_EQ(urls(), "1|http://b.example/\n") << "nothing is taken before the user agrees";
  EXPECT_EQ(rows(), 1);
  press(dialog, "btnImport");
  waitUntil([&] { return isDone(dialog); });
  EXPECT_EQ(urls(), "1|http://b.example/\n2|http://a.example/\n");
  EXPECT_EQ(rows(), 2) << "the list shows it at once";
  EXPECT_EQ(state(dialog), "Sites added: 1. Changed: 0. What was not taken over is named below.");
  EXPECT_FALSE(in<QPushButton>(dialog, "btnImport").isEnabled());
  EXPECT_EQ(caption<QPushButton>(dialog, "btnCancel"), "Close");
  press(dialog, "btnCancel");
  waitUntil([&] { return shown<ImportDialog>() == nullptr; });
}

TEST_F(ImportDialogTest, TakesNothingWhenTheUserDoesNotAgree) {
  auto& dialog = choose(kAddresses);
  QTest::keyClick(&dialog, Qt::Key_Escape);
  waitUntil([&] { return shown<ImportDialog>() == nullptr; });
  EXPECT_EQ(urls(), "1|http://b.example/\n");
}

TEST_F(ImportDialogTest, TellsTheFaultsOfABadFile) {
  auto& dialog = choose(kAddresses + "\x01\n");
  EXPECT_EQ(state(dialog), "Nothing can be imported. Faults of the file: 1.");
  EXPECT_THAT(
      notes(dialog),
      ElementsAre("line 4: a control character stands here, so this is no list of addresses: give a text file"));
  EXPECT_FALSE(in<QPushButton>(dialog, "btnImport").isEnabled());
}

TEST_F(ImportDialogTest, LetsTheUserSayWhatKindOfFileItIs) {
  auto& dialog = choose("localhost\n");
  EXPECT_THAT(state(dialog), HasSubstr("Choose it above"));
  auto& kind = in<QComboBox>(dialog, "importKind");
  kind.setFocus();
  QTest::keyClicks(&kind, QStringLiteral("List of a"));
  waitUntil([&] { return in<QPushButton>(dialog, "btnImport").isEnabled(); });
  EXPECT_THAT(state(dialog), HasSubstr("New sites: 1."));
  EXPECT_THAT(notes(dialog), IsEmpty());
}

TEST_F(ImportDialogTest, IsOfferedForEveryKindOfFileThatCanBeRead) {
  auto& dialog = choose(kAddresses);
  auto& kind = in<QComboBox>(dialog, "importKind");
  std::vector<std::string> words;
  for (int i = 1; i < kind.count(); ++i) {
    words.push_back(kind.itemData(i).toString().toStdString());
  }
  EXPECT_EQ(words, importWords());
}

TEST_F(ImportDialogTest, AnImportThatFailsTakesNothingAndCanBeTriedAgain) {
  auto& dialog = choose(kAddresses);
  folder.execute("create trigger full before insert on siteRows begin select raise(abort, 'no room'); end");
  press(dialog, "btnImport");
  waitUntil([&] { return machine.prompts.texts().size() > 1; });
  ASSERT_EQ(machine.prompts.texts().size(), 2U) << "the file chooser and the box";
  EXPECT_THAT(machine.prompts.texts()[1], HasSubstr("no room"));
  EXPECT_EQ(urls(), "1|http://b.example/\n");
  folder.execute("drop trigger full");
  waitUntil([&] { return in<QPushButton>(dialog, "btnImport").isEnabled(); });
  press(dialog, "btnImport");
  waitUntil([&] { return isDone(dialog); });
  EXPECT_EQ(urls(), "1|http://b.example/\n2|http://a.example/\n");
}

TEST_F(ImportDialogTest, HoldsTheWindowForMomentsOnly) {
  SKIP_ON_WINDOWS("There the program reads a file itself.");
  const std::chrono::milliseconds moment = patience(std::chrono::milliseconds(100));
  auto& dialog = choose(manyAddresses(32000));
  LongestGap planning;
  waitUntil([&] { return in<QPushButton>(dialog, "btnImport").isEnabled(); });
  EXPECT_LT(planning.longest(), moment) << "reading and planning";
  LongestGap writing;
  press(dialog, "btnImport");
  waitUntil([&] { return isDone(dialog); });
  EXPECT_LT(writing.longest(), moment) << "writing";
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "32001");
}

TEST_F(ImportDialogTest, EscapeInTheMiddleLeavesNothingOfIt) {
  auto& dialog = choose(manyAddresses(5000));
  waitUntil([&] { return in<QPushButton>(dialog, "btnImport").isEnabled(); });
  press(dialog, "btnImport");
  auto& bar = in<QProgressBar>(dialog, "importBar");
  waitUntil([&] { return bar.value() > bar.maximum() * 3 / 4; });
  EXPECT_TRUE(bar.isVisible());
  EXPECT_THAT(state(dialog), HasSubstr("Taking the sites into the list"));
  EXPECT_EQ(urls(), "1|http://b.example/\n") << "others see nothing of it before it is whole";
  QTest::keyClick(&dialog, Qt::Key_Escape);
  waitUntil([&] { return shown<ImportDialog>() == nullptr; });
  EXPECT_EQ(urls(), "1|http://b.example/\n");
  folder.execute("delete from sites");  // nobody has the list locked any more
}

TEST_F(ImportDialogTest, AnEditMeanwhileHasItDoneAtOnceAndIsStored) {
  auto& dialog = choose(manyAddresses(5000));
  waitUntil([&] { return in<QPushButton>(dialog, "btnImport").isEnabled(); });
  press(dialog, "btnImport");
  waitUntil([&] { return in<QProgressBar>(dialog, "importBar").value() > 500; });
  master->program().data().clearCounters(1);
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "5001");
  waitUntil([&] { return isDone(dialog); });
  EXPECT_TRUE(waitUntil([&] { return rows() == 5001; }));
  EXPECT_THAT(machine.prompts.texts(), ::testing::SizeIs(1)) << "the file chooser alone";
}

TEST_F(ImportDialogTest, WaitsForAnotherProgramThatHasTheListLocked) {
  auto& dialog = choose(kAddresses);
  waitUntil([&] { return in<QPushButton>(dialog, "btnImport").isEnabled(); });
  {
    Database others(folder.path(), machine.databases);
    const Transaction lock(others);
    press(dialog, "btnImport");
    waitUntil([&] { return QString::fromStdString(state(dialog)).contains(QStringLiteral("another program")); });
  }
  waitUntil([&] { return isDone(dialog); });
  EXPECT_EQ(urls(), "1|http://b.example/\n2|http://a.example/\n");
}

TEST_F(ImportDialogTest, ARunWaitsWithItsResultsAndLosesNone) {
  for (int id = 2; id <= 4; ++id) {
    server.respond("/" + std::to_string(id), {.body = "page"});
    addSite(id, server.url("/" + std::to_string(id)));
  }
  folder.execute("update sites set active = 0 where idSite = 1");
  auto& dialog = choose(manyAddresses(20000));
  waitUntil([&] { return in<QPushButton>(dialog, "btnImport").isEnabled(); });
  press(dialog, "btnImport");
  waitUntil([&] { return in<QProgressBar>(dialog, "importBar").value() > 500; });
  LongestGap hold;
  master->program().startRun();
  EXPECT_LT(hold.longest(), patience(std::chrono::milliseconds(100)));
  EXPECT_EQ(folder.queryText("select count(*) from log where status = 1"), "3");
  master->program().stopRun();
  waitUntil([&] { return isDone(dialog); });
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "20004");
  EXPECT_THAT(machine.prompts.texts(), ::testing::SizeIs(1)) << "the file chooser alone";
}

TEST_F(ImportDialogTest, AFileThatIsNotThereIsTold) {
  machine.prompts.answerFile(folder.file("gone.html"));
  find<QAction>("importList").trigger();
  auto& dialog = opened<ImportDialog>();
  waitUntil([&] { return !in<QWidget>(dialog, "importBar").isVisible(); });
  EXPECT_THAT(state(dialog), HasSubstr("gone.html"));
}

TEST_F(ImportDialogTest, ClosesWithTheProgramWhileItReads) {
  const std::string path = folder.file("many.txt");
  std::string lines;
  for (int i = 0; i < 30000; ++i) {
    lines += "http://a.example/" + std::to_string(i) + "\n";
  }
  writeFile(path, lines);
  machine.prompts.answerFile(path);
  find<QAction>("importList").trigger();
  EXPECT_NE(shown<ImportDialog>(), nullptr);
  master->close();
  EXPECT_FALSE(master->isVisible());
}

TEST_F(ImportDialogTest, EveryControlHasANameForThoseWhoDoNotSeeIt) {
  auto& dialog = choose(kAddresses);
  for (const char* name : {"importKind", "importNotes", "importBar", "btnImport", "btnCancel"}) {
    EXPECT_NE(spoken(in<QWidget>(dialog, name)), QString()) << name;
  }
  EXPECT_EQ(find<QPushButton>("listButton").text(), QStringLiteral("&List"));
  EXPECT_EQ(find<QPushButton>("listButton").accessibleName(), QStringLiteral("List: menu"));
}

}  // namespace
}  // namespace tarnwick::testing
