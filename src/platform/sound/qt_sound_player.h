#pragma once

#include <memory>

#include "platform/desktop.h"

namespace tarnwick {

/// Plays .wav files on the machine's default sound device, which is looked up afresh for every sound. A new sound takes
/// the place of the one that is playing. Needs an application object's event loop.
class QtSoundPlayer final : public SoundPlayer {
 public:
  QtSoundPlayer();
  ~QtSoundPlayer() override;
  QtSoundPlayer(const QtSoundPlayer&) = delete;
  QtSoundPlayer& operator=(const QtSoundPlayer&) = delete;

  long play(const std::string& fileName) override;

 private:
  struct Playing;
  std::unique_ptr<Playing> playing_;
};

}  // namespace tarnwick
