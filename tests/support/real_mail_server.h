// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tarnwick::testing {

/// A mail server that is none of ours: aiosmtpd in a process of its own, on a free port of 127.0.0.1. It asks for no
/// greeting command and keeps the last mail it was given.
class RealMailServer {
 public:
  RealMailServer() : RealMailServer(std::vector<std::string>()) {}
  /// With the options that aiosmtpd_sink.py tells.
  explicit RealMailServer(const std::vector<std::string>& options);
  ~RealMailServer();
  RealMailServer(const RealMailServer&) = delete;
  RealMailServer& operator=(const RealMailServer&) = delete;

  /// False when the machine has no such server.
  bool available() const;
  /// The port as the mail client takes it.
  std::int16_t port16() const;

  std::uint16_t port() const;

  /// The sender and the recipients of the last mail, a line each; empty when there was none.
  std::string envelope() const;
  /// Its text, header and body, byte for byte as it arrived.
  std::string content() const;
  /// What a reader of mails makes of it, as JSON.
  std::string read() const;

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace tarnwick::testing
