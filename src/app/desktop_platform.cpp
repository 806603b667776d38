// SPDX-License-Identifier: MIT
#include "app/desktop_platform.h"

#include "app/headless_platform.h"
#include "platform/desktop/message_box_prompts.h"
#include "platform/desktop/qt_desktop_opener.h"

namespace tarnwick {

namespace {

/// No longer than a window may stand still.
constexpr std::chrono::milliseconds kPatience{200};

}  // namespace

struct DesktopPlatform::Machine {
  HeadlessPlatform headless{kPatience};
  MessageBoxPrompts prompts{headless.services().pump};
  QtDesktopOpener opener;
};

DesktopPlatform::DesktopPlatform() : machine_(std::make_unique<Machine>()) {}
DesktopPlatform::~DesktopPlatform() = default;

Services DesktopPlatform::services() {
  Machine& machine = *machine_;
  return machine.headless.services().with({.prompts = &machine.prompts, .opener = &machine.opener});
}

}  // namespace tarnwick
