// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QHostAddress>
#include <QNetworkInterface>
#include <QTcpServer>
#include <QTcpSocket>

#include "platform/events/qt_tcp_socket.h"
#include "support/wait_until.h"

namespace tarnwick {
namespace {

using testing::pumpFor;
using testing::waitUntil;

class ATcpSocket : public ::testing::Test {
 protected:
  ATcpSocket() {
    EXPECT_TRUE(server.listen(QHostAddress(QHostAddress::LocalHost)));
    socket->onDataArrival([this] {
      ++arrivals;
      data += socket->getData();
    });
  }

  QTcpSocket* connectedPeer() {
    socket->connectTo("127.0.0.1", server.serverPort());
    EXPECT_TRUE(waitUntil([this] { return socket->state() == SocketState::connected; }));
    EXPECT_TRUE(waitUntil([this] { return server.hasPendingConnections(); }));
    return server.nextPendingConnection();
  }

  bool reaches(SocketState state) {
    return waitUntil([this, state] { return socket->state() == state; });
  }

  QTcpServer server;
  std::unique_ptr<TcpSocket> socket = QtTcpSockets().makeTcpSocket();
  std::string data;
  int arrivals = 0;
};

TEST_F(ATcpSocket, IsClosedAtFirst) { EXPECT_EQ(socket->state(), SocketState::closed); }

TEST_F(ATcpSocket, GoesFromConnectingToConnected) {
  socket->connectTo("127.0.0.1", server.serverPort());
  EXPECT_EQ(socket->state(), SocketState::connecting);
  EXPECT_TRUE(reaches(SocketState::connected));
}

TEST_F(ATcpSocket, ConnectsToANameWithBlanksAround) {
  socket->connectTo(" localhost ", server.serverPort());
  EXPECT_TRUE(reaches(SocketState::connected));
}

TEST_F(ATcpSocket, CarriesEveryByteBothWays) {
  QTcpSocket* peer = connectedPeer();
  const std::string bytes("all \0 bytes \xff\r\n", 15);
  socket->send(bytes);
  ASSERT_TRUE(waitUntil([&] { return peer->bytesAvailable() == 15; }));
  EXPECT_EQ(peer->readAll().toStdString(), bytes);
  peer->write(bytes.data(), 15);
  ASSERT_TRUE(waitUntil([&] { return data.size() == 15; }));
  EXPECT_EQ(data, bytes);
  EXPECT_EQ(socket->getData(), "");
}

TEST_F(ATcpSocket, SendsADataOfManyMegabytesWhole) {
  QTcpSocket* peer = connectedPeer();
  qint64 received = 0;
  QObject::connect(peer, &QTcpSocket::readyRead, peer, [&] { received += peer->readAll().size(); });
  socket->send(std::string(8'000'000, 'x'));
  // What is queued still leaves after the end.
  socket->close();
  EXPECT_EQ(socket->state(), SocketState::closed);
  EXPECT_TRUE(waitUntil([&] { return received == 8'000'000; }));
}

TEST_F(ATcpSocket, ReportsARefusedConnectionAsAnError) {
  const quint16 port = server.serverPort();
  server.close();
  socket->connectTo("127.0.0.1", port);
  EXPECT_TRUE(reaches(SocketState::error));
}

TEST_F(ATcpSocket, ReportsANameThatIsNoneAsAnError) {
  for (const char* name : {"", "no such name"}) {
    socket->connectTo(name, 25);
    EXPECT_TRUE(reaches(SocketState::error)) << name;
  }
}

TEST_F(ATcpSocket, LooksNamesUpInTheBackgroundAndForgetsTheLookupWhenClosed) {
  socket->connectTo("localhost", server.serverPort());
  EXPECT_EQ(socket->state(), SocketState::connecting);
  socket->close();
  EXPECT_EQ(socket->state(), SocketState::closed);
  pumpFor(std::chrono::milliseconds{100});
  EXPECT_EQ(socket->state(), SocketState::closed);
}

TEST_F(ATcpSocket, IsUsableAgainAfterAnError) {
  socket->connectTo("", 25);
  ASSERT_TRUE(reaches(SocketState::error));
  socket->close();
  EXPECT_EQ(socket->state(), SocketState::closed);
  connectedPeer();
}

TEST_F(ATcpSocket, IsClosedWithoutAnEventWhenThePeerHangsUp) {
  QTcpSocket* peer = connectedPeer();
  peer->disconnectFromHost();
  EXPECT_TRUE(reaches(SocketState::closed));
  EXPECT_EQ(arrivals, 0);
}

TEST_F(ATcpSocket, SendsNothingWhileItIsNotConnected) {
  socket->send("lost");
  socket->connectTo("127.0.0.1", server.serverPort());
  socket->send("lost too");
  ASSERT_TRUE(reaches(SocketState::connected));
  ASSERT_TRUE(waitUntil([this] { return server.hasPendingConnections(); }));
  QTcpSocket* peer = server.nextPendingConnection();
  socket->send("kept");
  ASSERT_TRUE(waitUntil([&] { return peer->bytesAvailable() > 0; }));
  EXPECT_EQ(peer->readAll(), QByteArray("kept"));
}

TEST_F(ATcpSocket, HearsNothingAfterItWasClosed) {
  QTcpSocket* peer = connectedPeer();
  peer->write("late");
  peer->flush();
  socket->close();
  pumpFor(std::chrono::milliseconds(100));
  EXPECT_EQ(arrivals, 0);
  EXPECT_EQ(socket->getData(), "");
}

TEST_F(ATcpSocket, GivesUpConnectingWhenItIsClosed) {
  socket->connectTo("127.0.0.1", server.serverPort());
  socket->close();
  EXPECT_EQ(socket->state(), SocketState::closed);
  pumpFor(std::chrono::milliseconds(50));
  EXPECT_EQ(socket->state(), SocketState::closed);
}

TEST_F(ATcpSocket, ConnectingAgainLeavesTheEarlierConnection) {
  QTcpSocket* first = connectedPeer();
  QTcpSocket* second = connectedPeer();
  EXPECT_TRUE(waitUntil([&] { return first->state() == QAbstractSocket::UnconnectedState; }));
  EXPECT_EQ(second->state(), QAbstractSocket::ConnectedState);
}

TEST_F(ATcpSocket, KnowsThisMachinesNameAndAddress) {
  EXPECT_FALSE(socket->localHostName().empty());
  const QHostAddress address(QString::fromStdString(socket->localIP()));
  EXPECT_EQ(address.protocol(), QAbstractSocket::IPv4Protocol);
  EXPECT_TRUE(QNetworkInterface::allAddresses().contains(address)) << socket->localIP();
}

}  // namespace
}  // namespace tarnwick
