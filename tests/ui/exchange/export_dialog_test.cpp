// SPDX-License-Identifier: MIT
#include "ui/exchange/export_dialog.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "support/file_bytes.h"
#include "ui/support/dialog_fixture.h"
#include "ui/support/longest_gap.h"
#include "ui/support/patience.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class ExportDialogTest : public DialogTest {
 protected:
  ExportDialogTest() {
    addSite(1, "http://b.example/");
    folder.execute(
        "update sites set sPassWord = 'open sesame', content_compare = 'the page' where idSite = 1;"
        "insert into hours values (1, 1795446000, 6, 3600, 0, 600, 200, x'3006');"
        "insert into latestChecks (idSite, at, up) values (1, 1795449000, 1)");
    open();
    master->setEditors({.site = {}, .settings = {}, .exportList = exportOf(master->program(), *master)});
  }

  ExportDialog& openExport() {
    find<QAction>("exportList").trigger();
    return opened<ExportDialog>();
  }
  void exportTo(ExportDialog& dialog, const std::string& file) {
    machine.prompts.answerFile(file);
    press(dialog, "btnExport");
    waitUntil([&] { return !in<QWidget>(dialog, "exportBar").isVisible(); });
  }
  static std::string state(ExportDialog& dialog) { return in<QLabel>(dialog, "exportState").text().toStdString(); }
  std::string lastBox() { return machine.prompts.shown().back().text; }
  std::size_t filesInFolder() const {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder.path()), {}));
  }
};

TEST_F(ExportDialogTest, TheListGoesIntoAFileByItsEnding) {
  auto& dialog = openExport();
  exportTo(dialog, folder.file("sites.csv"));
  EXPECT_THAT(bytesOfFile(folder.file("sites.csv")), HasSubstr("http://b.example/"));
  EXPECT_THAT(state(dialog), HasSubstr("Exported 1 site to "));
  EXPECT_EQ(caption<QPushButton>(dialog, "btnCancelExport"), "Close");
  exportTo(dialog, folder.file("sites.json"));
  EXPECT_EQ(bytesOfFile(folder.file("sites.json")).front(), '{');
  press(dialog, "btnCancelExport");
  waitUntil([&] { return shown<ExportDialog>() == nullptr; });
}

TEST_F(ExportDialogTest, HoldsWhatIsWished) {
  auto& dialog = openExport();
  const std::string file = folder.file("sites.json");
  exportTo(dialog, file);
  EXPECT_THAT(bytesOfFile(file), HasSubstr("open sesame"));
  EXPECT_THAT(bytesOfFile(file), Not(HasSubstr("the page")));
  EXPECT_THAT(bytesOfFile(file), Not(HasSubstr("hour 1795446000")));
  for (const char* const box : {"exportPasswords", "exportBaselines", "exportHistory"}) {
    auto& wish = in<QCheckBox>(dialog, box);
    wish.setFocus();
    QTest::keyClick(&wish, Qt::Key_Space);
  }
  machine.prompts.answerConfirm(true);
  exportTo(dialog, file);
  EXPECT_THAT(bytesOfFile(file), Not(HasSubstr("open sesame")));
  EXPECT_THAT(bytesOfFile(file), HasSubstr("the page"));
  EXPECT_THAT(bytesOfFile(file), HasSubstr("hour 1795446000 6 3600 0 600 200 MAY="));
}

TEST_F(ExportDialogTest, OneThatFailsLeavesNothingAndSaysSo) {
  auto& dialog = openExport();
  exportTo(dialog, folder.file("sites.txt"));
  EXPECT_THAT(lastBox(), HasSubstr("ends neither in .csv nor in .json"));
  exportTo(dialog, folder.file("tarnwick.mdb.csv/none/sites.csv"));
  EXPECT_THAT(lastBox(), HasSubstr("sites.csv"));
  EXPECT_FALSE(machine.services().files.exists(folder.file("sites.txt")));
  writeFile(folder.file("there.csv"), "mine");
  machine.prompts.answerConfirm(false);
  exportTo(dialog, folder.file("there.csv"));
  EXPECT_EQ(bytesOfFile(folder.file("there.csv")), "mine");
  EXPECT_TRUE(machine.prompts.shown().back().destroys);
  EXPECT_TRUE(in<QPushButton>(dialog, "btnExport").isEnabled()) << "for the next attempt";
}

TEST_F(ExportDialogTest, OneThatIsNotWaitedForLeavesWhatWasThere) {
  folder.execute(
      "insert into sites (idSite, url, method, active, tInterval) with recursive n (i) as (select 2 union all select "
      "i + 1 from n where i < 20000) select i, 'http://a.example/' || i, 'get', 0, 10 from n");
  const std::string file = folder.file("there.csv");
  writeFile(file, "mine");
  const std::size_t before = filesInFolder();
  auto& dialog = openExport();
  machine.prompts.answerFile(file);
  machine.prompts.answerConfirm(true);
  press(dialog, "btnExport");
  waitUntil([&] { return state(dialog).starts_with("Sites written: "); });
  EXPECT_TRUE(in<QWidget>(dialog, "exportBar").isVisible());
  QTest::keyClick(&dialog, Qt::Key_Escape);
  waitUntil([&] { return shown<ExportDialog>() == nullptr; });
  EXPECT_EQ(bytesOfFile(file), "mine");
  EXPECT_EQ(filesInFolder(), before);
}

TEST_F(ExportDialogTest, HoldsTheWindowForMomentsOnly) {
  folder.execute(
      "insert into sites (idSite, url, method, active, tInterval) with recursive n (i) as (select 2 union all select "
      "i + 1 from n where i < 32767) select i, 'http://a.example/' || i, 'get', 0, 10 from n");
  auto& dialog = openExport();
  machine.prompts.answerFile(folder.file("sites.json"));
  LongestGap writing;
  press(dialog, "btnExport");
  waitUntil([&] { return state(dialog).starts_with("Exported 32767 sites"); });
  EXPECT_LT(writing.longest(), patience(std::chrono::milliseconds(60)));
}

}  // namespace
}  // namespace tarnwick::testing
