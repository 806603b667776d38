// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace tarnwick::testing {

/// The moments of a mail exchange at which the server speaks, in their order.
enum class SmtpStage { greeting, mailFrom, rcptTo, data, message, quit };

/// A mail server on a free port of 127.0.0.1, served by the event loop of the test itself. It follows the order of an
/// exchange whatever it answers, so that a client which goes on after a refusal is seen to do so.
///
///     SmtpServer server;
///     server.reply(SmtpStage::rcptTo, "550 no such user\r\n");
///     ...
///     EXPECT_EQ(server.received(SmtpStage::quit), "QUIT\r\n");
///
/// Without a script it greets with 220 and answers 250, after DATA 354, after QUIT 221.
class SmtpServer {
 public:
  SmtpServer();
  ~SmtpServer();
  SmtpServer(const SmtpServer&) = delete;
  SmtpServer& operator=(const SmtpServer&) = delete;

  std::uint16_t port() const;
  /// The port as the mail client takes it.
  std::int16_t port16() const { return static_cast<std::int16_t>(port()); }

  /// What is sent at that moment, byte for byte; an empty text keeps silent.
  void reply(SmtpStage stage, const std::string& bytes);
  /// Hangs up at that moment instead of answering.
  void drop(SmtpStage stage);
  /// Answers as scripted at that moment and hangs up in the same breath.
  void hangUpAfter(SmtpStage stage);
  /// Sends `bytes` to the client of the latest connection now.
  void say(const std::string& bytes);

  /// What the client of the latest connection has sent for that moment: a command line, or the message with the line of
  /// a single dot; empty while it is not complete.
  std::string received(SmtpStage stage) const;
  /// Every byte that the client of the latest connection has sent, and every complete command so far.
  const std::string& allReceived() const;
  std::size_t commandCount() const;
  /// Connections accepted so far.
  int connections() const;
  /// True when the latest connection is closed.
  bool clientGone() const;

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace tarnwick::testing
