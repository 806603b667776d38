// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/desktop.h"

namespace tarnwick {

/// The machine's player of sounds. On Windows that is the system itself; elsewhere the first of the usual player
/// programs that is there (pw-play, paplay, aplay), which `programs` starts. That one outlives the player.
std::unique_ptr<SoundPlayer> makeSoundPlayer(ProgramStarter& programs);

}  // namespace tarnwick
