// SPDX-License-Identifier: MIT
#include "simulation/simulated_mail.h"

#include <functional>
#include <utility>

#include "simulation/simulated_memory.h"

namespace tarnwick::simulation {

// What a server in a bad mood leaves out it does later: one that is silent without end would hold a list for ever that
// does not bound its waits.
class SimulatedMail::Socket final : public TcpSocket {
 public:
  explicit Socket(SimulatedMail& mail) : mail_(mail), next_(mail.agenda_) {}

  void connectTo(const std::string& host, std::uint16_t) override {
    const SimulatedMemory::OfWorld ours;
    if (mail_.onConnect) {
      mail_.onConnect(host);
    }
    inExchange_ = true;
    state_ = SocketState::connecting;
    answers_ = 0;
    next_.in(delay(), [this] {
      if (mail_.mood_ == MailMood::unreachable) {
        state_ = SocketState::error;
        return;
      }
      state_ = SocketState::connected;
      answer("220 ready\r\n");
    });
    if (mail_.onBegin) {
      mail_.onBegin();
    }
  }
  SocketState state() const override { return state_; }
  void send(const std::string& data) override {
    if (state_ != SocketState::connected) {
      return;
    }
    const SimulatedMemory::OfWorld ours;
    mail_.journal_.add("mail", data);
    if (mail_.onSent) {
      mail_.onSent(data);
    }
    ++answers_;
    const bool isMail = answers_ == kMailItself;
    if (mail_.mood_ == MailMood::cutting && isMail) {
      next_.in(delay(), [this] { state_ = SocketState::closed; });
    } else if (mail_.mood_ == MailMood::refusing && answers_ > 1) {
      answer("550 not here\r\n");
    } else {
      // What a garbled answer means nobody knows: it is designed to pass for a good one unless it is too large a
      // number.
      if (isMail && mail_.onTaken) {
        mail_.onTaken(data);
      }
      const bool clear = mail_.mood_ != MailMood::garbled;
      answer(clear ? "250 ok\r\n" : mail_.chance_.oneIn(2) ? "what?\r\n" : "99999 much\r\n");
    }
  }
  std::string getData() override { return std::exchange(data_, {}); }
  void close() override {
    next_.cancel();
    state_ = SocketState::closed;
    if (std::exchange(inExchange_, false) && mail_.onEnd) {
      const SimulatedMemory::OfWorld ours;
      mail_.onEnd();
    }
  }
  void onDataArrival(std::function<void()> handler) override { arrived_ = std::move(handler); }
  std::string localHostName() const override { return "watcher.example"; }
  std::string localIP() const override { return "192.0.2.7"; }

 private:
  /// The fourth thing that is sent.
  static constexpr int kMailItself = 4;

  Time delay() {
    switch (mail_.mood_) {
      case MailMood::slow:
        return Time(mail_.chance_.between(1000, 9000));
      case MailMood::silent:
        return Time(mail_.chance_.between(60'000, 3'600'000));
      default:
        return Time(mail_.chance_.between(1, 200));
    }
  }
  void answer(std::string text) {
    const Time pause = delay();
    const bool even = mail_.endsApart && (mail_.agenda_.now() + pause).count() % 2 == 0;
    next_.in(even ? pause + Time(1) : pause, [this, text = std::move(text)] {
      data_ += text;
      if (arrived_) {
        const SimulatedMemory::OfProgram program;
        arrived_();
      }
    });
  }

  SimulatedMail& mail_;
  Appointment next_;
  std::function<void()> arrived_;
  SocketState state_ = SocketState::closed;
  bool inExchange_ = false;
  std::string data_;
  int answers_ = 0;
};

std::unique_ptr<TcpSocket> SimulatedMail::makeTcpSocket() { return std::make_unique<Socket>(*this); }

}  // namespace tarnwick::simulation
