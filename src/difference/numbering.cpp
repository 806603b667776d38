// SPDX-License-Identifier: MIT
#include "difference/numbering.h"

#include <algorithm>
#include <bit>
#include <functional>

namespace tarnwick {

void Numbering::expect(std::size_t texts) {
  known_.reserve(texts);
  if (texts * 2 > slots_.size()) {
    resize(std::bit_ceil(texts * 2));
  }
}

std::uint32_t Numbering::of(std::string_view text) {
  if ((known_.size() + 1) * 2 > slots_.size()) {
    constexpr std::size_t kFewest = 64;
    resize(std::max(kFewest, slots_.size() * 4));
  }
  const std::size_t hash = std::hash<std::string_view>()(text);
  std::uint32_t& slot = slots_[slotOf(text, hash)];
  if (slot == 0) {
    known_.push_back({text, hash});
    slot = static_cast<std::uint32_t>(known_.size());
  }
  return first_ + slot - 1;
}

/// That of the text, or the free one in which it belongs.
std::size_t Numbering::slotOf(std::string_view text, std::size_t hash) const {
  std::size_t slot = hash & (slots_.size() - 1);
  while (slots_[slot] != 0) {
    const Known& there = known_[slots_[slot] - 1];
    if (there.hash == hash && there.text == text) {
      break;
    }
    slot = (slot + 1) & (slots_.size() - 1);
  }
  return slot;
}

void Numbering::resize(std::size_t slots) {
  slots_.assign(slots, 0);
  for (std::size_t i = 0; i < known_.size(); ++i) {
    std::size_t slot = known_[i].hash & (slots - 1);
    while (slots_[slot] != 0) {
      slot = (slot + 1) & (slots - 1);
    }
    slots_[slot] = static_cast<std::uint32_t>(i + 1);
  }
}

}  // namespace tarnwick
