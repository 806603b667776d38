// SPDX-License-Identifier: MIT
#include "platform/desktop/desktop_notifier.h"

namespace tarnwick {

std::unique_ptr<Notifier> makeDesktopNotifier() { return nullptr; }

}  // namespace tarnwick
