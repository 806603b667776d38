// SPDX-License-Identifier: MIT
#include "support/smtp_server.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <vector>
#include <QHostAddress>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>

namespace tarnwick::testing {
namespace {

constexpr std::size_t kStages = 6;

std::size_t indexOf(SmtpStage stage) { return static_cast<std::size_t>(stage); }

}  // namespace

class SmtpServer::Impl {
 public:
  Impl() {
    if (!server.listen(QHostAddress(QHostAddress::LocalHost))) {
      ADD_FAILURE() << "The mail server cannot listen: " << server.errorString().toStdString();
    }
    QObject::connect(&server, &QTcpServer::newConnection, &server, [this] { accept(); });
  }

  void accept() {
    client = server.nextPendingConnection();
    ++connections;
    commands.clear();
    all.clear();
    taken = 0;
    QObject::connect(client.data(), &QTcpSocket::readyRead, client.data(), [this, peer = client.data()] {
      all += peer->readAll().toStdString();
      takeCommands();
    });
    speak(SmtpStage::greeting);
  }

  /// Cuts what has arrived into commands and answers each.
  void takeCommands() {
    while (commands.size() + 1 < kStages) {
      const auto stage = static_cast<SmtpStage>(commands.size() + 1);
      const std::string end = stage == SmtpStage::message ? "\r\n.\r\n" : "\r\n";
      const std::size_t found = all.find(end, taken);
      if (found == std::string::npos) {
        return;
      }
      const std::size_t next = found + end.size();
      commands.push_back(all.substr(taken, next - taken));
      taken = next;
      speak(stage);
    }
  }

  void speak(SmtpStage stage) {
    const std::optional<std::string>& line = script[indexOf(stage)];
    if (line) {
      client->write(line->data(), static_cast<qint64>(line->size()));
    }
    if (!line || lastStage == stage) {
      client->disconnectFromHost();
    }
  }

  QTcpServer server;
  // The socket belongs to the server, which may outlive the test's look at it.
  QPointer<QTcpSocket> client;
  std::array<std::optional<std::string>, kStages> script = {
      "220 mail.example ready\r\n",    "250 sender ok\r\n", "250 recipient ok\r\n",
      "354 go on, end with a dot\r\n", "250 taken\r\n",     "221 bye\r\n"};
  std::optional<SmtpStage> lastStage;
  std::vector<std::string> commands;
  std::string all;
  std::size_t taken = 0;
  int connections = 0;
};

SmtpServer::SmtpServer() : impl_(std::make_unique<Impl>()) {}
SmtpServer::~SmtpServer() = default;

std::uint16_t SmtpServer::port() const { return impl_->server.serverPort(); }

void SmtpServer::reply(SmtpStage stage, const std::string& bytes) { impl_->script[indexOf(stage)] = bytes; }
void SmtpServer::drop(SmtpStage stage) { impl_->script[indexOf(stage)].reset(); }

void SmtpServer::hangUpAfter(SmtpStage stage) { impl_->lastStage = stage; }

void SmtpServer::say(const std::string& bytes) {
  impl_->client->write(bytes.data(), static_cast<qint64>(bytes.size()));
}

std::string SmtpServer::received(SmtpStage stage) const {
  const std::size_t index = indexOf(stage);
  return index >= 1 && index <= impl_->commands.size() ? impl_->commands[index - 1] : std::string();
}

const std::string& SmtpServer::allReceived() const { return impl_->all; }
std::size_t SmtpServer::commandCount() const { return impl_->commands.size(); }
int SmtpServer::connections() const { return impl_->connections; }

bool SmtpServer::clientGone() const {
  return impl_->connections > 0 && (!impl_->client || impl_->client->state() == QAbstractSocket::UnconnectedState);
}

}  // namespace tarnwick::testing
