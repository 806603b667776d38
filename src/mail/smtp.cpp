// SPDX-License-Identifier: MIT
#include "mail/smtp.h"

#include <array>

#include "base/one_line.h"
#include "base/product.h"

namespace tarnwick {
namespace {

constexpr std::int16_t kMailPort = 25;
/// Reply codes from here on are refusals for good.
constexpr std::int16_t kFirstRefusal = 500;

std::string messageText(const std::string& to, const std::string& subject, const std::string& body) {
  return "Subject:" + subject + "\r\n" +            //
         "TO:<" + to + ">\r\n" +                    //
         "Tarnapplication: Tarnwick\r\n" +          //
         "Website: " + kProductHomePage + "\r\n" +  //
         "\r\n" +                                   //
         body + "\r\n\r\n.\r\n";
}

/// One exchange's hold on the socket: it is the only one, and the connection is closed at its end whatever happened.
class Exchange {
 public:
  explicit Exchange(MailSocket& mail) : mail_(mail) {
    mail_.inExchange = true;
    mail_.givenUp = false;
  }
  ~Exchange() {
    mail_.winsock1().close();
    mail_.inExchange = false;
  }
  Exchange(const Exchange&) = delete;
  Exchange& operator=(const Exchange&) = delete;

 private:
  MailSocket& mail_;
};

}  // namespace

bool smtp::sendEmail(const std::string& server, const std::string& mTo, const std::string& mFrom,
                     const std::string& mSubject, const std::string& mMsg, std::int16_t& port) {
  if (mail_.inExchange) {
    return false;
  }
  if (port == 0) {
    port = kMailPort;
  }
  // A line end within a setting would begin a command or a header of its own, and the replies would no longer belong to
  // the commands they are taken for.
  const std::string to = oneLine(mTo);
  const std::array<std::string, 5> commands = {"MAIL FROM:<" + oneLine(mFrom) + ">\r\n", "RCPT TO:<" + to + ">\r\n",
                                               "DATA\r\n", messageText(to, oneLine(mSubject), mMsg), "QUIT\r\n"};

  const Exchange exchange(mail_);
  if (!connectTo(server, port) || !awaitReply()) {
    return false;
  }
  bool accepted = true;
  for (const std::string& command : commands) {
    mail_.wWaiting = true;
    mail_.winsock1().send(command);
    if (!awaitReply()) {
      return false;
    }
    accepted = accepted && mail_.winsockResponseCode < kFirstRefusal;
  }
  return accepted;
}

/// False when there is no connection: it failed, or the program is being closed.
bool smtp::connectTo(const std::string& server, std::int16_t port) {
  TcpSocket& socket = mail_.winsock1();
  socket.connectTo(server, static_cast<std::uint16_t>(port));
  // The server speaks first, and may have spoken before the connection is seen here.
  mail_.wWaiting = true;
  const auto settled = [&socket] {
    return socket.state() == SocketState::connected || socket.state() == SocketState::error;
  };
  while (!settled() && !pump_.closing() && !mail_.isOver()) {
    pump_.waitForEvent();
  }
  return socket.state() == SocketState::connected;
}

/// False when no reply came because the program is being closed or the exchange is over, or one came that cannot be
/// understood at all.
bool smtp::awaitReply() {
  while (mail_.wWaiting && !pump_.closing() && !mail_.isOver()) {
    pump_.waitForEvent();
  }
  return !mail_.wWaiting && !mail_.winsockCodeOverflow;
}

}  // namespace tarnwick
