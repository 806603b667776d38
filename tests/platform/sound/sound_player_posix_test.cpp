// SPDX-License-Identifier: MIT
#include "platform/sound/sound_player.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "support/files_fixture.h"

namespace tarnwick::testing {
namespace {

/// A machine on which only some programs are installed.
class InstalledPrograms final : public ProgramStarter {
 public:
  bool start(const std::vector<std::string>& arguments) override {
    if (!installed.contains(arguments.front())) {
      return false;
    }
    started.push_back(arguments);
    return true;
  }

  std::set<std::string> installed;
  std::vector<std::vector<std::string>> started;
};

class SoundPlayerTest : public FilesFixture {
 protected:
  SoundPlayerTest() { make("alarm sound.wav", std::string("RIFF\x26\0\0\0WAVEfmt ", 16)); }

  std::string sound = at("alarm sound.wav");
  InstalledPrograms programs;
  std::unique_ptr<SoundPlayer> player = makeSoundPlayer(programs);
};

TEST_F(SoundPlayerTest, StartsThePlayerOfTheMachine) {
  programs.installed = {"aplay"};
  EXPECT_EQ(player->play(sound), 1);
  EXPECT_EQ(programs.started, (std::vector<std::vector<std::string>>{{"aplay", sound}}));
}

TEST_F(SoundPlayerTest, StartsOnePlayerAndPrefersThatOfTheSoundServer) {
  programs.installed = {"aplay", "paplay"};
  EXPECT_EQ(player->play(sound), 1);
  EXPECT_EQ(programs.started, (std::vector<std::vector<std::string>>{{"paplay", sound}}));
}

TEST_F(SoundPlayerTest, GivesThePlayerTheWholePath) {
  programs.installed = {"aplay"};
  EXPECT_EQ(player->play(std::filesystem::relative(sound).string()), 1);
  ASSERT_EQ(programs.started.size(), 1U);
  const std::filesystem::path given = programs.started.front().back();
  EXPECT_TRUE(given.is_absolute());
  EXPECT_TRUE(std::filesystem::equivalent(given, sound));
}

TEST_F(SoundPlayerTest, IsSilentOnAMachineWithoutAPlayer) {
  EXPECT_EQ(player->play(sound), 0);
  EXPECT_TRUE(programs.started.empty());
}

TEST_F(SoundPlayerTest, WaitsForNoPipe) {
  programs.installed = {"aplay"};
  const std::string pipe = at("pipe.wav");
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(player->play(pipe), 0);
  EXPECT_EQ(player->play("/dev/zero"), 0);
  EXPECT_TRUE(programs.started.empty());
}

TEST_F(SoundPlayerTest, PlaysNothingThatIsMissingOrNoSound) {
  programs.installed = {"aplay"};
  make("text.wav", "no sound, and longer than the head of one");
  EXPECT_EQ(player->play(at("missing.wav")), 0);
  EXPECT_EQ(player->play(at("text.wav")), 0);
  EXPECT_TRUE(programs.started.empty());
}

}  // namespace
}  // namespace tarnwick::testing
