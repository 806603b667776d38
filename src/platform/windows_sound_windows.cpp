#include <windows.h>

#include <mmsystem.h>

#include <cstdint>

#include "platform/errors.h"
#include "platform/file_access.h"
#include "platform/wave_file.h"
#include "platform/windows_sound.h"

namespace tarnwick {
namespace {

/// A longer file is no signal; it is not loaded.
constexpr std::uint64_t kLargestFile = std::uint64_t{256} * 1024 * 1024;

/// The file's bytes, empty when it cannot be read.
std::string bytesOf(const std::string& fileName) {
  try {
    const std::uint64_t size = sizeOf(fileName);
    if (size > kLargestFile) {
      return {};
    }
    const FileHandle file = openFile(fileName, FileUse::read);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file.get()));
    return bytes;
  } catch (const FileError&) {
    return {};
  }
}

void stopSound() { PlaySoundW(nullptr, nullptr, 0); }

}  // namespace

WindowsSound::~WindowsSound() {
  if (!playing_.empty()) {
    stopSound();
  }
}

long WindowsSound::play(const std::string& fileName) {
  std::string sound = bytesOf(fileName);
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
