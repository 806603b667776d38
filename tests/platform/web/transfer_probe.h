// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/transfer_control.h"
#include "support/wait_until.h"

namespace tarnwick::testing {

/// The states of a request that succeeded.
inline const std::vector<int> kAllStates{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12};

/// A transfer control and everything it reported of its last request.
class TransferProbe {
 public:
  explicit TransferProbe(TransferMaker& maker) : control(maker.makeTransferControl()) {
    control->onStateChanged([this](int state) { states.push_back(state); });
    control->onIdle([this] { ++idles; });
  }

  void start(const std::string& url, const std::string& method = "GET", const std::string& body = {},
             const std::string& headers = {}) {
    states.clear();
    idles = 0;
    result_ = {};
    request.url = url;
    request.method = method;
    request.body = body;
    request.headers = headers;
    control->execute(request);
  }

  bool ended() const { return !control->stillExecuting(); }
  bool reached(int state) const { return !states.empty() && states.back() >= state; }

  /// Runs a request to its end and gives the page; empty when it failed.
  std::string fetch(const std::string& url, const std::string& method = "GET", const std::string& body = {},
                    const std::string& headers = {}) {
    start(url, method, body, headers);
    waitUntil([this] { return ended(); }, std::chrono::seconds{30});
    return page();
  }

  const std::string& page() { return result().page; }

  bool succeeded() const { return !states.empty() && states.back() == transfer_state::responseCompleted; }
  bool failed() const { return !states.empty() && states.back() == transfer_state::error; }
  TransferFault fault() { return result().fault; }
  const std::string& cause() { return result().cause; }

  /// Its credentials and its time-out are those of all requests.
  Request request;
  std::unique_ptr<TransferControl> control;
  std::vector<int> states;
  int idles = 0;

 private:
  const TransferResult& result() {
    TransferResult fresh = control->takeResult();
    if (fresh.fault != TransferFault::none || !fresh.page.empty()) {
      result_ = std::move(fresh);
    }
    return result_;
  }

  TransferResult result_;
};

}  // namespace tarnwick::testing
