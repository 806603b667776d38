// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/tcp_socket.h"

namespace tarnwick {

/// The program's one mail socket with the state of the server's last reply, which the mail exchange polls.
class MailSocket {
 public:
  explicit MailSocket(TcpSocketMaker& sockets);

  TcpSocket& winsock1() { return *winsock1_; }

  /// True while a reply from the server is awaited: set before each wait, cleared when data arrives.
  bool wWaiting = false;
  /// The last chunk of data received.
  std::string winsockData;
  /// The reply code at the start of that chunk, 0 when it does not start with a number.
  std::int16_t winsockResponseCode = 0;
  /// True when the number at the start of the chunk does not fit 16 bits: the exchange has failed.
  bool winsockCodeOverflow = false;
  /// True while a mail is being handed over. A second exchange must not begin then: they would take each other's
  /// replies.
  bool inExchange = false;
  /// Whether the exchange ends, unsuccessfully, when the connection is gone or `givenUp` is set. Otherwise a server
  /// that stays silent is waited for until the program is being closed.
  bool bounded = false;
  /// Set when a bounded exchange has lasted too long or is not wanted any more.
  bool givenUp = false;
  /// True when a bounded exchange has nothing to wait for any more.
  bool isOver() const;

 private:
  void dataArrival();

  std::unique_ptr<TcpSocket> winsock1_;
};

}  // namespace tarnwick
