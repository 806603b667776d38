// SPDX-License-Identifier: MIT
#include "engine/own_network.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <utility>

namespace tarnwick {
namespace {

constexpr std::size_t kMany = 3;
constexpr std::chrono::seconds kPatience{5};

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

bool OwnNetwork::isOnline(const std::vector<std::string>& witnesses) {
  if (witnesses.empty()) {
    return transfers_.hasWayOut();
  }
  std::vector<Request> requests;
  for (const std::string& host : witnesses) {
    requests.push_back({.url = "http://" + host + "/", .timeout = kPatience});
  }
  return ask(requests, [](const TransferResult& result) {
    return !isSilence(result.fault) && result.fault != TransferFault::shortage;
  });
}

bool OwnNetwork::stillComesTo(const std::string& page, const Request& request) {
  Request again = request;
  again.timeout = kPatience;
  return ask({again}, [&](const TransferResult& result) { return result.page == page; });
}

bool OwnNetwork::ask(const std::vector<Request>& requests, const std::function<bool(const TransferResult&)>& isEnough) {
  std::size_t ended = 0;
  bool enough = false;
  std::vector<std::unique_ptr<TransferControl>> controls;
  for (const Request& request : requests) {
    controls.push_back(transfers_.makeTransferControl());
    TransferControl& control = *controls.back();
    control.onIdle([&] {
      ++ended;
      enough = enough || isEnough(control.takeResult());
    });
    control.execute(request);
  }
  bool late = false;
  const std::unique_ptr<Timer> end = timers_.makeTimer([&] { late = true; });
  end->setInterval(kPatience);
  end->setEnabled(true);
  while (!enough && !late && ended < controls.size() && !pump_.closing()) {
    pump_.waitForEvent();
  }
  return enough;
}

}  // namespace tarnwick
