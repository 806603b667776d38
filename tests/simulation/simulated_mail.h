// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "platform/tcp_socket.h"
#include "simulation/agenda.h"
#include "simulation/chance.h"
#include "simulation/journal.h"

namespace tarnwick::simulation {

/// How the mail server behaves for a while.
enum class MailMood { good, slow, refusing, garbled, unreachable, cutting, silent };
inline constexpr std::uint64_t kMailMoods = 7;

/// The network as far as mails go: one server, whatever its name.
class SimulatedMail final : public TcpSocketMaker {
 public:
  SimulatedMail(Agenda& agenda, Journal& journal, Chance chance)
      : agenda_(agenda), journal_(journal), chance_(chance) {}

  std::unique_ptr<TcpSocket> makeTcpSocket() override;

  void setMood(MailMood mood) { mood_ = mood; }
  MailMood mood() const { return mood_; }
  /// From now on the server answers at odd milliseconds. Of a mail's end and a tick at one moment nobody says which
  /// comes first, so they come apart where the program is compared with the model.
  bool endsApart = false;
  /// An exchange begins, sends something, and ends.
  std::function<void(const std::string& server)> onConnect;
  std::function<void(const std::string& command)> onSent;
  std::function<void()> onEnd;
  /// An exchange is on its way.
  std::function<void()> onBegin;
  /// The server takes a mail.
  std::function<void(const std::string& mail)> onTaken;

 private:
  class Socket;

  Agenda& agenda_;
  Journal& journal_;
  Chance chance_;
  MailMood mood_ = MailMood::good;
};

}  // namespace tarnwick::simulation
