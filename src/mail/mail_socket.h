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

 private:
  void dataArrival();

  std::unique_ptr<TcpSocket> winsock1_;
};

}  // namespace tarnwick
