// SPDX-License-Identifier: MIT
#include "program/program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "app/headless_platform.h"
#include "base/errors.h"
#include "support/program_fixture.h"

namespace tarnwick::testing {
namespace {

using std::chrono::seconds;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

std::vector<std::string> filesIn(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    names.push_back(entry.path().filename().string());
  }
  return names;
}

TEST(ProgramOnABadFolderTest, AMissingDatabaseIsAnErrorAndNothingIsCreated) {
  ProgramFolder folder;
  std::filesystem::remove(folder.databasePath());
  TestServices machine;
  SilentView view;
  Program program(folder.path(), machine.services(), view);
  EXPECT_THROW(program.start(), DataAccessError);
  EXPECT_THAT(filesIn(folder.path()), IsEmpty());
}

TEST(ProgramOnABadFolderTest, ADamagedDatabaseIsAnErrorThatNamesTheFile) {
  ProgramFolder folder;
  std::ofstream(folder.databasePath(), std::ios::trunc) << std::string(8192, 'x');
  TestServices machine;
  SilentView view;
  Program program(folder.path(), machine.services(), view);
  try {
    program.start();
    FAIL() << "a damaged database was accepted";
  } catch (const DataAccessError& error) {
    EXPECT_THAT(error.what(), HasSubstr("tarnwick.mdb"));
  }
}

TEST(ProgramOnABadFolderTest, WhatAKilledCompactionLeftIsGoneAfterTheStart) {
  ProgramFolder folder;
  for (const char* left : {"backup.mdb.new", "tarnwick.mdb.new", "temp.mdb-journal"}) {
    std::ofstream(folder.file(left)) << "a copy with passwords";
  }
  for (const char* kept : {"backup.mdb", "temp.mdb"}) {
    std::ofstream(folder.file(kept)) << "whole";
  }
  TestServices machine;
  SilentView view;
  Program program(folder.path(), machine.services(), view);
  program.start();
  EXPECT_THAT(filesIn(folder.path()), ::testing::IsSupersetOf({"backup.mdb", "temp.mdb", "tarnwick.mdb"}));
  EXPECT_THAT(filesIn(folder.path()), ::testing::Not(::testing::Contains(::testing::EndsWith(".new"))));
  EXPECT_THAT(filesIn(folder.path()), ::testing::Not(::testing::Contains("temp.mdb-journal")));
}

TEST(ProgramOnABadFolderTest, ClosingAProgramThatNeverOpenedIsHarmless) {
  ProgramFolder folder;
  TestServices machine;
  SilentView view;
  Program program(folder.path(), machine.services(), view);
  program.close();
  EXPECT_TRUE(machine.pump.closing());
}

TEST(HeadlessProgramTest, RunsOnTheRealMachine) {
  ProgramFolder folder;
  HttpServer server;
  server.respond("/a", {.body = "hello"});
  HeadlessPlatform machine;
  SilentView view;
  Program program(folder.path(), machine.services(), view);
  program.start();
  const std::int16_t id = program.data().addSite();
  program.data().updateSites(id, server.url("/a"), "get", true, 10, false, "", "", "");
  program.run().startChecking();
  EXPECT_EQ(program.data().getContentCompare(id), "hello");
}

class ProgramTest : public ::testing::Test, public ProgramFixture {
 protected:
  ProgramTest() : ProgramFixture(TestServices::Time::byHand) { program.start(); }
};

TEST_F(ProgramTest, TheStartRenumbersThePostVariables) {
  folder.execute("insert into postVars (idPostVars,idSite,pname,pvalue) values (9,1,'a','b'),(12,1,'c','d')");
  program.start();
  EXPECT_EQ(folder.queryRows("select idPostVars,pname from postVars order by 1"), "1|a\n2|c\n");
}

TEST_F(ProgramTest, ARunWritesTheReportAtItsFirstMinuteAndAtEvery59thAfter) {
  program.data().setControl("creports", true);
  std::filesystem::create_directories(folder.file("reports"));
  std::ofstream(folder.file("reports/green.jpg")) << "bar";
  machine.handTimers.advance(seconds(600));
  EXPECT_FALSE(std::filesystem::exists(folder.file("reports/report.html"))) << "no run is on";
  program.startRun();
  machine.handTimers.advance(seconds(60));
  EXPECT_TRUE(std::filesystem::exists(folder.file("reports/report.html")));
  EXPECT_TRUE(view.showed("Creating Report ..."));
  EXPECT_TRUE(view.showed("Report Done ..."));
  std::filesystem::remove(folder.file("reports/report.html"));
  machine.handTimers.advance(seconds(58 * 60));
  EXPECT_FALSE(std::filesystem::exists(folder.file("reports/report.html")));
  machine.handTimers.advance(seconds(60));
  EXPECT_TRUE(std::filesystem::exists(folder.file("reports/report.html")));
}

TEST_F(ProgramTest, AReportThatCannotBeWrittenIsToldOnceAndTheRunGoesOn) {
  program.data().setControl("creports", true);
  std::ofstream(folder.file("reports")) << "a file where the folder should be";
  program.startRun();
  machine.handTimers.advance(std::chrono::hours(3));
  EXPECT_THAT(machine.prompts.texts(), SizeIs(1));
  EXPECT_TRUE(program.run().running());
}

TEST_F(ProgramTest, TheDatabaseCanBeCompactedBetweenTwoPassesOfARun) {
  const std::int16_t id = addPage("/a", "hello");
  program.startRun();
  EXPECT_TRUE(program.data().compact());
  EXPECT_TRUE(std::filesystem::exists(folder.file("backup.mdb")));
  machine.handTimers.advance(seconds(602));
  EXPECT_EQ(column(id, "success"), "2");
}

TEST_F(ProgramTest, ASecondRunOnTheSameFolderIsRefusedWithOneBoxUntilTheFirstIsStopped) {
  addPage("/a", "hello");
  ASSERT_TRUE(program.startRun());
  TestServices other;
  RecordingView otherView;
  Program second(folder.path(), other.services(), otherView);
  second.start();
  EXPECT_FALSE(second.startRun());
  EXPECT_FALSE(second.run().running());
  ASSERT_THAT(other.prompts.texts(), SizeIs(1));
  EXPECT_THAT(other.prompts.texts().front(), ::testing::HasSubstr("A run is on in this folder already"));
  EXPECT_EQ(column(1, "success"), "1");
  program.stopRun();
  EXPECT_TRUE(second.startRun());
  EXPECT_EQ(column(1, "success"), "2");
  second.close();
}

TEST(ClosedProgramTest, LeavesTheDatabaseAloneInItsFolder) {
  ProgramFolder folder;
  HttpServer server;
  server.respond("/a", {.body = "hello"});
  {
    TestServices machine;
    SilentView view;
    Program program(folder.path(), machine.services(), view);
    program.start();
    const std::int16_t id = program.data().addSite();
    program.data().updateSites(id, server.url("/a"), "get", true, 10, false, "", "", "");
    ASSERT_TRUE(program.startRun());
    program.close();
    EXPECT_FALSE(program.run().running());
  }
  EXPECT_THAT(filesIn(folder.path()), ::testing::ElementsAre("tarnwick.mdb"));
}

}  // namespace
}  // namespace tarnwick::testing
