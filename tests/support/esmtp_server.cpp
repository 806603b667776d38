// SPDX-License-Identifier: MIT
#include "support/esmtp_server.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QHostAddress>
#include <QPointer>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslSocket>
#include <QTcpServer>
#include <QTimer>

#include "base/text.h"

namespace tarnwick::testing {
namespace {

class Listener final : public QTcpServer {
 public:
  std::function<void(qintptr)> taken;

 protected:
  void incomingConnection(qintptr handle) override { taken(handle); }
};

}  // namespace

class EsmtpServer::Impl {
 public:
  Impl(EsmtpServer& owner, const TlsIdentity& identity, bool atOnce, const std::string& address)
      : owner_(owner), identity_(identity) {
    server.taken = [this, atOnce](qintptr handle) { accept(handle, atOnce); };
    if (!server.listen(QHostAddress(QString::fromStdString(address)))) {
      ADD_FAILURE() << "The mail server cannot listen: " << server.errorString().toStdString();
    }
  }

  void accept(qintptr handle, bool atOnce) {
    ++connections;
    client = new QSslSocket(&server);
    client->setSocketDescriptor(handle);
    unread_.clear();
    inMail_ = inLogin_ = false;
    QObject::connect(client.data(), &QSslSocket::readyRead, client.data(), [this] { take(); });
    if (atOnce) {
      QObject::connect(client.data(), &QSslSocket::encrypted, client.data(), [this] { answer("greeting"); });
      secure();
    } else {
      answer("greeting");
    }
  }

  void secure() {
    QFile keyFile(QString::fromStdString(identity_.keyFile));
    ASSERT_TRUE(keyFile.open(QIODevice::ReadOnly));
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificateChain(
        QSslCertificate::fromPath(QString::fromStdString(identity_.certificateFile)));
    configuration.setPrivateKey(QSslKey(&keyFile, QSsl::Rsa));
    configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
    client->setSslConfiguration(configuration);
    client->startServerEncryption();
  }

  void take() {
    const std::string bytes = client->readAll().toStdString();
    if (!client->isEncrypted()) {
      inClear += bytes;
    }
    unread_ += bytes;
    for (auto end = std::string::npos;
         client && (end = unread_.find(inMail_ ? "\r\n.\r\n" : "\r\n")) != std::string::npos;) {
      const std::string line = unread_.substr(0, end);
      unread_.erase(0, end + (inMail_ ? 5 : 2));
      obey(line);
    }
  }

  void obey(const std::string& line) {
    if (inMail_) {
      mail = line + "\r\n";
      inMail_ = false;
      answer("message");
      return;
    }
    lines.push_back({line, client->isEncrypted()});
    const std::string said = answer(inLogin_ ? "credentials" : upperCase(line.substr(0, line.find_first_of(" :"))));
    inLogin_ = said.starts_with("334");
    inMail_ = line == "DATA" && said.starts_with("354");
    if (line == "STARTTLS" && said.starts_with("220") && client) {
      client->flush();
      secure();
    }
  }

  std::string answer(const std::string& to) {
    Replies& answers = owner_.replies[to];
    const std::optional<std::string> words = answers.empty() ? "250 well\r\n" : answers.front();
    if (answers.size() > 1) {
      answers.pop_front();
    }
    if (!words) {
      client->disconnectFromHost();
      return {};
    }
    const auto manner = owner_.manners.find(to);
    if (manner != owner_.manners.end() && manner->second == Manner::byteByByte) {
      dribble(*words);
      return *words;
    }
    client->write(words->data(), static_cast<qint64>(words->size()));
    if (manner != owner_.manners.end()) {
      client->disconnectFromHost();
    }
    return *words;
  }

  void dribble(const std::string& words) {
    if (!client || words.empty()) {
      return;
    }
    client->write(words.data(), 1);
    client->flush();
    QTimer::singleShot(1, client.data(), [this, rest = words.substr(1)] { dribble(rest); });
  }

  Listener server;
  QPointer<QSslSocket> client;
  std::vector<Line> lines;
  std::string mail;
  std::string inClear;
  int connections = 0;

 private:
  EsmtpServer& owner_;
  TlsIdentity identity_;
  std::string unread_;
  bool inMail_ = false;
  bool inLogin_ = false;
};

EsmtpServer::EsmtpServer(const TlsIdentity& identity, bool atOnce, const std::string& address)
    : replies{{"greeting", {"220 mail.example ready\r\n"}},
              {"EHLO", {"250-mail.example greets you\r\n250 8BITMIME\r\n"}},
              {"STARTTLS", {"220 go on\r\n"}},
              {"AUTH", {"334 \r\n"}},
              {"credentials", {"235 2.7.0 you are in\r\n"}},
              {"DATA", {"354 go on, end with a dot\r\n"}},
              {"message", {"250 2.0.0 taken as 1\r\n"}},
              {"QUIT", {"221 bye\r\n"}}},
      impl_(std::make_unique<Impl>(*this, identity, atOnce, address)) {}
EsmtpServer::~EsmtpServer() = default;

std::uint16_t EsmtpServer::port() const { return impl_->server.serverPort(); }
const std::vector<EsmtpServer::Line>& EsmtpServer::lines() const { return impl_->lines; }
std::string EsmtpServer::spoken() const {
  std::string all;
  for (const Line& line : impl_->lines) {
    all += (all.empty() ? "" : "|") + line.text;
  }
  return all;
}
const std::string& EsmtpServer::mail() const { return impl_->mail; }
int EsmtpServer::connections() const { return impl_->connections; }
bool EsmtpServer::clientGone() const {
  return impl_->connections > 0 && (!impl_->client || impl_->client->state() == QAbstractSocket::UnconnectedState);
}
const std::string& EsmtpServer::inClear() const { return impl_->inClear; }

}  // namespace tarnwick::testing
