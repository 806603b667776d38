// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "platform/tcp_socket.h"
#include "support/smtp_server.h"
#include "support/wait_until.h"
#include "transcript/transcript.h"

namespace tarnwick::testing {

/// Real sockets that all lead to one mail server of the test, under the name and address of a machine that is the same
/// everywhere. What the server has received is written down when its client hangs up.
class RecordedSockets final : public TcpSocketMaker {
 public:
  RecordedSockets(TcpSocketMaker& real, const SmtpServer& server, Transcript& transcript)
      : real_(real), server_(server), transcript_(transcript) {}

  std::unique_ptr<TcpSocket> makeTcpSocket() override { return std::make_unique<Socket>(*this); }

  /// Whether a mail is on its way.
  bool inExchange() const { return inExchange_; }

  /// The host behind which nobody listens.
  static constexpr const char* kNoServer = "nowhere.example";
  /// Called when a line has been handed over to be sent.
  std::function<void(const std::string& line)> onSent;

 private:
  class Socket final : public TcpSocket {
   public:
    explicit Socket(RecordedSockets& all) : all_(all), real_(all.real_.makeTcpSocket()) {}

    void connectTo(const std::string& host, std::uint16_t port) override {
      all_.transcript_.add("mail", "to " + host + ", port " + std::to_string(port));
      all_.inExchange_ = true;
      sent_ = 0;
      real_->connectTo("127.0.0.1", host == kNoServer ? kClosedPort : all_.server_.port());
    }
    SocketState state() const override { return real_->state(); }
    void send(const std::string& data) override {
      real_->send(data);
      sent_ += data.size();
      if (all_.onSent) {
        all_.onSent(data);
      }
    }
    std::string getData() override { return real_->getData(); }
    void close() override {
      if (std::exchange(all_.inExchange_, false)) {
        waitUntil([&] { return sent_ == 0 || all_.server_.allReceived().size() >= sent_; });
        all_.transcript_.add("mail", sent_ == 0 ? "(nothing was sent)" : all_.server_.allReceived());
      }
      real_->close();
    }
    void onDataArrival(std::function<void()> handler) override { real_->onDataArrival(std::move(handler)); }
    std::string localHostName() const override { return "watcher.example"; }
    std::string localIP() const override { return "192.0.2.7"; }

   private:
    /// Nothing listens there on any machine of ours.
    static constexpr std::uint16_t kClosedPort = 1;

    RecordedSockets& all_;
    std::unique_ptr<TcpSocket> real_;
    std::size_t sent_ = 0;
  };

  TcpSocketMaker& real_;
  const SmtpServer& server_;
  Transcript& transcript_;
  bool inExchange_ = false;
};

}  // namespace tarnwick::testing
