// SPDX-License-Identifier: MIT
#include "support/hostile_visit.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <system_error>
#include <utility>
#include <QFile>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>

#include "support/hostile_server.h"

namespace tarnwick::testing {
namespace {

constexpr int kPatienceMs = 5000;
constexpr std::string_view kHeaderEnd = "\r\n\r\n";

void sendAll(int socket, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto sent = ::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent <= 0) {
      throw VisitorGone();
    }
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
}

// A close after this sends a reset instead of an orderly end.
void closeWithReset(int socket) {
  const linger abrupt{.l_onoff = 1, .l_linger = 0};
  ::setsockopt(socket, SOL_SOCKET, SO_LINGER, &abrupt, sizeof abrupt);
  ::close(socket);
}

// Bytes that nobody has read would turn the close into a reset, so they are taken first.
void closeInOrder(int socket) {
  ::shutdown(socket, SHUT_WR);
  std::array<char, 4096> ignored{};
  pollfd watch{.fd = socket, .events = POLLIN, .revents = 0};
  while (::poll(&watch, 1, kPatienceMs) > 0 && ::recv(socket, ignored.data(), ignored.size(), 0) > 0) {
  }
  ::close(socket);
}

std::size_t announcedLength(const std::string& header) {
  constexpr std::string_view kName = "\r\nContent-Length: ";
  const auto found = header.find(kName);
  return found == std::string::npos ? 0 : std::strtoul(header.c_str() + found + kName.size(), nullptr, 10);
}

}  // namespace

SideDoor::SideDoor() : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  if (::bind(socket_, reinterpret_cast<sockaddr*>(&address), size) != 0 || ::listen(socket_, 1) != 0 ||
      ::getsockname(socket_, reinterpret_cast<sockaddr*>(&address), &size) != 0) {
    throw std::system_error(errno, std::generic_category(), "a second port on 127.0.0.1");
  }
  port_ = ntohs(address.sin_port);
}

SideDoor::~SideDoor() { ::close(socket_); }

int SideDoor::accept() const {
  pollfd watch{.fd = socket_, .events = POLLIN, .revents = 0};
  return ::poll(&watch, 1, kPatienceMs) > 0 ? ::accept(socket_, nullptr, nullptr) : -1;
}

void SideDoor::give(std::string_view text) const {
  if (const int visitor = accept(); visitor >= 0) {
    sendAll(visitor, text);
    closeInOrder(visitor);
  }
}

void SideDoor::giveAndReset(std::string_view text) const {
  if (const int visitor = accept(); visitor >= 0) {
    sendAll(visitor, text);
    closeWithReset(visitor);
  }
}

/// The secure side of a visit: Qt's own socket, used from the visit's thread alone.
class HostileVisit::Tls {
 public:
  Tls(int socket, const TlsIdentity& identity) {
    QFile keyFile(QString::fromStdString(identity.keyFile));
    keyFile.open(QIODevice::ReadOnly);
    stream_.setPrivateKey(QSslKey(&keyFile, QSsl::Rsa));
    stream_.setLocalCertificateChain(QSslCertificate::fromPath(QString::fromStdString(identity.certificateFile)));
    stream_.setPeerVerifyMode(QSslSocket::VerifyNone);
    stream_.setSocketDescriptor(socket);
    stream_.startServerEncryption();
    if (!stream_.waitForEncrypted(kPatienceMs)) {
      throw VisitorGone();
    }
  }

  void send(std::string_view bytes) {
    stream_.write(bytes.data(), static_cast<qint64>(bytes.size()));
    while (stream_.bytesToWrite() > 0 || stream_.encryptedBytesToWrite() > 0) {
      if (!stream_.waitForBytesWritten(kPatienceMs)) {
        throw VisitorGone();
      }
    }
  }

  std::size_t receive(char* buffer, std::size_t size) {
    if (stream_.bytesAvailable() == 0 && !stream_.waitForReadyRead(-1)) {
      return 0;
    }
    return static_cast<std::size_t>(std::max<qint64>(stream_.read(buffer, static_cast<qint64>(size)), 0));
  }

 private:
  QSslSocket stream_;
};

HostileVisit::HostileVisit(int socket, std::string name, HostileDoors& doors)
    : socket_(socket), name_(std::move(name)), doors_(doors) {}

HostileVisit::~HostileVisit() {
  if (tls_) {
    tls_.reset();
  } else if (socket_ >= 0) {
    closeInOrder(socket_);
  }
}

std::size_t HostileVisit::receive(char* buffer, std::size_t size) {
  if (tls_) {
    return tls_->receive(buffer, size);
  }
  return static_cast<std::size_t>(std::max<ssize_t>(::recv(socket_, buffer, size, 0), 0));
}

bool HostileVisit::more() {
  std::array<char, 16384> buffer{};
  const std::size_t length = receive(buffer.data(), buffer.size());
  doors_.writeDown(name_, {buffer.data(), length});
  unread_.append(buffer.data(), length);
  return length > 0;
}

std::string HostileVisit::readRequest() {
  std::size_t end = 0;
  while ((end = unread_.find(kHeaderEnd)) == std::string::npos) {
    if (!more()) {
      throw VisitorGone();
    }
  }
  const std::size_t whole = end + kHeaderEnd.size() + announcedLength(unread_.substr(0, end));
  while (unread_.size() < whole) {
    if (!more()) {
      throw VisitorGone();
    }
  }
  std::string request = unread_.substr(0, whole);
  unread_.erase(0, whole);
  return request;
}

std::string HostileVisit::readLine() {
  std::size_t end = 0;
  while ((end = unread_.find("\r\n")) == std::string::npos) {
    if (!more()) {
      throw VisitorGone();
    }
  }
  std::string line = unread_.substr(0, end);
  unread_.erase(0, end + 2);
  return line;
}

void HostileVisit::readSome(std::size_t bytes) {
  while (unread_.size() < bytes) {
    if (!more()) {
      throw VisitorGone();
    }
  }
}

void HostileVisit::send(std::string_view bytes) {
  if (tls_) {
    tls_->send(bytes);
  } else {
    sendAll(socket_, bytes);
  }
}

void HostileVisit::sendPage(std::string_view body, std::string_view headers) {
  send("HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size()) + "\r\n" + std::string(headers) + "\r\n" +
       std::string(body));
}

void HostileVisit::stay() {
  while (more()) {
  }
}

void HostileVisit::pause(std::chrono::milliseconds time) {
  pollfd watch{.fd = socket_, .events = POLLRDHUP, .revents = 0};
  if (::poll(&watch, 1, static_cast<int>(time.count())) > 0) {
    throw VisitorGone();
  }
}

void HostileVisit::hangUp() { ::shutdown(socket_, SHUT_WR); }

void HostileVisit::reset() {
  const linger abrupt{.l_onoff = 1, .l_linger = 0};
  ::setsockopt(socket_, SOL_SOCKET, SO_LINGER, &abrupt, sizeof abrupt);
  if (!tls_) {
    ::close(std::exchange(socket_, -1));
  }
}

void HostileVisit::secure(const TlsIdentity& identity) { tls_ = std::make_unique<Tls>(socket_, identity); }

std::string HostileVisit::urlOf(const std::string& name) const { return doors_.urlOf(name); }

}  // namespace tarnwick::testing
