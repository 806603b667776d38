#pragma once

#include "platform/desktop.h"

namespace tarnwick {

/// Plays sounds where no multimedia library is loaded: through the first of the usual players that the machine has
/// (pw-play, paplay, aplay), started like an alert program.
class SoundProgram final : public SoundPlayer {
 public:
  explicit SoundProgram(ProgramStarter& programs) : programs_(programs) {}
  long play(const std::string& fileName) override;

 private:
  ProgramStarter& programs_;
};

}  // namespace tarnwick
