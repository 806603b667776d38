// SPDX-License-Identifier: MIT
#include <arpa/inet.h>
#include <netdb.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <future>
#include <string>
#include <QCoreApplication>
#include <QTimer>

#include "platform/events/qt_tcp_socket.h"

// A program of its own for the tests, in which the system's names are looked up by the functions below.
//
// Without an argument no name server answers, and the program is closed while it looks one up: exit status 0 when it
// could be closed in that state. With the number of a port it connects to a name of two addresses, 127.0.0.2 and then
// 127.0.0.1: exit status 0 when it was connected.

namespace {

std::promise<void> lookingUp;
std::promise<void> never;
bool silent = true;
std::array<sockaddr_in, 2> addresses{};
std::array<addrinfo, 2> list{};

void fillList() {
  for (std::size_t i = 0; i < list.size(); ++i) {
    addresses[i].sin_family = AF_INET;
    addresses[i].sin_addr.s_addr = htonl(i == 0 ? INADDR_LOOPBACK + 1 : INADDR_LOOPBACK);
    list[i].ai_family = AF_INET;
    list[i].ai_addrlen = sizeof addresses[i];
    list[i].ai_addr = reinterpret_cast<sockaddr*>(&addresses[i]);
    list[i].ai_next = i + 1 < list.size() ? &list[i + 1] : nullptr;
  }
}

}  // namespace

extern "C" int getaddrinfo(const char*, const char*, const addrinfo*, addrinfo** result) {
  lookingUp.set_value();
  if (silent) {
    never.get_future().wait();
  }
  *result = list.data();
  return 0;
}

extern "C" void freeaddrinfo(addrinfo*) noexcept {}

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  silent = argc < 2;
  fillList();
  const auto socket = tarnwick::QtTcpSockets().makeTcpSocket();
  socket->connectTo("mail.example.com", silent ? std::uint16_t{25} : static_cast<std::uint16_t>(std::stoi(argv[1])));
  lookingUp.get_future().wait();
  const auto wanted = silent ? tarnwick::SocketState::connecting : tarnwick::SocketState::connected;
  QTimer::singleShot(std::chrono::milliseconds{silent ? 100 : 5000}, &application, &QCoreApplication::quit);
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &application, [&] {
    if (!silent && socket->state() == wanted) {
      QCoreApplication::quit();
    }
  });
  look.start(std::chrono::milliseconds{5});
  QCoreApplication::exec();
  const bool reached = socket->state() == wanted;
  socket->close();
  return reached ? EXIT_SUCCESS : EXIT_FAILURE;
}
