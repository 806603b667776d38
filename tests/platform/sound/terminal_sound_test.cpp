#include "platform/sound/terminal_sound.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>

#include "support/program_folder.h"
#include "support/recording_desktop.h"

namespace tarnwick::testing {
namespace {

// One sample of silence.
constexpr std::array<unsigned char, 46> kWave = {
    'R', 'I',  'F',  'F', 38, 0,    0,    0, 'W', 'A', 'V', 'E', 'f', 'm', 't', ' ', 16,  0, 0, 0, 1, 0, 1,
    0,   0x44, 0xac, 0,   0,  0x88, 0x58, 1, 0,   2,   0,   16,  0,   'd', 'a', 't', 'a', 2, 0, 0, 0, 0, 0};

class TerminalSoundTest : public ::testing::Test {
 protected:
  TerminalSoundTest() : path_(std::getenv("PATH")) {
    ::setenv("PATH", folder.path().c_str(), 1);
    std::ofstream(sound, std::ios::binary).write(reinterpret_cast<const char*>(kWave.data()), kWave.size());
  }
  ~TerminalSoundTest() override { ::setenv("PATH", path_.c_str(), 1); }

  void addPlayer(const std::string& name) {
    std::ofstream(folder.file(name)) << "#!/bin/sh\n";
    std::filesystem::permissions(folder.file(name), std::filesystem::perms::owner_all);
  }

  ProgramFolder folder;
  std::string sound = folder.file("alarm sound.wav");
  RecordingPrograms programs;
  std::unique_ptr<SoundPlayer> player = makeTerminalSound(programs);

 private:
  std::string path_;
};

TEST_F(TerminalSoundTest, StartsThePlayerOfTheMachine) {
  addPlayer("aplay");
  EXPECT_EQ(player->play(sound), 1);
  ASSERT_EQ(programs.started.size(), 1U);
  EXPECT_EQ(programs.started.front(), (std::vector<std::string>{folder.file("aplay"), sound}));
}

TEST_F(TerminalSoundTest, PrefersThePlayerOfTheSoundServer) {
  addPlayer("aplay");
  addPlayer("paplay");
  player->play(sound);
  ASSERT_EQ(programs.started.size(), 1U);
  EXPECT_EQ(programs.started.front().front(), folder.file("paplay"));
}

TEST_F(TerminalSoundTest, IsSilentOnAMachineWithoutAPlayer) {
  EXPECT_EQ(player->play(sound), 0);
  EXPECT_TRUE(programs.started.empty());
}

TEST_F(TerminalSoundTest, WaitsForNoPipe) {
  addPlayer("aplay");
  const std::string pipe = folder.file("pipe.wav");
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(player->play(pipe), 0);
  EXPECT_EQ(player->play("/dev/zero"), 0);
  EXPECT_TRUE(programs.started.empty());
}

TEST_F(TerminalSoundTest, PlaysNothingThatIsMissingOrNoSound) {
  addPlayer("aplay");
  EXPECT_EQ(player->play(folder.file("missing.wav")), 0);
  EXPECT_EQ(player->play(folder.databasePath()), 0);
  EXPECT_TRUE(programs.started.empty());
}

}  // namespace
}  // namespace tarnwick::testing
