// SPDX-License-Identifier: MIT
#include "ui/main_window/master.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <QDir>
#include <QEvent>
#include <QHeaderView>
#include <QRegularExpression>

#include "ui/controls/colour_text.h"
#include "ui/support/master_fixture.h"

namespace tarnwick {
namespace {

using testing::MasterTest;

TEST_F(MasterTest, StartsWithoutARun) {
  open();
  EXPECT_EQ(status(), QStringLiteral("Ready ..."));
  EXPECT_EQ(master->windowTitle(), QStringLiteral("Tarnwick"));
  EXPECT_FALSE(master->program().run().running());
  EXPECT_FALSE(master->program().run().tmrCheckSites().enabled());
  EXPECT_TRUE(master->program().run().Timer2().enabled());
  EXPECT_EQ(find<QLabel>("lClock").text(), QString());
  EXPECT_FALSE(find<QLabel>("copyright").text().isEmpty());
  EXPECT_TRUE(machine.prompts.shown().empty());
}

TEST_F(MasterTest, TheVersionIsMajorAndMinor) {
  open();
  const QRegularExpression form(QStringLiteral("^Version:\\d+\\.\\d+$"));
  EXPECT_TRUE(form.match(find<QLabel>("lblVersion").text()).hasMatch());
}

TEST_F(MasterTest, AFolderThatIsNotTheProgramsOwnIsNamedAtTheFoot) {
  open();
  const QString shown = QDir::toNativeSeparators(QString::fromStdString(folder.path()));
  // A folder in the user's own is told from there on.
  EXPECT_TRUE(find<QLabel>("copyright").text().endsWith(QDir::separator() + QDir(shown).dirName()));
  EXPECT_TRUE(find<QLabel>("lblVersion").toolTip().contains(shown));
  EXPECT_EQ(master->windowTitle(), QStringLiteral("Tarnwick"));
}

/// What a label shows whenever it is painted.
class PaintedTexts final : public QObject {
 public:
  explicit PaintedTexts(QLabel& label) { label.installEventFilter(this); }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      texts << static_cast<QLabel*>(watched)->text();
    }
    return false;
  }
  QStringList texts;
};

TEST_F(MasterTest, LoadingIsToBeSeen) {
  master = std::make_unique<Master>(folder.path(), machine.services());
  PaintedTexts painted(find<QLabel>("lStatus"));
  ASSERT_TRUE(master->load());
  EXPECT_TRUE(master->isVisible());
  ASSERT_FALSE(painted.texts.isEmpty());
  EXPECT_EQ(painted.texts.first(), QStringLiteral("Loading ..."));
  EXPECT_EQ(status(), QStringLiteral("Ready ..."));
}

TEST_F(MasterTest, TheBarIsFullAtStart) {
  open();
  EXPECT_DOUBLE_EQ(find<PassBar>("pb1").part(), 1.0);
}

TEST_F(MasterTest, AMissingDatabaseIsToldInOneBoxAndNotCreated) {
  std::filesystem::remove(folder.databasePath());
  master = std::make_unique<Master>(folder.path(), machine.services());
  EXPECT_FALSE(master->load());
  EXPECT_FALSE(master->isVisible());
  ASSERT_EQ(machine.prompts.shown().size(), 1U);
  EXPECT_NE(machine.prompts.shown()[0].text.find("tarnwick.mdb"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(folder.databasePath()));
}

TEST_F(MasterTest, InPlaceOfADamagedDatabaseACopyCanBeChosen) {
  std::filesystem::copy_file(folder.databasePath(), folder.file("copy.mdb"));
  const auto damage = [&](const std::string& path) { std::ofstream(path, std::ios::trunc) << "no list"; };
  damage(folder.databasePath());
  damage(folder.file("bad.mdb"));
  master = std::make_unique<Master>(folder.path(), machine.services());
  machine.prompts.answerConfirm(true);
  machine.prompts.answerFile(folder.file("bad.mdb"));
  machine.prompts.answerConfirm(true);
  machine.prompts.answerFile(folder.file("copy.mdb"));
  EXPECT_FALSE(master->load() && !master->isLoaded());
  EXPECT_TRUE(master->isLoaded());
  EXPECT_TRUE(master->isVisible());
  EXPECT_EQ(status(), QStringLiteral("Ready ..."));
  const std::vector<std::string> texts = machine.prompts.texts();
  ASSERT_EQ(texts.size(), 6U);
  EXPECT_NE(texts[0].find("is damaged or is no database"), std::string::npos);
  EXPECT_NE(texts[2].find("is no sound copy of a list"), std::string::npos);
  EXPECT_NE(texts[5].find("replaced-"), std::string::npos);
}

TEST_F(MasterTest, WhoChoosesNoCopyKeepsTheDamagedDatabase) {
  std::ofstream(folder.databasePath(), std::ios::trunc) << "no list";
  master = std::make_unique<Master>(folder.path(), machine.services());
  machine.prompts.answerConfirm(false);
  EXPECT_FALSE(master->load());
  EXPECT_FALSE(master->isVisible());
  EXPECT_EQ(std::filesystem::file_size(folder.databasePath()), 7U);
}

TEST_F(MasterTest, TheLampOfTheStateIsLit) {
  open();
  const auto lit = [&](const char* bar, std::string_view colour) {
    return find<LampBar>(bar).colour() == colourFromText(colour);
  };
  EXPECT_TRUE(lit("indicator1_0", colours::kRedBright) && lit("indicator1_1", colours::kRedBright));
  EXPECT_TRUE(lit("indicator2_0", colours::kYellowDim) && lit("indicator2_1", colours::kYellowDim));
  EXPECT_TRUE(lit("indicator3_0", colours::kGreenDim) && lit("indicator3_1", colours::kGreenDim));
  master->indicators(RunState::pause);
  EXPECT_TRUE(lit("indicator1_0", colours::kRedDim));
  EXPECT_TRUE(lit("indicator2_0", colours::kYellowBright));
  master->indicators(RunState::start);
  EXPECT_TRUE(lit("indicator2_1", colours::kYellowDim));
  EXPECT_TRUE(lit("indicator3_0", colours::kGreenBright) && lit("indicator3_1", colours::kGreenBright));
}

TEST_F(MasterTest, TheLitLampAlternatesInARunAndStandsSteadyWhenStopped) {
  open();
  master->indicators(RunState::pause);
  master->blinkLamps();
  EXPECT_NE(find<LampBar>("indicator2_0").colour(), find<LampBar>("indicator2_1").colour());
  EXPECT_EQ(find<LampBar>("indicator1_0").colour(), find<LampBar>("indicator1_1").colour());
  master->indicators(RunState::stop);
  master->blinkLamps();
  for (const char* lamp : {"indicator1", "indicator2", "indicator3"}) {
    const std::string name = lamp;
    EXPECT_EQ(find<LampBar>((name + "_0").c_str()).colour(), find<LampBar>((name + "_1").c_str()).colour()) << name;
  }
}

TEST_F(MasterTest, TheClockIsShownAsItIsGiven) {
  open();
  master->showClock("Run Time: 001:05:09");
  EXPECT_EQ(find<QLabel>("lClock").text(), QStringLiteral("Run Time: 001:05:09"));
}

TEST_F(MasterTest, TheStatusLineTakesAddressesForText) {
  open();
  master->showStatus("Testing: http://localhost/<b>x</b>");
  EXPECT_EQ(status(), QStringLiteral("Testing: http://localhost/<b>x</b>"));
  EXPECT_EQ(find<QLabel>("lStatus").textFormat(), Qt::PlainText);
}

TEST_F(MasterTest, MissingBitmapsLeaveButtonsWithTheirText) {
  open();
  for (const char* name : {"imgStart", "imgStop", "imgNew", "imgSetup", "imgLogoSmall"}) {
    EXPECT_TRUE(find<PictureButton>(name).picture().isNull()) << name;
    EXPECT_FALSE(find<PictureButton>(name).grab().isNull()) << name;
  }
  EXPECT_TRUE(machine.prompts.shown().empty());
  click("imgNew");
  EXPECT_EQ(rows(), 1);
}

TEST_F(MasterTest, ThePicturesAreLoadedFromTheProgramFolder) {
  layImages();
  open();
  for (const char* name : {"imgStart", "imgStop", "imgNew", "imgSetup"}) {
    EXPECT_EQ(find<PictureButton>(name).sizeHint(), QSize(72, 56)) << name;
  }
  EXPECT_EQ(find<PictureButton>("imgLogoSmall").sizeHint(), QSize(107, 32));
  EXPECT_FALSE(master->windowIcon().isNull());
}

TEST_F(MasterTest, APictureButtonShowsItsPressedBitmapWhileTheMouseButtonIsDown) {
  layImages();
  open();
  auto& button = find<PictureButton>("imgStop");
  const auto released = button.picture().cacheKey();
  QTest::mousePress(&button, Qt::LeftButton);
  EXPECT_NE(button.picture().cacheKey(), released);
  QTest::mouseRelease(&button, Qt::LeftButton);
  EXPECT_EQ(button.picture().cacheKey(), released);
  EXPECT_EQ(status(), QStringLiteral("Stopped."));
}

TEST_F(MasterTest, SetupIsOfferedOnlyWhenThereIsSomethingToOpen) {
  open();
  EXPECT_FALSE(find<QWidget>("btnSetup").isEnabled());
  EXPECT_FALSE(find<QWidget>("imgSetup").isEnabled());
  int opened = 0;
  master->setEditors({.site = {}, .settings = [&] { ++opened; }});
  click("btnSetup");
  click("imgSetup");
  EXPECT_EQ(opened, 2);
}

TEST_F(MasterTest, HelpOpensThePageBesideTheProgram) {
  open();
  click("Label1");
  QTest::keyClick(&find<QWidget>("Label1"), Qt::Key_Return);
  QTest::keyClick(master.get(), Qt::Key_F1);
  const std::string help = folder.file("help.html");
  EXPECT_EQ(machine.opener.opened, (std::vector<std::string>{help, help, help}));
  EXPECT_TRUE(machine.prompts.shown().empty());
}

TEST_F(MasterTest, TheLogoOpensTheHomePage) {
  open();
  click("imgLogoSmall");
  QTest::keyClick(&find<QWidget>("imgLogoSmall"), Qt::Key_Space);
  EXPECT_EQ(machine.opener.opened,
            (std::vector<std::string>{"https://www.tarnwick.example/", "https://www.tarnwick.example/"}));
}

TEST_F(MasterTest, ADesktopThatRefusesIsToldWhereThePageLies) {
  open();
  machine.opener.result = false;
  click("Label1");
  ASSERT_EQ(machine.prompts.shown().size(), 1U);
  EXPECT_NE(machine.prompts.shown()[0].text.find(folder.file("help.html")), std::string::npos);
}

TEST_F(MasterTest, EveryControlHasANameForThoseWhoDoNotSeeIt) {
  open();
  for (const char* name : {"btnStart", "btnStop", "btnNew", "btnSetup", "imgStart", "imgStop", "imgNew", "imgSetup",
                           "imgLogoSmall", "Label1", "grid1", "pb1", "lStatus", "indicator1", "indicator2",
                           "indicator3", "indicator1_0", "indicator3_1"}) {
    EXPECT_FALSE(find<QWidget>(name).accessibleName().isEmpty()) << name;
  }
}

TEST_F(MasterTest, EveryControlThatActsIsReachedWithTheTabKey) {
  open();
  master->setEditors({.site = {}, .settings = [] {}});
  for (const char* name : {"btnStart", "btnStop", "btnNew", "btnSetup", "imgStart", "imgStop", "imgNew", "imgSetup",
                           "imgLogoSmall", "Label1", "grid1"}) {
    EXPECT_TRUE(find<QWidget>(name).focusPolicy() & Qt::TabFocus) << name;
  }
}

TEST_F(MasterTest, TheCommandButtonsHaveMnemonics) {
  open();
  EXPECT_EQ(find<QPushButton>("btnStart").text(), QStringLiteral("&Start"));
  EXPECT_EQ(find<QPushButton>("btnStop").text(), QStringLiteral("S&top"));
  EXPECT_EQ(find<QPushButton>("btnNew").text(), QStringLiteral("&New"));
  EXPECT_EQ(find<QPushButton>("btnSetup").text(), QStringLiteral("Set&up"));
}

TEST_F(MasterTest, TheGridGrowsWithTheWindow) {
  open();
  const QSize before = find<QWidget>("grid1").size();
  master->resize(master->size() + QSize(200, 100));
  testing::waitUntil([&] { return find<QWidget>("grid1").size() != before; });
  EXPECT_EQ(find<QWidget>("grid1").size(), before + QSize(200, 100));
}

TEST_F(MasterTest, TheColumnsHaveTheirSharesOfTheWindow) {
  addSite(1, "http://localhost/");
  open();
  auto& grid = find<SiteGridView>("grid1");
  const double url = grid.columnWidth(SiteGridModel::urlColumn);
  EXPECT_NEAR(url / grid.columnWidth(SiteGridModel::upColumn), 7, 0.1);
  EXPECT_NEAR(
      static_cast<double>(grid.columnWidth(SiteGridModel::downColumn)) / grid.columnWidth(SiteGridModel::upColumn),
      1.08, 0.02);
  EXPECT_EQ(grid.columnWidth(SiteGridModel::idColumn), grid.columnWidth(SiteGridModel::timeColumn));
  EXPECT_EQ(grid.horizontalHeader()->length(), grid.viewport()->width());
}

}  // namespace
}  // namespace tarnwick
