// SPDX-License-Identifier: MIT
#include "engine/learning_apart.h"

#include <cstddef>
#include <utility>

namespace tarnwick {
namespace {

/// What no page needs that people read.
constexpr std::size_t kMostMemory = std::size_t{1} << 30U;
/// What is learnt from in a fraction of a second, even where the pages have little in common.
constexpr std::size_t kMostAtOnce = std::size_t{2} << 20U;

}  // namespace

LearningApart::LearningApart(std::size_t bytes, const Work& exact, Work rough, std::chrono::seconds most)
    : rough_(std::move(rough)) {
  if (rough_ != nullptr && !WorkApart::isApart() && bytes > kMostAtOnce) {
    learnRoughly();
    return;
  }
  work_ = std::make_unique<WorkApart>([&] {
    WorkApart::limitTime(most);
    WorkApart::limitMemory(kMostMemory);
    return packed(exact());
  });
}

bool LearningApart::take() {
  if (!work_->take()) {
    return false;
  }
  packed_ = work_->result();
  if (packed_ || rough_ == nullptr) {
    return true;
  }
  learnRoughly();
  return false;
}

void LearningApart::learnRoughly() {
  work_ = std::make_unique<WorkApart>([rough = std::exchange(rough_, nullptr)] {
    WorkApart::limitTime(kMostTime);
    return packed(rough());
  });
}

std::optional<Learnt> LearningApart::result() { return packed_ ? unpackedLearnt(*packed_) : std::nullopt; }

}  // namespace tarnwick
