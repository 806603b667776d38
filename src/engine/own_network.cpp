// SPDX-License-Identifier: MIT
#include "engine/own_network.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <utility>

#include "base/raised_flag.h"
#include "store/alarm_values.h"

namespace tarnwick {
namespace {

constexpr std::size_t kMany = 3;
constexpr std::chrono::seconds kPatience{5};
/// Between two looks for a way that is gone.
constexpr std::chrono::seconds kAskAgain{5};

}  // namespace

bool isSilence(TransferFault fault) {
  return fault == TransferFault::nameLookup || fault == TransferFault::refused || fault == TransferFault::timeOut;
}

void NetworkDoubt::Rows::add(std::size_t row, const std::string& host) {
  if (rows.empty()) {
    firstHost = host;
  }
  areOfSeveralHosts = areOfSeveralHosts || host != firstHost;
  rows.push_back(row);
}

bool NetworkDoubt::Rows::areMany() const { return rows.size() >= kMany && areOfSeveralHosts; }

std::optional<std::string> NetworkDoubt::onePage() const {
  if (anyAnswer_ || pages_.size() != 1 || !pages_.begin()->second.areMany()) {
    return std::nullopt;
  }
  return pages_.begin()->first;
}

std::vector<std::size_t> NetworkDoubt::take() {
  std::vector<std::size_t> rows = std::exchange(silent_, {}).rows;
  for (const auto& [page, same] : std::exchange(pages_, {})) {
    rows.insert(rows.end(), same.rows.begin(), same.rows.end());
  }
  std::ranges::sort(rows);
  return rows;
}

void OwnNetwork::obey(const OptionsInForce& options) {
  isLookedAfter_ = options.valueOf(kAllSites, option_name::ownNetwork) == option_value::on;
  const auto hosts = options.valueOf(kAllSites, option_name::witnesses);
  witnesses_ = hosts ? *readHosts(*hosts) : std::vector<std::string>();
}

bool OwnNetwork::isOnline() {
  if (witnesses_.empty()) {
    return machine_.transfers.hasWayOut();
  }
  std::vector<Request> requests;
  for (const std::string& host : witnesses_) {
    requests.push_back({.url = "http://" + host + "/", .timeout = kPatience});
  }
  return ask(requests, [](const TransferResult& result) {
    return !isSilence(result.fault) && result.fault != TransferFault::shortage;
  });
}

void OwnNetwork::setOffline(std::string page, Request request) {
  offline_ = {machine_.clock.localNow(), machine_.clock.steadyNow(), std::move(page), std::move(request)};
}

void OwnNetwork::lookAtOnce() {
  if (offline_) {
    offline_->askedAt.reset();
  }
}

bool OwnNetwork::staysOffline() {
  const std::chrono::milliseconds now = machine_.clock.steadyNow();
  if (asks_ || (isLookedAfter_ && offline_->askedAt && now - *offline_->askedAt < kAskAgain)) {
    return true;
  }
  offline_->askedAt = now;
  const RaisedFlag whileAsked(asks_);
  // A copy, since the run may be stopped meanwhile.
  return isLookedAfter_ && isStillOffline(Offline(*offline_)) && offline_;
}

bool OwnNetwork::isStillOffline(const Offline& found) {
  if (found.page.empty()) {
    return !isOnline();
  }
  Request again = found.request;
  again.timeout = kPatience;
  return ask({again}, [&](const TransferResult& result) { return result.page == found.page; });
}

bool OwnNetwork::ask(const std::vector<Request>& requests, const std::function<bool(const TransferResult&)>& isEnough) {
  std::size_t ended = 0;
  bool enough = false;
  std::vector<std::unique_ptr<TransferControl>> controls;
  for (const Request& request : requests) {
    controls.push_back(machine_.transfers.makeTransferControl());
    TransferControl& control = *controls.back();
    control.onIdle([&] {
      ++ended;
      enough = enough || isEnough(control.takeResult());
    });
    control.execute(request);
  }
  bool late = false;
  const std::unique_ptr<Timer> end = machine_.timers.makeTimer([&] { late = true; });
  end->setInterval(kPatience);
  end->setEnabled(true);
  while (!enough && !late && ended < controls.size() && !machine_.pump.closing()) {
    machine_.pump.waitForEvent();
  }
  return enough;
}

}  // namespace tarnwick
