#include "platform/sound/desktop_sound.h"
#include "platform/sound/qt_sound_player.h"

namespace tarnwick {

std::unique_ptr<SoundPlayer> makeDesktopSound() { return std::make_unique<QtSoundPlayer>(); }

}  // namespace tarnwick
