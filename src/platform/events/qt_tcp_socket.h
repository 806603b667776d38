// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/tcp_socket.h"

namespace tarnwick {

/// TCP sockets of the application's event loop. They connect directly, past any proxy of the desktop.
///
/// A name that is not found and a connection that is refused leave a socket in `SocketState::error`. One whose peer
/// hangs up is closed, without an event; what had arrived before can still be taken.
class QtTcpSockets final : public TcpSocketMaker {
 public:
  std::unique_ptr<TcpSocket> makeTcpSocket() override;
};

}  // namespace tarnwick
