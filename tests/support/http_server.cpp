// SPDX-License-Identifier: MIT
#include "support/http_server.h"

#include <algorithm>
#include <map>
#include <optional>
#include <stdexcept>
#include <QFile>
#include <QHostAddress>
#include <QPointer>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QSslSocket>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include "support/http_message.h"

namespace tarnwick::testing {
namespace {

QSslConfiguration tlsConfiguration(const TlsIdentity& identity) {
  QFile keyFile(QString::fromStdString(identity.keyFile));
  if (!keyFile.open(QIODevice::ReadOnly)) {
    throw std::runtime_error("cannot read the key " + identity.keyFile);
  }
  QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
  configuration.setLocalCertificateChain(QSslCertificate::fromPath(QString::fromStdString(identity.certificateFile)));
  configuration.setPrivateKey(QSslKey(&keyFile, QSsl::Rsa));
  configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
  return configuration;
}

}  // namespace

class HttpServer::Impl {
 public:
  explicit Impl(std::unique_ptr<QTcpServer> server, std::string scheme)
      : server_(std::move(server)), scheme_(std::move(scheme)) {
    if (!server_->listen(QHostAddress::LocalHost)) {
      throw std::runtime_error("no free port on 127.0.0.1: " + server_->errorString().toStdString());
    }
    QObject::connect(server_.get(), &QTcpServer::pendingConnectionAvailable, &context_, [this] { takeConnections(); });
  }

  void takeConnections() {
    while (QTcpSocket* socket = server_->nextPendingConnection()) {
      const int number = ++connections;
      QObject::connect(socket, &QTcpSocket::readyRead, &context_, [this, socket, number] { read(socket, number); });
      QObject::connect(socket, &QTcpSocket::disconnected, &context_, [this, socket] { forget(socket); });
      open_[socket];
      read(socket, number);
    }
  }

  void read(QTcpSocket* socket, int number) {
    const auto found = open_.find(socket);
    if (found == open_.end()) {
      return;
    }
    found->second.buffer += socket->readAll().toStdString();
    if (found->second.buffer.starts_with('\x16')) {
      // The greeting of TLS: answered as web servers do that were asked on the wrong port.
      socket->write("HTTP/1.1 400 Bad Request\r\n\r\n");
      socket->disconnectFromHost();
      return;
    }
    // An answer may close the connection, so it is looked for afresh.
    while (auto request = nextRequest(socket)) {
      request->connection = number;
      requests.push_back(*request);
      ++open_.at(socket).unanswered;
      greatestInFlight = std::max(greatestInFlight, inFlight());
      schedule(socket, *request, answerTo(*request));
    }
  }

  std::optional<HttpRequest> nextRequest(QTcpSocket* socket) {
    const auto found = open_.find(socket);
    return found == open_.end() ? std::nullopt : takeRequest(found->second.buffer);
  }

  HttpResponse answerTo(const HttpRequest& request) {
    const auto handler = handlers.find(request.path());
    if (handler != handlers.end()) {
      return handler->second(request);
    }
    return others ? others(request) : HttpResponse{.status = 404, .body = "no such page"};
  }

  void schedule(QTcpSocket* socket, const HttpRequest& request, HttpResponse response) {
    auto answer = [this, socket = QPointer(socket), request, response] {
      if (socket && open_.contains(socket)) {
        send(socket, request, response);
      }
    };
    if (response.hold) {
      held_.push_back({QPointer(socket), request.target, std::move(answer)});
    } else if (response.delay.count() > 0) {
      QTimer::singleShot(response.delay, &context_, std::move(answer));
    } else {
      answer();
    }
  }

  void send(QTcpSocket* socket, const HttpRequest& request, const HttpResponse& response) {
    if (response.drop) {
      socket->disconnectFromHost();
      return;
    }
    const WireAnswer answer = wireAnswer(request, response);
    socket->write(QByteArray::fromStdString(answer.head));
    if (response.dripBytes > 0) {
      drip(socket, answer.body, 0, response, answer.closeAfter);
      return;
    }
    socket->write(QByteArray::fromStdString(answer.body));
    finish(socket, answer.closeAfter);
  }

  void drip(QPointer<QTcpSocket> socket, const std::string& body, std::size_t at, const HttpResponse& response,
            bool closeAfter) {
    if (!socket || !open_.contains(socket)) {
      return;
    }
    socket->write(QByteArray::fromStdString(body.substr(at, response.dripBytes)));
    at += response.dripBytes;
    if (at >= body.size()) {
      finish(socket, closeAfter);
      return;
    }
    QTimer::singleShot(response.dripInterval, &context_, [=, this] { drip(socket, body, at, response, closeAfter); });
  }

  void finish(QTcpSocket* socket, bool closeAfter) {
    const auto found = open_.find(socket);
    if (found == open_.end()) {
      return;
    }
    --found->second.unanswered;
    if (closeAfter) {
      socket->disconnectFromHost();
    }
  }

  void forget(QTcpSocket* socket) {
    open_.erase(socket);
    socket->deleteLater();
  }

  void release() {
    for (const Held& held : std::exchange(held_, {})) {
      held.answer();
    }
  }

  void release(const std::string& target) {
    const auto found =
        std::ranges::find_if(held_, [&](const Held& held) { return isWaiting(held) && held.target == target; });
    if (found != held_.end()) {
      const auto answer = std::move(found->answer);
      held_.erase(found);
      answer();
    }
  }

  std::vector<std::string> held() const {
    std::vector<std::string> targets;
    for (const Held& held : held_) {
      if (isWaiting(held)) {
        targets.push_back(held.target);
      }
    }
    return targets;
  }

  int inFlight() const {
    int sum = 0;
    for (const auto& [socket, connection] : open_) {
      sum += connection.unanswered;
    }
    return sum;
  }

  std::uint16_t port() const { return server_->serverPort(); }
  const std::string& scheme() const { return scheme_; }
  int openConnections() const { return static_cast<int>(open_.size()); }

  std::map<std::string, Handler> handlers;
  Handler others;
  std::vector<HttpRequest> requests;
  int greatestInFlight = 0;
  int connections = 0;

 private:
  struct Connection {
    std::string buffer;
    int unanswered = 0;
  };
  struct Held {
    QPointer<QTcpSocket> socket;
    std::string target;
    std::function<void()> answer;
  };

  bool isWaiting(const Held& held) const { return held.socket && open_.contains(held.socket); }

  std::unique_ptr<QTcpServer> server_;
  std::string scheme_;
  std::map<QTcpSocket*, Connection> open_;
  std::vector<Held> held_;
  // Last, so that it goes first: no event finds a half-destroyed server.
  QObject context_;
};

HttpServer::HttpServer() : impl_(std::make_unique<Impl>(std::make_unique<QTcpServer>(), "http")) {}

HttpServer::HttpServer(const TlsIdentity& identity) {
  auto server = std::make_unique<QSslServer>();
  server->setSslConfiguration(tlsConfiguration(identity));
  impl_ = std::make_unique<Impl>(std::move(server), "https");
}

HttpServer::~HttpServer() = default;

std::uint16_t HttpServer::port() const { return impl_->port(); }

std::string HttpServer::url(const std::string& target, const std::string& host) const {
  return impl_->scheme() + "://" + host + ":" + std::to_string(port()) + target;
}

void HttpServer::respond(const std::string& path, HttpResponse response) {
  handle(path, [response = std::move(response)](const HttpRequest&) { return response; });
}

void HttpServer::handle(const std::string& path, Handler handler) { impl_->handlers[path] = std::move(handler); }

void HttpServer::handleOthers(Handler handler) { impl_->others = std::move(handler); }

void HttpServer::requireBasic(const std::string& path, const std::string& userName, const std::string& password,
                              HttpResponse response) {
  handle(path, [=](const HttpRequest& request) {
    return basicAnswered(request, userName, password) ? response : basicChallenge();
  });
}

void HttpServer::requireDigest(const std::string& path, const std::string& userName, const std::string& password,
                               HttpResponse response) {
  handle(path, [=](const HttpRequest& request) {
    return digestAnswered(request, userName, password) ? response : digestChallenge();
  });
}

void HttpServer::release() { impl_->release(); }
void HttpServer::release(const std::string& target) { impl_->release(target); }
std::vector<std::string> HttpServer::held() const { return impl_->held(); }

const std::vector<HttpRequest>& HttpServer::requests() const { return impl_->requests; }

std::vector<HttpRequest> HttpServer::requestsFor(const std::string& path) const {
  std::vector<HttpRequest> result;
  std::ranges::copy_if(requests(), std::back_inserter(result), [&](const auto& one) { return one.path() == path; });
  return result;
}

int HttpServer::inFlight() const { return impl_->inFlight(); }
int HttpServer::greatestInFlight() const { return impl_->greatestInFlight; }
int HttpServer::connections() const { return impl_->connections; }
int HttpServer::openConnections() const { return impl_->openConnections(); }

void HttpServer::clearRecords() {
  impl_->requests.clear();
  impl_->greatestInFlight = impl_->inFlight();
}

}  // namespace tarnwick::testing
