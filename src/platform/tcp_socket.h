// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace tarnwick {

/// The state of a TCP socket.
enum class SocketState : int { closed = 0, connecting = 6, connected = 7, error = 9 };

/// A TCP client socket of the event loop.
class TcpSocket {
 public:
  virtual ~TcpSocket() = default;

  /// Starts to connect to `host` (a name or an address) at `port`; the outcome is seen in `state()`.
  virtual void connectTo(const std::string& host, std::uint16_t port) = 0;
  virtual SocketState state() const = 0;
  /// Queues `data` for sending, all of it; nothing happens when the socket is not connected.
  virtual void send(const std::string& data) = 0;
  /// Takes all data that has arrived.
  virtual std::string getData() = 0;
  virtual void close() = 0;

  /// Called when data has arrived.
  virtual void onDataArrival(std::function<void()> handler) = 0;

  /// This machine's host name.
  virtual std::string localHostName() const = 0;
  /// This machine's IP address in dotted form: the one it is reached at from outside, else "127.0.0.1".
  virtual std::string localIP() const = 0;
};

/// Makes TCP sockets.
class TcpSocketMaker {
 public:
  virtual ~TcpSocketMaker() = default;
  virtual std::unique_ptr<TcpSocket> makeTcpSocket() = 0;
};

}  // namespace tarnwick
