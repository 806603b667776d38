// SPDX-License-Identifier: MIT
#include "platform/process/waited_programs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QTimer>

#include "support/files_fixture.h"
#include "support/wait_until.h"

namespace tarnwick::testing {
namespace {

using std::chrono::seconds;

class WaitedProgramsTest : public FilesFixture {
 protected:
  /// What a program writes into a file is no event.
  void SetUp() override { looks_.start(10); }

  ProgramEnd run(const std::vector<std::string>& arguments, seconds limit = seconds(20)) {
    std::optional<ProgramEnd> came;
    programs_->run(arguments, limit, [&](ProgramEnd end) { came = std::move(end); });
    EXPECT_FALSE(came) << "answered from inside the call";
    EXPECT_TRUE(waitUntil([&] { return came.has_value(); }, seconds(30)));
    return came.value_or(ProgramEnd());
  }
  ProgramEnd shell(const std::string& script, seconds limit = seconds(20)) {
    return run({"/bin/sh", "-c", script, "sh", at("mark")}, limit);
  }

  QTimer looks_;
  std::unique_ptr<WaitedPrograms> programs_ = std::make_unique<WaitedPrograms>();
};

TEST_F(WaitedProgramsTest, TellHowTheyEnded) {
  EXPECT_EQ(shell("exit 0").status, 0);
  EXPECT_EQ(shell("exit 7").status, 7);
  EXPECT_EQ(shell("kill -9 $$").status, 137);
  EXPECT_TRUE(shell("exit 7").started);
}

TEST_F(WaitedProgramsTest, TellTheLastLineOfTheirErrors) {
  EXPECT_EQ(shell("echo one >&2; echo out; echo 'two: no' >&2; echo >&2").lastError, "two: no");
  EXPECT_EQ(shell("printf three >&2").lastError, "three");
  EXPECT_EQ(shell("echo out").lastError, "");
  EXPECT_EQ(shell("head -c 100000 /dev/zero | tr '\\0' x >&2").lastError, std::string(500, 'x'));
  EXPECT_EQ(shell("echo one >/dev/stdout; echo two").output, "two\n");
}

TEST_F(WaitedProgramsTest, TellWhatTheyWrote) {
  EXPECT_EQ(shell("printf 'a token\\n'").output, "a token\n");
  EXPECT_EQ(shell("head -c 100000 /dev/zero | tr '\\0' x").output.size(), 64U * 1024);
}

TEST_F(WaitedProgramsTest, ThatWriteWithoutAnEndAreStoppedFromIt) {
  const ProgramEnd end = shell("head -c 40000000 /dev/zero; echo $? >\"$1\"; echo done >&2");
  EXPECT_EQ(end.status, 0);
  EXPECT_EQ(end.lastError.substr(end.lastError.size() - 4), "done");
  EXPECT_EQ(read("mark"), "1\n");
}

TEST_F(WaitedProgramsTest, ThatCannotBeStartedSaySo) {
  using namespace std::string_literals;
  for (const std::vector<std::string>& bad :
       {std::vector<std::string>{}, {""}, {"/no/such/program"}, {"/"}, {"/bin/echo", "a\0b"s}}) {
    const ProgramEnd end = run(bad);
    EXPECT_FALSE(end.started);
    EXPECT_EQ(end.status, std::nullopt);
  }
}

TEST_F(WaitedProgramsTest, GetTheirArgumentsAsTheyAre) {
  EXPECT_EQ(run({"printf", "[%s]", "a b", "$HOME", "", "ü\n"}).output, "[a b][$HOME][][ü\n]");
}

TEST_F(WaitedProgramsTest, GoOnWhenNobodyWaitsForThemAnyLonger) {
  make("go", "");
  const ProgramEnd end = shell(
      "echo begun >&2; echo on >\"$1\"; while [ -e \"${1%mark}go\" ]; do sleep 0.05; done; echo x >&2; echo end "
      ">\"$1\"",
      seconds(1));
  EXPECT_TRUE(end.started);
  EXPECT_EQ(end.status, std::nullopt);
  EXPECT_EQ(end.lastError, "begun");
  EXPECT_EQ(read("mark"), "on\n");
  std::filesystem::remove(at("go"));
  EXPECT_TRUE(waitUntil([&] { return read("mark") == "end\n"; }));
}

TEST_F(WaitedProgramsTest, OutliveUsAndTellNobodyThen) {
  make("go", "");
  bool answered = false;
  programs_->run(
      {"/bin/sh", "-c",
       "echo on >\"$1\"; while [ -e \"${1%mark}go\" ]; do sleep 0.05; done; echo x >&2; echo y; echo end >\"$1\"", "sh",
       at("mark")},
      seconds(20), [&](const ProgramEnd&) { answered = true; });
  EXPECT_TRUE(waitUntil([&] { return read("mark") == "on\n"; }));
  programs_.reset();
  std::filesystem::remove(at("go"));
  EXPECT_TRUE(waitUntil([&] { return read("mark") == "end\n"; }));
  pumpFor(std::chrono::milliseconds(50));
  EXPECT_FALSE(answered);
}

TEST_F(WaitedProgramsTest, RunBesideEachOther) {
  int ended = 0;
  for (int i = 0; i < 20; ++i) {
    programs_->run({"/bin/sh", "-c", "exit " + std::to_string(i)}, seconds(20), [&ended, i](const ProgramEnd& end) {
      EXPECT_EQ(end.status, i);
      ++ended;
    });
  }
  EXPECT_TRUE(waitUntil([&] { return ended == 20; }));
}

TEST_F(WaitedProgramsTest, AnAnswerMayRunTheNextOrEndItAll) {
  bool over = false;
  programs_->run({"true"}, seconds(20), [&](const ProgramEnd&) {
    programs_->run({"false"}, seconds(20), [&](const ProgramEnd& end) {
      EXPECT_EQ(end.status, 1);
      programs_.reset();
      over = true;
    });
  });
  EXPECT_TRUE(waitUntil([&] { return over; }));
  pumpFor(std::chrono::milliseconds(20));
}

}  // namespace
}  // namespace tarnwick::testing
