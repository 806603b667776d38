#pragma once

#include <string>

#include "platform/desktop.h"

namespace tarnwick {

/// Plays .wav files by the system's own function. A new sound takes the place of the one that is playing.
class WindowsSound final : public SoundPlayer {
 public:
  WindowsSound() = default;
  ~WindowsSound() override;
  WindowsSound(const WindowsSound&) = delete;
  WindowsSound& operator=(const WindowsSound&) = delete;

  long play(const std::string& fileName) override;

 private:
  /// The file that is playing: the system reads from it until the end.
  std::string playing_;
};

}  // namespace tarnwick
