// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/secrets/key_ring.h"

namespace tarnwick {

/// The key ring of the user's desktop; null where this program was built without a way to it.
std::unique_ptr<KeyRing> makeDesktopKeyRing();

}  // namespace tarnwick
