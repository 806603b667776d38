#pragma once

#include <memory>

#include "platform/desktop.h"

namespace tarnwick {

/// What plays sounds in a program with a window. Needs an application object's event loop.
std::unique_ptr<SoundPlayer> makeDesktopSound();

}  // namespace tarnwick
