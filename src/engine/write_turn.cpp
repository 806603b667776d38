// SPDX-License-Identifier: MIT
#include "engine/write_turn.h"

#include <chrono>
#include <optional>
#include <utility>

#include "engine/result_recording.h"

namespace tarnwick {
namespace {

/// Most programs that write are through in less.
constexpr std::chrono::seconds kToldAfter{2};
constexpr std::chrono::milliseconds kNextTry{50};
constexpr const char* kSource = "recording";

}  // namespace

WriteTurn::WriteTurn(const RunController::Needs& needs, const RunController::Guard& guard,
                     std::function<bool()> stopped)
    : needs_(needs), guard_(guard), stopped_(std::move(stopped)) {}

Transaction WriteTurn::take() {
  while (needs_.results.hasWriterAside() && !stopped_()) {
    waitABit();
  }
  try {
    return needs_.results.beginTransaction();
  } catch (const DataAccessError& error) {
    if (!error.inUse()) {
      throw;
    }
    return await(error);
  }
}

Transaction WriteTurn::await(const DataAccessError& refusal) {
  const auto began = needs_.clock.steadyNow();
  bool told = false;
  while (!stopped_()) {
    if (auto begun = needs_.results.tryBeginTransaction()) {
      if (told) {
        guard_(kSource, [] {});
      }
      return std::move(*begun);
    }
    if (!told && needs_.clock.steadyNow() - began >= kToldAfter) {
      told = true;
      guard_(kSource, [&] { throw refusal; });
    }
    waitABit();
  }
  throw refusal;
}

// The pool's supervisor ticks during a pass, so that there is an event to wait for.
void WriteTurn::waitABit() {
  Timer& supervisor = needs_.pool.tmrInet();
  const std::chrono::milliseconds usual = supervisor.interval();
  supervisor.setInterval(kNextTry);
  needs_.pump.waitForEvent();
  supervisor.setInterval(usual);
}

}  // namespace tarnwick
