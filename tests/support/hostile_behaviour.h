// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/transfer_control.h"
#include "support/hostile_visit.h"

namespace tarnwick::testing {

/// How the check of a site has to come out.
struct HostileOutcome {
  TransferFault fault = TransferFault::none;
  /// The words of a failure; "{name}" stands for host and port of that behaviour, "{}" for those of its own.
  std::string cause{};
  /// The page that is taken when there is no fault, repeated so many times.
  std::string page{};
  std::size_t times = 1;
};

/// The page that makes the check succeed.
inline HostileOutcome takes(std::string page, std::size_t times = 1) {
  return {.page = std::move(page), .times = times};
}
inline HostileOutcome fails(TransferFault fault, std::string cause) {
  return {.fault = fault, .cause = std::move(cause)};
}

/// What stands behind a port of a hostile server.
enum class HostileDoor {
  plain,       ///< whoever connects is served
  unanswered,  ///< connections are made but never accepted
  closed,      ///< nobody listens
  full,        ///< not even connections are made: the queue is full
};

/// A text that has or has not come to a behaviour's port.
struct HostileTrace {
  std::string name{};
  std::string text{};
  bool expected = false;
};

/// One way in which a server can behave badly, and what a check of a site there has to come to.
struct HostileBehaviour {
  std::string name{};
  HostileOutcome outcome{};
  /// Serves one connection, from its first byte.
  std::function<void(HostileVisit&)> serve{};

  HostileDoor door = HostileDoor::plain;
  std::string host = "127.0.0.1";
  std::string scheme = "http";
  std::string path = "/";
  /// The certificate that is shown; empty for no TLS.
  std::string identity{};

  /// The site that is checked.
  std::string method = "get";
  std::string userName{};
  std::string password{};
  int timeoutSeconds = 1;
  /// When it must be over; before the time-out for one that would hold up the whole program meanwhile.
  int mostSeconds = timeoutSeconds;

  /// What this or another behaviour must have received by then, or must not.
  std::vector<HostileTrace> traces{};
  /// How much the memory of the program may grow meanwhile.
  std::size_t mebibytes = 24;
};

using HostileBehaviours = std::vector<HostileBehaviour>;

}  // namespace tarnwick::testing
