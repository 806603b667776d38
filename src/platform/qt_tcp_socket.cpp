#include "platform/qt_tcp_socket.h"

#include <utility>
#include <QHostInfo>
#include <QNetworkInterface>
#include <QNetworkProxy>
#include <QTcpSocket>

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
    QObject::connect(&socket_, &QTcpSocket::errorOccurred, &socket_, [this](QAbstractSocket::SocketError error) {
      failed_ = error != QAbstractSocket::RemoteHostClosedError;
    });
  }

  void connectTo(const std::string& host, std::uint16_t port) override {
    socket_.abort();
    failed_ = false;
    socket_.connectToHost(QString::fromStdString(host).trimmed(), port);
  }

  SocketState state() const override {
    if (failed_) {
      return SocketState::error;
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
  std::function<void()> handler_;
  bool failed_ = false;
  // Goes before the members that its signals use.
  QTcpSocket socket_;
};

}  // namespace

std::unique_ptr<TcpSocket> QtTcpSockets::makeTcpSocket() { return std::make_unique<QtTcpSocket>(); }

}  // namespace tarnwick
