// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "support/http_server.h"

namespace tarnwick::testing {

/// A mail server on a free port of 127.0.0.1 that is greeted, secured and logged in to, served by the event loop of the
/// test itself. It answers as it is told, whatever makes sense of that:
///
///     EsmtpServer server;
///     server.replies["RCPT"] = {"550 5.1.1 no such user\r\n"};
///
/// Untold it offers nothing but the mail itself, and takes every one.
class EsmtpServer {
 public:
  /// What is said to a command, "EHLO"; to the connection, "greeting"; to what a log-in consists of, "credentials"; and
  /// to the mail, "message": the next of several each time, the last one for ever. An empty text keeps silent, none
  /// hangs up.
  using Replies = std::deque<std::optional<std::string>>;

  /// How a reply is given, by what it is given to: one byte each millisecond, or with the connection closed behind it.
  enum class Manner { byteByByte, thenClosed };

  EsmtpServer() : EsmtpServer(TlsIdentity{}, false) {}
  /// One that can be secured; from its first byte on `atOnce`.
  explicit EsmtpServer(const TlsIdentity& identity, bool atOnce = false, const std::string& address = "127.0.0.1");
  ~EsmtpServer();
  EsmtpServer(const EsmtpServer&) = delete;
  EsmtpServer& operator=(const EsmtpServer&) = delete;

  std::uint16_t port() const;
  std::map<std::string, Replies> replies;
  std::map<std::string, Manner> manners;

  struct Line {
    std::string text;
    bool secured = false;
  };
  /// Every whole line of all clients that is none of a mail, without its end.
  const std::vector<Line>& lines() const;
  /// Their texts, joined with "|".
  std::string spoken() const;
  /// The last mail, without the dot at its end.
  const std::string& mail() const;
  int connections() const;
  bool clientGone() const;
  /// Every byte that came in clear.
  const std::string& inClear() const;

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace tarnwick::testing
