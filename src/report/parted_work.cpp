// SPDX-License-Identifier: MIT
#include "report/parted_work.h"

#include <chrono>
#include <utility>

namespace tarnwick {
namespace {

// A part that was begun in that time ends a little later.
constexpr std::chrono::milliseconds kAtOnce{8};
constexpr std::chrono::milliseconds kPause{5};

}  // namespace

PartedWork::PartedWork(TimerMaker& timers, const Clock& clock, Guard guard)
    : clock_(clock), timer_(timers.makeTimer([this, guard = std::move(guard)] { guard([this] { goOn(); }); })) {
  timer_->setInterval(kPause);
}

void PartedWork::begin(TextInParts work) {
  work_ = std::move(work);
  before_ = {};
  goOn();
}

std::chrono::milliseconds PartedWork::spent() const {
  return before_ + (slice_ ? clock_.steadyNow() - *slice_ : std::chrono::milliseconds{});
}

// It is taken out meanwhile, so that an error leaves nothing of it.
void PartedWork::goOn() {
  timer_->setEnabled(false);
  std::optional<TextInParts> work = std::exchange(work_, std::nullopt);
  if (!work) {
    return;
  }
  slice_ = clock_.steadyNow();
  bool more = work->goOn();
  while (more && clock_.steadyNow() - *slice_ < kAtOnce) {
    more = work->goOn();
  }
  before_ = spent();
  slice_.reset();
  if (more) {
    work_ = std::move(work);
    timer_->setEnabled(true);
  }
}

}  // namespace tarnwick
