// SPDX-License-Identifier: MIT
#include "transcript/led_events.h"

#include <gtest/gtest.h>

#include <chrono>

#include "support/wait_until.h"

namespace tarnwick::testing {

std::size_t LedEvents::underWay() const {
  if (program_ == nullptr) {
    return 0;
  }
  const InetPool& pool = program_->pool();
  const auto busy = static_cast<std::size_t>(pool.poolSize()) - pool.getAryFreeSockets().size();
  return busy + (program_->data().single().sInet().stillExecuting() ? 1 : 0);
}

void LedEvents::await(const std::function<bool()>& condition) {
  if (!waitUntil([&] { return closing() || condition(); }, std::chrono::seconds(60))) {
    ADD_FAILURE() << "The day has come to a stop: " << underWay() << " requests under way, " << web_.waiting()
                  << " at the servers.";
    close();
  }
}

void LedEvents::pump() {
  real_.pump();
  await([this] { return atRest(); });
}

void LedEvents::waitForEvent() {
  if (closing()) {
    return;
  }
  if (mail_.inExchange()) {
    real_.waitForEvent();
    return;
  }
  if (atRest() && !web_.answerOne()) {
    // Servers that keep silent: the time-out is what happens next.
    const std::size_t before = underWay();
    await([&] { return underWay() < before; });
  }
  await([this] { return atRest(); });
}

}  // namespace tarnwick::testing
