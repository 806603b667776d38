// SPDX-License-Identifier: MIT
// What the details say while several sites are chosen.
#include "ui/details/same_changes.h"
#include "ui/support/master_fixture.h"

namespace tarnwick {
namespace {

using testing::MasterTest;
using testing::waitUntil;

class ChosenDetailsTest : public MasterTest {
 protected:
  ChosenDetailsTest() {
    for (int id = 1; id <= 5; ++id) {
      const std::string page = id < 4 ? "'new'" : "'old'";
      addSite(id, "http://localhost/" + std::to_string(id), ",status,lastChecked,content_compare,content_runtime",
              std::string(id < 4 ? ",0" : ",1") + ",'2024-02-03 04:05:06','old'," + page);
    }
    open();
  }
  SiteGridView& grid() { return find<SiteGridView>("grid1"); }
  QString headline() { return find<StatusLine>("detailsHeadline").text(); }
};

TEST_F(ChosenDetailsTest, SayHowManyAreDown) {
  QTest::keyClick(&grid(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(master.get(), Qt::Key_F4);
  EXPECT_TRUE(waitUntil([&] { return headline() == QStringLiteral("5 sites selected: 3 down"); }))
      << headline().toStdString();
  EXPECT_FALSE(find<QPushButton>("btnAccept").isEnabled());
  EXPECT_EQ(find<QPushButton>("btnAccept").toolTip(), QStringLiteral("Choose one site"));
  EXPECT_FALSE(find<QPushButton>("btnAcknowledge").isEnabled());
}

TEST_F(ChosenDetailsTest, SpeakOfTheSiteAgainWhenItIsTheOnlyOne) {
  QTest::keyClick(master.get(), Qt::Key_F4);
  QTest::keyClick(&grid(), Qt::Key_Down, Qt::ShiftModifier);
  ASSERT_TRUE(waitUntil([&] { return headline() == QStringLiteral("2 sites selected: 2 down"); }))
      << headline().toStdString();
  QTest::keyClick(&grid(), Qt::Key_Up);
  EXPECT_TRUE(waitUntil([&] { return headline().startsWith(QStringLiteral("Site 1 changed")); }))
      << headline().toStdString();
  EXPECT_TRUE(find<QPushButton>("btnAccept").isEnabled());
  EXPECT_FALSE(find<QWidget>("detailsSame").isVisible());
}

TEST_F(ChosenDetailsTest, LeadToWhatHasChangedInTheSameWay) {
  QTest::keyClick(&grid(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(master.get(), Qt::Key_F4);
  ASSERT_TRUE(waitUntil([&] { return find<QWidget>("detailsSame").isVisible(); }));
  click("detailsSame");
  EXPECT_NE(master->findChild<SameChanges*>(), nullptr);
}

}  // namespace
}  // namespace tarnwick
