#pragma once

namespace tarnwick {

/// While a page of many megabytes is recorded, blocks of its size come and go a dozen times. By default each goes back
/// to the system when it is freed and is made of fresh, zeroed pages when it is wanted again, which takes a third of
/// the time. From here on freed memory is kept until `giveBackFreedMemory`. Harmless when it is kept already.
void keepFreedMemory() noexcept;

/// Gives back to the system what `keepFreedMemory` has kept, and costs nothing when it was not called.
void giveBackFreedMemory() noexcept;

}  // namespace tarnwick
