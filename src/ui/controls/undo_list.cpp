// SPDX-License-Identifier: MIT
#include "ui/controls/undo_list.h"

#include <utility>

namespace tarnwick {

void UndoList::add(Step step) {
  steps_.emplace_back(next_++, std::move(step));
  Q_EMIT changed();
}

void UndoList::undoLast() {
  if (steps_.empty()) {
    return;
  }
  const auto [number, step] = steps_.back();
  step.undo([this, number = number] {
    std::erase_if(steps_, [number](const auto& other) { return other.first == number; });
    Q_EMIT changed();
  });
}

}  // namespace tarnwick
