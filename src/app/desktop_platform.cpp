#include "app/desktop_platform.h"

#include "app/headless_platform.h"
#include "platform/desktop/message_box_prompts.h"
#include "platform/desktop/qt_desktop_opener.h"
#include "platform/sound/desktop_sound.h"

namespace tarnwick {

struct DesktopPlatform::Machine {
  HeadlessPlatform headless;
  MessageBoxPrompts prompts{headless.services().pump};
  std::unique_ptr<SoundPlayer> sound = makeDesktopSound();
  QtDesktopOpener opener;
};

DesktopPlatform::DesktopPlatform() : machine_(std::make_unique<Machine>()) {}
DesktopPlatform::~DesktopPlatform() = default;

Services DesktopPlatform::services() {
  Machine& machine = *machine_;
  return machine.headless.services().with(
      {.prompts = &machine.prompts, .sound = machine.sound.get(), .opener = &machine.opener});
}

}  // namespace tarnwick
