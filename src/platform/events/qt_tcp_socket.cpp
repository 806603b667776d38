// SPDX-License-Identifier: MIT
#include "platform/events/qt_tcp_socket.h"

#include <optional>
#include <utility>
#include <QHostInfo>
#include <QMetaObject>
#include <QNetworkInterface>
#include <QNetworkProxy>
#include <QTcpSocket>

#include "platform/events/name_lookup.h"

namespace tarnwick {
namespace {

/// The first address by which others can reach this machine; a loopback address when there is no network.
QHostAddress reachableAddress() {
  const QNetworkInterface::InterfaceFlags needed = QNetworkInterface::IsUp | QNetworkInterface::IsRunning;
  for (const QNetworkInterface& interface : QNetworkInterface::allInterfaces()) {
    const bool usable = (interface.flags() & needed) == needed && !(interface.flags() & QNetworkInterface::IsLoopBack);
    if (!usable) {
      continue;
    }
    for (const QNetworkAddressEntry& entry : interface.addressEntries()) {
      if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol && !entry.ip().isLoopback()) {
        return entry.ip();
      }
    }
  }
  return QHostAddress(QHostAddress::LocalHost);
}

class QtTcpSocket final : public TcpSocket {
 public:
  QtTcpSocket() {
    socket_.setProxy(QNetworkProxy::NoProxy);
    QObject::connect(&socket_, &QTcpSocket::readyRead, &socket_, [this] {
      if (handler_) {
        handler_();
      }
    });
    QObject::connect(&socket_, &QTcpSocket::connected, &socket_, [this] { untried_.clear(); });
    QObject::connect(&socket_, &QTcpSocket::errorOccurred, &socket_, [this](QAbstractSocket::SocketError error) {
      if (untried_.isEmpty()) {
        failed_ = error != QAbstractSocket::RemoteHostClosedError;
      } else {
        // The socket is in the middle of giving up this address.
        QMetaObject::invokeMethod(
            &socket_, [this] { tryNextAddress(); }, Qt::QueuedConnection);
      }
    });
  }

  void connectTo(const std::string& host, std::uint16_t port) override {
    giveUpConnecting();
    socket_.abort();
    failed_ = false;
    const QString name = QString::fromStdString(host).trimmed();
    if (const QHostAddress address(name); !address.isNull()) {
      socket_.connectToHost(address, port);
      return;
    }
    lookup_.emplace(name, [this, port](const QList<QHostAddress>& addresses) {
      untried_ = addresses;
      port_ = port;
      failed_ = addresses.isEmpty();
      tryNextAddress();
    });
  }

  SocketState state() const override {
    if (failed_) {
      return SocketState::error;
    }
    if ((lookup_ && lookup_->pending()) || !untried_.isEmpty()) {
      return SocketState::connecting;
    }
    switch (socket_.state()) {
      case QAbstractSocket::HostLookupState:
      case QAbstractSocket::ConnectingState:
        return SocketState::connecting;
      case QAbstractSocket::ConnectedState:
        return SocketState::connected;
      default:
        return SocketState::closed;
    }
  }

  void send(const std::string& data) override {
    if (state() == SocketState::connected) {
      socket_.write(data.data(), static_cast<qint64>(data.size()));
    }
  }

  std::string getData() override { return socket_.isOpen() ? socket_.readAll().toStdString() : std::string(); }

  void close() override {
    giveUpConnecting();
    failed_ = false;
    if (socket_.state() == QAbstractSocket::ConnectedState) {
      // Data that is queued still leaves in the background.
      socket_.close();
    } else if (socket_.state() != QAbstractSocket::ClosingState) {
      socket_.abort();
    }
  }

  void onDataArrival(std::function<void()> handler) override { handler_ = std::move(handler); }

  std::string localHostName() const override { return QHostInfo::localHostName().toStdString(); }
  std::string localIP() const override { return reachableAddress().toString().toStdString(); }

 private:
  void giveUpConnecting() {
    lookup_.reset();
    untried_.clear();
  }

  void tryNextAddress() {
    // Meanwhile the socket may have been closed or sent elsewhere.
    if (!untried_.isEmpty() && socket_.state() == QAbstractSocket::UnconnectedState) {
      socket_.connectToHost(untried_.takeFirst(), port_);
    }
  }

  std::function<void()> handler_;
  bool failed_ = false;
  /// The addresses of the host that are left when the one that is being tried does not answer.
  QList<QHostAddress> untried_;
  std::uint16_t port_ = 0;
  std::optional<NameLookup> lookup_;
  // Goes before the members that its signals use.
  QTcpSocket socket_;
};

}  // namespace

std::unique_ptr<TcpSocket> QtTcpSockets::makeTcpSocket() { return std::make_unique<QtTcpSocket>(); }

}  // namespace tarnwick
