#include <windows.h>

#include <mmsystem.h>

#include <string>

#include "platform/sound/wave_file.h"
#include "platform/sound/windows_sound.h"

namespace tarnwick {
namespace {

void stopSound() { PlaySoundW(nullptr, nullptr, 0); }

}  // namespace

WindowsSound::~WindowsSound() {
  if (!playing_.empty()) {
    stopSound();
  }
}

long WindowsSound::play(const std::string& fileName) {
  std::string sound = bytesOfSound(fileName);
  // A file that cannot be played leaves the sound before it alone.
  if (!readWave(sound) || waveOutGetNumDevs() == 0) {
    return 0;
  }
  stopSound();
  playing_ = std::move(sound);
  // From memory: the system's way through the file's name is shorter than names may be.
  const auto* const memory = reinterpret_cast<const wchar_t*>(playing_.data());
  return PlaySoundW(memory, nullptr, SND_MEMORY | SND_ASYNC | SND_NODEFAULT) != FALSE ? 1 : 0;
}

}  // namespace tarnwick
