// SPDX-License-Identifier: MIT
#include "engine/inet_pool.h"

#include <algorithm>
#include <array>
#include <utility>

#include "store/settings_and_log.h"

namespace tarnwick {
namespace {

constexpr std::chrono::milliseconds kSweepInterval{1000};

constexpr std::array<std::string_view, 13> kStateDescriptions{
    "No state to report.",
    "The control is looking up the IP address of the specified host computer.",
    "The control successfully found the IP address of the specified host computer.",
    "The control is connecting to the host computer.",
    "The control successfully connected to the host computer.",
    "The control is sending a request to the host computer.",
    "The control successfully sent the request.",
    "The control is receiving a response from the host computer.",
    "The control successfully received a response from the host computer.",
    "The control is disconnecting from the host computer.",
    "The control successfully disconnected from the host computer.",
    "An error occurred in communicating with the host computer.",
    "The request has completed and all data has been received.",
};

}  // namespace

InetPool::InetPool(SettingsAndLog& settings, TransferMaker& transfers, TimerMaker& timers, std::int16_t largestPool)
    : settings_(settings),
      transfers_(transfers),
      largestPool_(largestPool),
      tmrInet_(timers.makeTimer([this] { testInetConnection(); })) {}

InetPool::~InetPool() { killAllSockets(); }

void InetPool::initSockets(std::span<const std::string> items, std::int16_t largestPool) {
  killAllSockets();
  itemCount_ = static_cast<std::size_t>(
      std::count_if(items.begin(), items.end(), [](const std::string& item) { return !item.empty(); }));
  rows_.assign(items.size() + 1, Row{});
  // Either each of them has its control or there is none, also when something is raised here.
  std::vector<Slot> slots(std::min(itemCount_, static_cast<std::size_t>(largestPool)));
  if (!slots.empty()) {
    timeout_ = settings_.requestTimeout();
    for (Slot& slot : slots) {
      loadSlot(slot);
    }
  }
  slots_ = std::move(slots);
  tmrInet_->setEnabled(false);
  tmrInet_->setInterval(kSweepInterval);
}

void InetPool::loadSlot(Slot& slot) {
  slot.inet = transfers_.makeTransferControl();
  slot.inet->onStateChanged([&slot](int state) { stateChanged(slot, state); });
  slot.inet->onIdle([this] {
    if (tmrInet_->enabled()) {
      testInetConnection();
    }
  });
}

void InetPool::killAllSockets() {
  slots_.clear();
  itemCount_ = 0;
}

void InetPool::stateChanged(Slot& slot, int state) {
  slot.lastState = state;
  if (transfer_state::isLast(state)) {
    slot.done = true;
  }
}

std::vector<std::int16_t> InetPool::getAryFreeSockets() const {
  std::vector<std::int16_t> free;
  for (std::int16_t slot = 1; slot <= poolSize(); ++slot) {
    if (at(slot).lastState == transfer_state::none && !at(slot).inet->stillExecuting()) {
      free.push_back(slot);
    }
  }
  return free;
}

void InetPool::testInetConnection() {
  for (Slot& slot : slots_) {
    if (!slot.inet->stillExecuting()) {
      slot.lastState = transfer_state::none;
    }
  }
}

void InetPool::send(std::int16_t slot, std::size_t row, Request request) {
  Slot& sending = at(slot);
  sending.row = row;
  sending.done = false;
  request.timeout = timeout_;
  sending.inet->execute(std::move(request));
}

void InetPool::saveSocketData(std::int16_t slot) {
  Slot& finished = at(slot);
  TransferResult result = finished.inet->takeResult();
  const bool failed = result.fault != TransferFault::none;
  Row& row = rows_.at(finished.row);
  row.content = failed ? "11:" + result.cause : std::move(result.page);
  row.errCode = static_cast<std::int32_t>(result.code());
  row.errDescription = std::move(result.cause);
  row.took = result.took;
  row.timings = result.timings;
  row.certificate = std::move(result.certificate);
  row.server = std::move(result.server);
  row.status = result.status;
}

void InetPool::releaseSiteContent(std::size_t row) { std::string().swap(rows_.at(row).content); }

std::string_view InetPool::getStateDescription(std::int16_t state) {
  if (state < 0 || static_cast<std::size_t>(state) >= kStateDescriptions.size()) {
    return "undefined state";
  }
  return kStateDescriptions[static_cast<std::size_t>(state)];
}

}  // namespace tarnwick
