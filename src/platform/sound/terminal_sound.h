#pragma once

#include <memory>

#include "platform/desktop.h"

namespace tarnwick {

/// What plays sounds where no multimedia library is loaded. `programs` outlives it.
std::unique_ptr<SoundPlayer> makeTerminalSound(ProgramStarter& programs);

}  // namespace tarnwick
