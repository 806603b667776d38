// SPDX-License-Identifier: MIT
#include "report/report_timer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "base/errors.h"
#include "report/report_fixture.h"
#include "support/hand_timers.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ReportTimerTest : public ReportFixture {
 protected:
  ReportTimerTest() { settings.setControl("cReports", true); }

  void tick(int times) {
    for (int i = 0; i < times; ++i) {
      timer.tmrReport_Timer();
    }
  }

  /// The next tick that writes a report, counted from 1; fails after two hours of ticks.
  int ticksToReport() {
    statuses.clear();
    for (int ticks = 1; ticks <= 120; ++ticks) {
      tick(1);
      if (!statuses.empty()) {
        return ticks;
      }
    }
    ADD_FAILURE() << "No report was made.";
    return 0;
  }

  bool running = true;
  std::vector<std::string> statuses;
  SettingsAndLog settings{database};
  HandTimers timers{clock};
  ReportTimer timer{{settings, report, clock, [this] { return running; },
                     [this](const std::string& text) { statuses.push_back(text); }},
                    timers,
                    [](const std::string&, const std::function<void()>& action) { action(); }};
};

TEST_F(ReportTimerTest, FirstRunningMinuteMakesAReportAndThenEveryFiftyNinth) {
  EXPECT_EQ(ticksToReport(), 1);
  EXPECT_TRUE(std::filesystem::exists(reportFile()));
  EXPECT_EQ(ticksToReport(), 59);
  EXPECT_EQ(ticksToReport(), 59);
}

TEST_F(ReportTimerTest, StatusLineTellsBeginningAndEnd) {
  tick(1);
  EXPECT_THAT(statuses, ElementsAre("Creating Report ...", "Report Done ..."));
}

TEST_F(ReportTimerTest, MinutesWithoutARunDoNotCount) {
  running = false;
  tick(200);
  EXPECT_THAT(statuses, IsEmpty());
  running = true;
  EXPECT_EQ(ticksToReport(), 1);
  tick(30);
  running = false;
  tick(200);
  running = true;
  EXPECT_EQ(ticksToReport(), 29);
}

TEST_F(ReportTimerTest, WithoutTheSettingItCountsAndWritesNothing) {
  settings.setControl("cReports", false);
  tick(1);
  EXPECT_THAT(statuses, IsEmpty());
  EXPECT_FALSE(std::filesystem::exists(reportFile()));
  settings.setControl("cReports", true);
  EXPECT_EQ(ticksToReport(), 59);
}

TEST_F(ReportTimerTest, NullSettingMeansNoReports) {
  folder.execute("update control set creports = null");
  tick(120);
  EXPECT_THAT(statuses, IsEmpty());
}

TEST_F(ReportTimerTest, FailedReportTravelsAndTheNextIsDueInFiftyNineMinutes) {
  std::filesystem::create_directory(folder.file("reports"));
  EXPECT_THROW(tick(1), FileError);
  EXPECT_THAT(statuses, ElementsAre("Creating Report ..."));
  std::filesystem::remove(folder.file("reports"));
  EXPECT_EQ(ticksToReport(), 59);
}

TEST_F(ReportTimerTest, TimerTicksEveryMinuteOncePrepared) {
  EXPECT_FALSE(timer.tmrReport().enabled());
  timer.prepare();
  EXPECT_TRUE(timer.tmrReport().enabled());
  EXPECT_EQ(timer.tmrReport().interval(), std::chrono::minutes(1));
}

TEST_F(ReportTimerTest, PreparingAgainMakesTheNextRunningMinuteTheFirst) {
  tick(5);
  timer.prepare();
  EXPECT_EQ(ticksToReport(), 1);
}

}  // namespace
}  // namespace tarnwick::testing
