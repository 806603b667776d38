// SPDX-License-Identifier: MIT
#include "app/desktop_platform.h"

#include "app/headless_platform.h"
#include "platform/desktop/desktop_key_ring.h"
#include "platform/desktop/desktop_notifier.h"
#include "platform/desktop/message_box_prompts.h"
#include "platform/desktop/qt_desktop_opener.h"
#include "platform/secrets/kept_secrets.h"

namespace tarnwick {

namespace {

/// No longer than a window may stand still.
constexpr std::chrono::milliseconds kPatience{200};

}  // namespace

struct DesktopPlatform::Machine {
  HeadlessPlatform headless{kPatience};
  MessageBoxPrompts prompts{headless.services().pump};
  QtDesktopOpener opener;
  // Null where there can be none.
  std::unique_ptr<KeyRing> ring = makeDesktopKeyRing();
  KeptSecrets secrets{headless.services().files, ring.get()};
  std::unique_ptr<Notifier> notifier = makeDesktopNotifier();
};

DesktopPlatform::DesktopPlatform() : machine_(std::make_unique<Machine>()) {}
DesktopPlatform::~DesktopPlatform() = default;

Services DesktopPlatform::services() {
  Machine& machine = *machine_;
  return machine.headless.services().with({.prompts = &machine.prompts,
                                           .opener = &machine.opener,
                                           .secrets = &machine.secrets,
                                           .notifier = machine.notifier.get()});
}

}  // namespace tarnwick
