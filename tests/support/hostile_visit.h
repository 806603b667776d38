// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "support/http_server.h"

namespace tarnwick::testing {

class HostileDoors;

/// The visitor has hung up, which ends the script of its visit.
struct VisitorGone : std::runtime_error {
  VisitorGone() : std::runtime_error("the visitor has hung up") {}
};

/// A port of its own on 127.0.0.1 for a second connection, as FTP wants one.
class SideDoor {
 public:
  SideDoor();
  ~SideDoor();
  SideDoor(const SideDoor&) = delete;
  SideDoor& operator=(const SideDoor&) = delete;

  std::uint16_t port() const { return port_; }
  /// Lets one visitor in, gives it `text` and closes; nothing when none comes.
  void give(std::string_view text) const;
  /// Lets one visitor in and cuts it off with a reset after `text`.
  void giveAndReset(std::string_view text) const;

 private:
  int accept() const;

  int socket_;
  std::uint16_t port_ = 0;
};

/// One connection to a hostile server, as a script sees it that answers badly. Each call blocks; each that speaks or
/// listens raises VisitorGone when the visitor has hung up.
class HostileVisit {
 public:
  /// Takes the connected socket over. `name` is the door that was knocked at.
  HostileVisit(int socket, std::string name, HostileDoors& doors);
  ~HostileVisit();
  HostileVisit(const HostileVisit&) = delete;
  HostileVisit& operator=(const HostileVisit&) = delete;

  /// Reads to the end of a request's header, and its body when it announces one; what came is written down.
  std::string readRequest();
  /// Reads up to the next line end, which is not returned.
  std::string readLine();
  /// Reads at least `bytes` bytes.
  void readSome(std::size_t bytes);

  void send(std::string_view bytes);
  /// A whole well-formed answer of status 200, and `headers`, each with its line end.
  void sendPage(std::string_view body, std::string_view headers = {});
  /// Says nothing more until the visitor leaves.
  void stay();
  /// Says nothing for `time`, or until the visitor leaves.
  void pause(std::chrono::milliseconds time);
  /// Ends what this side sends in the transport's own way, without a goodbye of TLS.
  void hangUp();
  /// Cuts the connection with a reset.
  void reset();

  /// Speaks TLS from here on, as the server that `identity` names.
  void secure(const TlsIdentity& identity);

  /// The address of another behaviour, or of this one by its own name.
  std::string urlOf(const std::string& name) const;

 private:
  class Tls;

  std::size_t receive(char* buffer, std::size_t size);
  bool more();

  int socket_;
  std::string name_;
  HostileDoors& doors_;
  std::string unread_;
  std::unique_ptr<Tls> tls_;
};

}  // namespace tarnwick::testing
