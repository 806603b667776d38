#include "platform/sound/desktop_sound.h"
#include "platform/sound/windows_sound.h"

namespace tarnwick {

std::unique_ptr<SoundPlayer> makeDesktopSound() { return std::make_unique<WindowsSound>(); }

}  // namespace tarnwick
