#include "platform/desktop/desktop_platform.h"

#include "platform/desktop/desktop_sound.h"
#include "platform/desktop/message_box_prompts.h"
#include "platform/desktop/qt_desktop_opener.h"
#include "platform/headless_platform.h"

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
  const Services common = machine.headless.services();
  return {common.clock,   common.pump,     common.timers,  common.databases, common.transfers,
          common.sockets, machine.prompts, *machine.sound, common.programs,  machine.opener};
}

}  // namespace tarnwick
