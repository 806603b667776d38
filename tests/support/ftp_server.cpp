// SPDX-License-Identifier: MIT
#include "support/ftp_server.h"

#include <stdexcept>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>

namespace tarnwick::testing {

class FtpServer::Impl {
 public:
  explicit Impl(const FtpServer& owner) : owner_(owner) {
    if (!control_.listen(QHostAddress::LocalHost) || !data_.listen(QHostAddress::LocalHost)) {
      throw std::runtime_error("no free port on 127.0.0.1");
    }
    QObject::connect(&control_, &QTcpServer::newConnection, &context_, [this] { accept(); });
    QObject::connect(&data_, &QTcpServer::newConnection, &context_, [this] { sendFile(); });
  }

  void accept() {
    QTcpSocket* const socket = control_.nextPendingConnection();
    socket->write("220 ready\r\n");
    QObject::connect(socket, &QTcpSocket::readyRead, &context_, [this, socket] {
      while (socket->canReadLine()) {
        const std::string line = socket->readLine().trimmed().toStdString();
        commands.push_back(line);
        answer(*socket, line.substr(0, line.find(' ')), line.substr(std::min(line.find(' ') + 1, line.size())));
      }
    });
  }

  void answer(QTcpSocket& socket, const std::string& verb, const std::string& argument) {
    if (silent_) {
      return;
    }
    if (verb == "USER") {
      user_ = argument;
      socket.write("331 password, please\r\n");
    } else if (verb == "PASS") {
      const bool known = owner_.userName.empty() || (user_ == owner_.userName && argument == owner_.password);
      socket.write(known ? "230 welcome\r\n" : "530 not you\r\n");
    } else if (verb == "PWD") {
      socket.write("257 \"/\"\r\n");
    } else if (verb == "EPSV") {
      socket.write(("229 (|||" + std::to_string(data_.serverPort()) + "|)\r\n").c_str());
    } else if (verb == "RETR") {
      retrieve(socket, argument);
    } else if (verb == "TYPE") {
      socket.write("200 done\r\n");
    } else if (verb == "QUIT") {
      socket.write("221 bye\r\n");
      socket.disconnectFromHost();
    } else {
      socket.write("502 unknown\r\n");
    }
  }

  void retrieve(QTcpSocket& socket, const std::string& name) {
    if (!owner_.files.contains(name)) {
      socket.write("550 no such file\r\n");
      return;
    }
    waiting_ = &socket;
    name_ = name;
    socket.write("150 here it comes\r\n");
    sendFile();
  }

  // The data connection and the command that asks for it come in either order.
  void sendFile() {
    if (waiting_ == nullptr || !data_.hasPendingConnections()) {
      return;
    }
    QTcpSocket* const pipe = data_.nextPendingConnection();
    pipe->write(QByteArray::fromStdString(owner_.files.at(name_)));
    pipe->disconnectFromHost();
    silent_ = !owner_.confirmsEnd;
    if (!silent_) {
      waiting_->write("226 done\r\n");
    }
    waiting_ = nullptr;
  }

  std::uint16_t port() const { return control_.serverPort(); }

  std::vector<std::string> commands;

 private:
  const FtpServer& owner_;
  QTcpServer control_;
  QTcpServer data_;
  std::string user_;
  QTcpSocket* waiting_ = nullptr;
  std::string name_;
  bool silent_ = false;
  QObject context_;
};

FtpServer::FtpServer() : impl_(std::make_unique<Impl>(*this)) {}
FtpServer::~FtpServer() = default;

std::string FtpServer::url(const std::string& path) const {
  return "ftp://127.0.0.1:" + std::to_string(impl_->port()) + path;
}

const std::vector<std::string>& FtpServer::commands() const { return impl_->commands; }

}  // namespace tarnwick::testing
