// SPDX-License-Identifier: MIT
// A disk that is full, or soon would be: what is down is told all the same, and what is there already is made use of.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>

#include "faults/faults_fixture.h"
#include "store/option_table.h"
#include "support/faulty_disk.h"

namespace tarnwick::testing {
namespace {

using std::chrono::minutes;
using std::chrono::seconds;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;

constexpr std::int64_t kKib = 1024;

class NoRoom : public ::testing::Test {
 protected:
  /// The page of site 4, which is not what it was.
  void downWith(std::size_t bytes) { used.server.respond("/down", {.body = std::string(bytes, 'z')}); }
  static std::size_t alarms(const RunningProgram& running) { return running.machine.sound.played.size(); }
  std::size_t requests() const { return used.server.requests().size(); }

  FaultyDisk disk;
  UsedFolder used;
};

TEST_F(NoRoom, AResultIsRecordedWithoutThePageThatTheDiskCannotTake) {
  downWith(3 << 20);
  RunningProgram running(used);
  disk.leaveRoom(500 * kKib);
  EXPECT_TRUE(running.program.startRun());
  EXPECT_EQ(alarms(running), 1U);
  EXPECT_EQ(running.boxTexts(), "");
  used.expectAllRecordedOnce("");
  EXPECT_THAT(used.text("select content_runtime from sites where idSite = 4"), HasSubstr("was not kept"));
  EXPECT_THAT(used.text("select errDescription || content from log where idSite = 4 and dateStamp >= '2024-05-17'"),
              HasSubstr("was not kept"));
  EXPECT_THAT(running.program.data().reasonOf(4), HasSubstr("was not kept"));
  EXPECT_EQ(used.falseAlarms(), "");
  disk.heal();
  EXPECT_EQ(used.integrity(), "ok");
}

TEST_F(NoRoom, AlertsGoOutAlsoWhenNothingAtAllCanBeRecorded) {
  RunningProgram running(used);
  disk.leaveRoom(0);
  EXPECT_FALSE(running.program.startRun());
  EXPECT_EQ(alarms(running), 1U);
  EXPECT_EQ(requests(), 4U) << "every site is checked";
  running.letPass(minutes(9));
  EXPECT_EQ(requests(), 4U) << "and none before its time";
  EXPECT_EQ(alarms(running), 1U);
  running.letPass(minutes(3));
  EXPECT_EQ(requests(), 8U);
  EXPECT_EQ(alarms(running), 2U);
  EXPECT_THAT(running.machine.prompts.texts(), SizeIs(1));
  EXPECT_THAT(running.boxTexts(), HasSubstr("The disk is full"));

  disk.heal();
  running.letPass(minutes(2));
  used.expectAllRecordedOnce(running.boxTexts());
  EXPECT_EQ(used.falseAlarms(), "");
  EXPECT_EQ(used.number("select failure from sites where idSite = 4"), 1);
}

TEST_F(NoRoom, ASiteThatGoesDownWhileTheDiskIsFullIsTold) {
  RunningProgram running(used);
  running.program.startRun();
  running.machine.sound.played.clear();
  disk.failAt(FaultyDisk::Operation::write, FaultyDisk::Failure::full, 1, FaultyDisk::kForEver);
  used.server.respond("/up", {.body = "gone"});
  running.letPass(minutes(11));
  EXPECT_EQ(alarms(running), 2U) << running.boxTexts();
}

/// A disk as full as a case wants it.
class FilledFiles final : public LocalFiles {
 public:
  std::optional<DiskRoom> roomAt(const std::string&) override { return room; }
  void remove(const std::string& path) override {
    const std::uint64_t bytes = givenBack && exists(path) ? sizeOf(path) : 0;
    LocalFiles::remove(path);
    if (bytes > 0) {
      givenBack(bytes);
    }
  }
  std::optional<DiskRoom> room;
  /// Called with the size of each file that is removed.
  std::function<void(std::uint64_t)> givenBack;
};

TEST_F(NoRoom, TheLogCanBeClearedOnAFullDisk) {
  used.folder.execute(
      "with recursive n(i) as (select 1 union all select i + 1 from n where i < 3000) insert into log "
      "(idSite,url,status,errCode,errDescription,dateStamp,content) select 4,'u',0,0,'','2024-05-16 10:00:00',"
      "hex(zeroblob(5000)) from n");
  const auto pages = [&] { return used.number("pragma page_count"); };
  const int before = pages();
  TestServices machine;
  FilledFiles files;
  files.room = DiskRoom{240 * kKib, 64 * 1024 * kKib};
  {
    m data(used.folder.path(), machine.services().with({.files = &files}));
    disk.leaveRoom(240 * kKib);
    data.clearLog();
  }
  disk.heal();
  EXPECT_EQ(used.text("select count(*) from log"), "0");
  EXPECT_LT(pages(), before / 10) << "the room is given back";
  EXPECT_EQ(used.integrity(), "ok");
  EXPECT_EQ(used.text("select count(*) from sites"), "4");
}

/// The program on such a disk.
struct RunningOnFilledDisk {
  explicit RunningOnFilledDisk(const UsedFolder& used) : program(used.folder.path(), services(), view) {}
  Services services() { return machine.services().with({.files = &files}); }
  TestServices machine{TestServices::Time::byHand};
  FilledFiles files;
  RecordingView view;
  Program program;
};

TEST_F(NoRoom, AFailureIsRecordedAndCountedOrNeitherOfBoth) {
  std::set<int> seen;
  for (std::int64_t room = 0; room <= 200; room += 4) {
    const UsedFolder each;
    {
      RunningOnFilledDisk running(each);
      running.files.room = DiskRoom{static_cast<std::uint64_t>(room * kKib), 4096 * kKib};
      running.program.start();
      disk.leaveRoom(room * kKib);
      running.program.startRun();
      EXPECT_EQ(running.machine.sound.played.size(), 1U) << room;
    }
    disk.heal();
    const int recorded = each.recorded(4, false);
    EXPECT_EQ(recorded, each.number("select failure from sites where idSite = 4")) << room << " KiB";
    seen.insert(recorded);
  }
  EXPECT_THAT(seen, ElementsAre(0, 1)) << "the disk was too full at first, and not at last";
}

class LogLimit : public NoRoom {
 protected:
  LogLimit() {
    used.folder.execute(std::string("insert into siteOptions values (0, 'logLimit', '1')"));
    running.program.start();
  }
  std::string contents() const { return used.text("select sum(length(content)) from log"); }
  void check() {
    running.program.startRun();
    running.program.stopRun();
  }

  RunningOnFilledDisk running{used};
};

TEST_F(LogLimit, TheOldestPagesOfTheLogAreEmptiedFirst) {
  for (const char letter : {'a', 'b', 'c', 'd'}) {
    used.server.respond("/down", {.body = std::string(400 * kKib, letter)});
    check();
  }
  EXPECT_EQ(used.folder.queryRows("select substr(content, 1, 1), length(content) from log where idSite = 4 and "
                                  "status = 0 and dateStamp >= '2024-05-17' order by rowid"),
            "|0\n|0\nc|409600\nd|409600\n");
  EXPECT_EQ(used.text("select count(*) from log where content = '' and dateStamp < '2024-05-17'"), "20");
  EXPECT_EQ(used.text("select substr(content_runtime, 1, 1) from sites where idSite = 4"), "d");
}

TEST_F(LogLimit, WhatAnotherProgramHasEmptiedIsNotCounted) {
  used.server.respond("/down", {.body = std::string(700 * kKib, 'a')});
  check();
  used.folder.execute("update log set content = ''");
  used.server.respond("/down", {.body = std::string(700 * kKib, 'b')});
  check();
  used.folder.execute("delete from log");
  used.server.respond("/down", {.body = std::string(400 * kKib, 'c')});
  check();
  used.server.respond("/down", {.body = std::string(400 * kKib, 'd')});
  check();
  EXPECT_EQ(contents(), "819200");
}

TEST_F(LogLimit, NothingIsEmptiedWhileItIsNotSet) {
  used.folder.execute("delete from siteOptions");
  for (const char letter : {'a', 'b', 'c'}) {
    used.server.respond("/down", {.body = std::string(700 * kKib, letter)});
    check();
  }
  EXPECT_GT(std::stoll(contents()), kKib * 3 * 700);
}

TEST_F(LogLimit, NoPageIsKeptWhileTheDiskHasLittleRoom) {
  constexpr std::uint64_t kGib = std::uint64_t{1} << 30U;
  const auto keeps = [&](std::uint64_t free, std::uint64_t whole) {
    running.files.room = DiskRoom{free, whole};
    check();
    return used.text("select content_runtime from sites where idSite = 4") == "not what it was";
  };
  EXPECT_TRUE(keeps(kGib, 20 * kGib));
  EXPECT_FALSE(keeps(kGib - 1, 4 * kGib)) << "less than 1 GiB";
  EXPECT_FALSE(keeps(2 * kGib, 100 * kGib)) << "less than 5 %";
  EXPECT_EQ(used.text("select count(*) from log where idSite = 4 and content <> '' and dateStamp >= '2024-05-17'"),
            "1");
  EXPECT_EQ(used.falseAlarms(), "");
  used.folder.execute("delete from siteOptions");
  EXPECT_TRUE(keeps(0, kGib)) << "the original behaviour";
}

TEST_F(LogLimit, ABaselineIsKeptWhateverRoomThereIs) {
  used.folder.execute("update sites set content_compare = null where idSite = 1");
  running.files.room = DiskRoom{0, 1};
  check();
  EXPECT_EQ(used.text("select content_compare from sites where idSite = 1"), "a page that stays");
}

/// A log of 30 MB, 1 MiB of which may stay.
struct LogBeyondItsLimit {
  LogBeyondItsLimit() {
    used.folder.execute(
        "insert into siteOptions values (0, 'logLimit', '1');"
        "with recursive n(i) as (select 1 union all select i + 1 from n where i < 30) insert into log "
        "(idSite,url,status,errCode,errDescription,dateStamp,content) select 4,'u',0,0,'','2024-05-16 10:00:00',"
        "hex(zeroblob(500000)) from n");
  }
  void expectShortened() const {
    EXPECT_EQ(used.recorded(4, false), 1);
    EXPECT_LE(std::stoll(used.text("select sum(length(content)) from log")), kKib * kKib);
    EXPECT_EQ(used.integrity(), "ok");
  }

  UsedFolder used;
};

TEST_F(NoRoom, ALogBeyondItsLimitIsShortenedWhereThatTakesMoreRoomThanThereIs) {
  for (const std::int64_t room : {3000 * kKib, 100 * kKib, std::int64_t{0}}) {
    const LogBeyondItsLimit each;
    {
      RunningOnFilledDisk running(each.used);
      running.files.room = DiskRoom{2048 * kKib, 4096 * kKib};
      running.files.givenBack = [this](std::uint64_t bytes) { disk.leaveRoom(static_cast<std::int64_t>(bytes)); };
      running.program.start();  // which lays the reserve
      running.files.room = DiskRoom{0, 4096 * kKib};
      disk.leaveRoom(room);
      running.program.startRun();
      EXPECT_EQ(running.machine.sound.played.size(), 1U);
    }
    disk.heal();
    each.expectShortened();
  }
}

class Reserve : public NoRoom {
 protected:
  std::uint64_t laidWith(std::uint64_t free, std::uint64_t whole) {
    files.room = DiskRoom{free, whole};
    m(used.folder.path(), machine.services().with({.files = &files}));
    return files.exists(reserve) ? files.sizeOf(reserve) : 0;
  }
  static constexpr std::uint64_t kMib = kKib * kKib;
  FilledFiles files;
  TestServices machine;
  RecordingView view;
  const std::string reserve = used.folder.databasePath() + "-reserve";
};

TEST_F(Reserve, IsLaidBesideTheListWhileTheDiskHasLittleRoom) {
  EXPECT_EQ(laidWith(2048 * kMib, 4096 * kMib), 0U);
  EXPECT_EQ(laidWith(1023 * kMib, 4096 * kMib), kMib) << "less than 1 GiB";
  EXPECT_EQ(laidWith(2047 * kMib, 4096 * kMib), kMib) << "stays for a while";
  EXPECT_EQ(laidWith(2048 * kMib, 4096 * kMib), 0U);
  EXPECT_EQ(laidWith(4000 * kMib, 90'000 * kMib), kMib) << "less than 5 %";
}

TEST_F(Reserve, LeavesASmallDiskMostOfItsRoom) {
  EXPECT_EQ(laidWith(100 * kKib, 4 * kMib), 0U) << "of no use";
  EXPECT_EQ(laidWith(400 * kKib, 4 * kMib), 100 * kKib);
  EXPECT_EQ(laidWith(0, 4 * kMib), 100 * kKib) << "what is there stays";
  EXPECT_EQ(laidWith(3 * kMib, 4 * kMib), 768 * kKib);
}

TEST_F(Reserve, IsLaidByARunOnADiskThatFillsUp) {
  Program program(used.folder.path(), machine.services().with({.files = &files}), view);
  program.start();
  EXPECT_FALSE(files.exists(reserve));
  files.room = DiskRoom{kMib * 1000, kMib * 4096};
  program.startRun();
  EXPECT_TRUE(files.exists(reserve));
}

}  // namespace
}  // namespace tarnwick::testing
