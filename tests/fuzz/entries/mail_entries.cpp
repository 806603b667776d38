// SPDX-License-Identifier: MIT
#include "fuzz/entries/mail_entries.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <regex>
#include <string>
#include <utility>
#include <vector>

#include "base/product.h"
#include "mail/mail_socket.h"
#include "mail/smtp.h"

namespace tarnwick::testing {
namespace {

/// A server whose every move stands in the input.
struct ScriptedSocket final : TcpSocket {
  void connectTo(const std::string&, std::uint16_t port) override {
    port_ = port;
    state_ = SocketState::connecting;
  }
  SocketState state() const override { return state_; }
  void send(const std::string& data) override {
    if (state_ == SocketState::connected) {
      require(replies_ == sent_.size() + 1, "a command was not sent after the reply to the one before it");
      sent_.push_back(data);
    }
  }
  std::string getData() override { return std::exchange(data_, {}); }
  void close() override { state_ = SocketState::closed; }
  void onDataArrival(std::function<void()> handler) override { handler_ = std::move(handler); }
  std::string localHostName() const override { return "watcher"; }
  std::string localIP() const override { return "127.0.0.1"; }

  void connect() {
    if (state_ == SocketState::connecting) {
      state_ = SocketState::connected;
    }
  }
  void fail() {
    failedToConnect_ = failedToConnect_ || state_ == SocketState::connecting;
    state_ = SocketState::error;
  }
  /// False when there is no connection that it could arrive on.
  bool arrive(std::string_view data) {
    connect();
    if (state_ != SocketState::connected) {
      return false;
    }
    data_ = data;
    ++replies_;
    handler_();
    return true;
  }

  std::uint16_t port_ = 0;
  SocketState state_ = SocketState::closed;
  std::string data_;
  std::size_t replies_ = 0;
  bool failedToConnect_ = false;
  std::vector<std::string> sent_;
  std::function<void()> handler_;
};

/// The one socket that a mail socket makes; who made it keeps a hand on it.
struct ScriptedSockets final : TcpSocketMaker {
  std::unique_ptr<TcpSocket> makeTcpSocket() override {
    auto socket = std::make_unique<ScriptedSocket>();
    made = socket.get();
    return socket;
  }
  ScriptedSocket* made = nullptr;
};

/// Hands over one piece of the input for each event that is waited for, and closes the program at its end.
struct ScriptedPump final : EventPump {
  explicit ScriptedPump(std::string_view script) : script_(script) {}
  void pump() override {}
  void waitForEvent() override {
    if (script_.empty()) {
      closing_ = true;
      return;
    }
    const std::string_view event = takePiece(script_);
    if (event == "connect") {
      socket_->connect();
    } else if (event == "fail") {
      socket_->fail();
    } else if (event == "close") {
      closing_ = true;
    } else if (event == "again") {
      std::int16_t port = 0;
      require(!smtp(*mail_, *this).sendEmail("other", "a", "b", "c", "d", port), "two exchanges at a time");
    } else if (event != "nothing") {
      if (socket_->arrive(event)) {
        answered_.emplace_back(event);
      }
    }
  }
  void close() override { closing_ = true; }
  bool closing() const override { return closing_; }

  std::string_view script_;
  bool closing_ = false;
  std::vector<std::string> answered_;
  MailSocket* mail_ = nullptr;
  ScriptedSocket* socket_ = nullptr;
};

/// A reply's code, found in another way than the product's; nothing when 16 bits cannot hold it.
std::optional<std::int16_t> codeOf(const std::string& reply) {
  static const std::regex number("[ \t\r\n]*([+-]?([0-9]+\\.?[0-9]*|\\.[0-9]+)([eE][+-]?[0-9]+)?)[ \t\r\n]*");
  const std::string start = reply.substr(0, reply.find(' '));
  std::smatch parts;
  // The expression's machine goes one call deeper for each character.
  if (start.size() > 2000 || !std::regex_match(start, parts, number)) {
    return std::int16_t{0};
  }
  const double code = std::nearbyint(std::strtod(parts[1].str().c_str(), nullptr));
  return code < -32768 || code > 32767 ? std::nullopt : std::optional(static_cast<std::int16_t>(code));
}

std::string oneLine(std::string_view value) {
  std::string line(value);
  std::erase_if(line, [](char c) { return c == '\r' || c == '\n' || c == '\0'; });
  return line;
}

std::vector<std::string> commandsOf(std::string_view to, std::string_view from, std::string_view subject,
                                    std::string_view body) {
  const std::string target = "<" + oneLine(to) + ">";
  std::string message = "Subject:" + oneLine(subject) + "\r\nTO:" + target +
                        "\r\nTarnapplication: Tarnwick\r\nWebsite: " + kProductHomePage + "\r\n\r\n";
  message.append(body).append("\r\n\r\n.\r\n");
  return {"MAIL FROM:<" + oneLine(from) + ">\r\n", "RCPT TO:" + target + "\r\n", "DATA\r\n", message, "QUIT\r\n"};
}

/// Whether the mail counts as sent after these replies: the greeting and one for each command.
bool isSent(const std::vector<std::string>& replies) {
  bool accepted = replies.size() == 6;
  for (std::size_t i = 0; i < replies.size(); ++i) {
    const std::optional<std::int16_t> code = codeOf(replies[i]);
    accepted = accepted && code && (i == 0 || *code < 500);
  }
  return accepted;
}

}  // namespace

void fuzzSmtpExchange(std::string_view input) {
  const std::string to(takePiece(input));
  const std::string from(takePiece(input));
  const std::string subject(takePiece(input));
  const std::string body(takePiece(input));
  ScriptedPump pump(input);
  ScriptedSockets sockets;
  MailSocket mail(sockets);
  ScriptedSocket& socket = *sockets.made;
  pump.mail_ = &mail;
  pump.socket_ = &socket;

  std::int16_t port = 0;
  const bool sent = smtp(mail, pump).sendEmail("server", to, from, subject, body, port);

  require(port == 25 && socket.port_ == 25, "the port is not the usual one");
  require(!mail.inExchange && socket.state() == SocketState::closed, "the exchange has no end");
  const std::vector<std::string> commands = commandsOf(to, from, subject, body);
  require(socket.sent_.size() <= commands.size(), "more than five commands");
  for (std::size_t i = 0; i < socket.sent_.size(); ++i) {
    require(socket.sent_[i] == commands[i], "a command is another one than it should be");
  }
  require(sent == isSent(pump.answered_), "the replies were taken for others");
  const bool refused = !pump.answered_.empty() && !codeOf(pump.answered_.back());
  require(pump.closing_ || socket.failedToConnect_ || refused || pump.answered_.size() == commands.size() + 1,
          "the exchange was broken off");
}

}  // namespace tarnwick::testing
