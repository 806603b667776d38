// SPDX-License-Identifier: MIT
// The icon beside the clock of the desktop, played by one that only records, on a real window and list.
#include "ui/main_window/tray.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>
#include <QTableView>

#include "ui/support/master_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;

class PlayedTray final : public TrayIcon {
 public:
  struct Seen {
    bool there = true;
    QString text{};
    QImage picture{};
    QMenu* menu = nullptr;
    std::function<void()> clicked{};
  };
  explicit PlayedTray(Seen& seen) : seen_(seen) {}

  bool isThere() const override { return seen_.there; }
  void show(const QIcon& icon, const QString& text) override {
    seen_.text = text;
    seen_.picture = icon.pixmap(QSize(16, 16), 1.0).toImage();
  }
  void setMenu(QMenu& menu) override { seen_.menu = &menu; }
  void onClicked(std::function<void()> clicked) override { seen_.clicked = std::move(clicked); }

 private:
  Seen& seen_;
};

class TrayTest : public MasterTest {
 protected:
  ~TrayTest() override {
    master.reset();
    QApplication::setQuitOnLastWindowClosed(true);
  }
  void openWithTray() {
    open();
    master->setEditors({.site = {}, .settings = {}, .outbox = [this] { ++outboxes; }});
    master->useTray(std::make_unique<PlayedTray>(seen), [this] { return closes; });
  }
  /// A site that was checked last with that outcome.
  void addJudged(int id, const std::string& url, int status) {
    addSite(id, url, ",status,lastChecked", "," + std::to_string(status) + ",'2026-11-22 08:00:00'");
  }
  QAction& action(const char* name) {
    auto* found = seen.menu->findChild<QAction*>(QString::fromLatin1(name));
    if (found == nullptr) {
      throw std::runtime_error(std::string("The menu has no ") + name);
    }
    return *found;
  }
  std::vector<std::string> worst() {
    std::vector<std::string> texts;
    for (int place = 0; place < 5; ++place) {
      const QAction& site = action(("traySite" + std::to_string(place)).c_str());
      if (site.isVisible()) {
        texts.push_back(site.text().toStdString());
      }
    }
    return texts;
  }
  bool shows(const char* text) {
    return waitUntil([&] { return seen.text == QString::fromUtf8(text); });
  }

  PlayedTray::Seen seen;
  bool closes = true;
  int outboxes = 0;
};

TEST_F(TrayTest, TellsHowTheSitesStandAndNamesTheWorst) {
  addJudged(1, "http://a.test/&x", 1);
  addJudged(2, "http://b.test/p?a=1&b=2", 0);
  addSite(3, "http://c.test/");
  openWithTray();
  ASSERT_TRUE(shows("Tarnwick: 1 of 3 sites down")) << seen.text.toStdString();
  EXPECT_EQ(action("traySummary").text(), QStringLiteral("1 of 3 sites down"));
  EXPECT_FALSE(action("traySummary").isEnabled());
  EXPECT_THAT(worst(), ElementsAre("b.test/p?a=1&&b=2"));
  EXPECT_EQ(seen.picture.pixelColor(8, 2), QColor(0xC03030));
  folder.execute("update sites set status = 1");
  master->program().run().init();
  ASSERT_TRUE(shows("Tarnwick: 0 of 3 sites down"));
  EXPECT_THAT(worst(), ::testing::IsEmpty());
  EXPECT_EQ(seen.picture.pixelColor(8, 2), QColor(0x73DB9F));
}

TEST_F(TrayTest, ASiteThatIsChosenThereIsShownInTheWindow) {
  addJudged(1, "http://a.test/", 1);
  addJudged(2, "http://b.test/", 0);
  openWithTray();
  ASSERT_TRUE(shows("Tarnwick: 1 of 2 sites down"));
  master->close();
  ASSERT_FALSE(master->isVisible());
  action("traySite0").trigger();
  EXPECT_TRUE(master->isVisible());
  EXPECT_EQ(find<SiteGridView>("grid1").currentSite(), std::optional<std::int16_t>(2));
}

TEST_F(TrayTest, ClosesToTheTrayWhereThatIsWantedAndItIsThere) {
  openWithTray();
  EXPECT_FALSE(master->close());
  EXPECT_FALSE(master->isVisible());
  EXPECT_FALSE(machine.pump.closing());
  seen.clicked();
  EXPECT_TRUE(master->isVisible());
  EXPECT_TRUE(QApplication::quitOnLastWindowClosed());
  closes = false;
  EXPECT_TRUE(master->close());
  EXPECT_TRUE(machine.pump.closing()) << "closing ends the program";
}

TEST_F(TrayTest, WithoutAPlaceForItClosingEndsTheProgram) {
  seen.there = false;
  openWithTray();
  EXPECT_TRUE(master->close());
  EXPECT_TRUE(machine.pump.closing());
}

TEST_F(TrayTest, TheWindowComesBackWhenThePlaceGoes) {
  openWithTray();
  master->close();
  ASSERT_FALSE(master->isVisible());
  seen.there = false;
  EXPECT_TRUE(waitUntil([&] { return master->isVisible(); }));
}

TEST_F(TrayTest, QuitEndsTheProgramAlsoFromTheTray) {
  openWithTray();
  master->close();
  ASSERT_FALSE(master->isVisible());
  action("trayQuit").trigger();
  EXPECT_TRUE(machine.pump.closing());
}

TEST_F(TrayTest, TheMenuStartsStopsPausesAndOpensTheOutbox) {
  openWithTray();
  ASSERT_TRUE(shows("Tarnwick: No site is active"));
  EXPECT_EQ(action("trayStart").text(), QStringLiteral("Start"));
  action("trayStart").trigger();
  EXPECT_TRUE(master->program().run().running());
  EXPECT_EQ(action("trayStart").text(), QStringLiteral("Stop"));
  action("trayStart").trigger();
  EXPECT_FALSE(master->program().run().running());

  action("trayPause").trigger();
  EXPECT_THAT(master->program().data().options(kAllSites).at("pause"), ::testing::HasSubstr("until "));
  ASSERT_TRUE(waitUntil([&] { return action("trayPause").text() == u"Resume Alerts"; }));
  action("trayPause").trigger();
  EXPECT_FALSE(master->program().data().options(kAllSites).contains("pause"));

  m& data = master->program().data();
  data.storeChannel({.name = "desk", .kind = "desktop notice", .on = false});
  {
    Transaction whole(data.database());
    const std::int64_t channel = 1;
    data.addAlert({.made = machine.clock().localNow(), .event = "online"}, {&channel, 1});
    whole.commit();
  }
  Q_EMIT seen.menu->aboutToShow();
  EXPECT_EQ(action("trayOutbox").text(), QStringLiteral("Outbox: 1 waiting…"));
  action("trayOutbox").trigger();
  EXPECT_EQ(outboxes, 1);
}

TEST(WorstSitesTest, EveryStateHasAnIconOfItsOwn) {
  std::vector<QImage> pictures;
  for (int state = 0; state <= static_cast<int>(SiteState::offline); ++state) {
    pictures.push_back(iconOf(static_cast<SiteState>(state)).pixmap(QSize(22, 22), 1.0).toImage());
    for (std::size_t other = 0; other + 1 < pictures.size(); ++other) {
      EXPECT_NE(pictures[other], pictures.back()) << other << " and " << state;
    }
  }
}

}  // namespace
}  // namespace tarnwick::testing
