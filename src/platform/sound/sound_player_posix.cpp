// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <filesystem>

#include "platform/file_system.h"
#include "platform/sound/sound_player.h"
#include "platform/sound/wave_file.h"

namespace tarnwick {
namespace {

constexpr std::array kPlayers = {"pw-play", "paplay", "aplay"};

class PlayerProgram final : public SoundPlayer {
 public:
  explicit PlayerProgram(ProgramStarter& programs) : programs_(programs) {}

  long play(const std::string& fileName) override {
    if (!isWaveFile(fileName)) {
      return 0;
    }
    // Programs start in another folder than this one's, and take a name with a dash in front for an option.
    const std::string file = textOf(std::filesystem::absolute(pathOf(fileName)));
    return std::ranges::any_of(kPlayers, [&](const char* player) { return programs_.start({player, file}); }) ? 1 : 0;
  }

 private:
  ProgramStarter& programs_;
};

}  // namespace

std::unique_ptr<SoundPlayer> makeSoundPlayer(ProgramStarter& programs) {
  return std::make_unique<PlayerProgram>(programs);
}

}  // namespace tarnwick
