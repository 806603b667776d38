// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/notifier.h"

namespace tarnwick {

/// The notices of the user's desktop; null where this program was built without a way to it.
std::unique_ptr<Notifier> makeDesktopNotifier();

}  // namespace tarnwick
