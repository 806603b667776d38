#include "platform/sound/terminal_sound.h"
#include "platform/sound/windows_sound.h"

namespace tarnwick {

std::unique_ptr<SoundPlayer> makeTerminalSound(ProgramStarter&) { return std::make_unique<WindowsSound>(); }

}  // namespace tarnwick
