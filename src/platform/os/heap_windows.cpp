#include "platform/os/heap.h"

namespace tarnwick {

// The heap of Windows decides that for itself.
void keepFreedMemory() noexcept {}

void giveBackFreedMemory() noexcept {}

}  // namespace tarnwick
