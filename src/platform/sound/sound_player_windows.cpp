// SPDX-License-Identifier: MIT
#include <windows.h>

#include <mmsystem.h>

#include "platform/os/windows_text.h"
#include "platform/sound/sound_player.h"
#include "platform/sound/wave_file.h"

namespace tarnwick {
namespace {

class SystemPlayer final : public SoundPlayer {
 public:
  long play(const std::string& fileName) override {
    // Without a device the system says that it plays.
    return isWaveFile(fileName) && waveOutGetNumDevs() != 0 &&
                   PlaySoundW(systemPath(fileName).c_str(), nullptr, SND_FILENAME | SND_ASYNC | SND_NODEFAULT) != FALSE
               ? 1
               : 0;
  }
};

}  // namespace

std::unique_ptr<SoundPlayer> makeSoundPlayer(ProgramStarter&) { return std::make_unique<SystemPlayer>(); }

}  // namespace tarnwick
