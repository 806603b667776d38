// SPDX-License-Identifier: MIT
#include "platform/desktop/desktop_key_ring.h"

namespace tarnwick {

std::unique_ptr<KeyRing> makeDesktopKeyRing() { return nullptr; }

}  // namespace tarnwick
