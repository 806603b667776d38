// SPDX-License-Identifier: MIT
#include "mail/mail_socket.h"

#include <gtest/gtest.h>

#include <ostream>
#include <utility>

namespace tarnwick {
namespace {

using namespace std::string_literals;
/// A socket whose data is put in by the test.
class FedSocket final : public TcpSocket {
 public:
  void connectTo(const std::string&, std::uint16_t) override {}
  SocketState state() const override { return SocketState::connected; }
  void send(const std::string&) override {}
  std::string getData() override { return std::exchange(pending_, {}); }
  void close() override {}
  void onDataArrival(std::function<void()> handler) override { handler_ = std::move(handler); }
  std::string localHostName() const override { return "host"; }
  std::string localIP() const override { return "127.0.0.1"; }

  void arrive(const std::string& data) {
    pending_ = data;
    handler_();
  }

 private:
  std::string pending_;
  std::function<void()> handler_;
};

class FedSockets final : public TcpSocketMaker {
 public:
  std::unique_ptr<TcpSocket> makeTcpSocket() override {
    auto socket = std::make_unique<FedSocket>();
    made = socket.get();
    return socket;
  }
  FedSocket* made = nullptr;
};

struct Reply {
  std::string bytes;
  std::int16_t code;
};

void PrintTo(const Reply& reply, std::ostream* out) { *out << ::testing::PrintToString(reply.bytes); }

class ReplyCode : public ::testing::TestWithParam<Reply> {};

TEST_P(ReplyCode, IsTheNumberBeforeTheFirstBlank) {
  FedSockets sockets;
  MailSocket mail(sockets);
  mail.wWaiting = true;
  mail.winsockResponseCode = 123;

  sockets.made->arrive(GetParam().bytes);

  EXPECT_EQ(mail.winsockResponseCode, GetParam().code);
  EXPECT_FALSE(mail.winsockCodeOverflow);
  EXPECT_FALSE(mail.wWaiting);
  EXPECT_EQ(mail.winsockData, GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(Understood, ReplyCode,
                         ::testing::Values(Reply{"250 ok\r\n", 250}, Reply{"250 ", 250}, Reply{"250", 250},
                                           Reply{"550\r\n", 550}, Reply{"\r\n550\r\n", 550}, Reply{"\t354\t", 354},
                                           Reply{"+250 ok", 250}, Reply{"-5 ok", -5}, Reply{"0250 ok", 250},
                                           Reply{"250.4 ok", 250}, Reply{"2.5e2 ok", 250}, Reply{"250. ok", 250},
                                           Reply{"32767 ok", 32767}, Reply{"-32768 ok", -32768}));

INSTANTIATE_TEST_SUITE_P(AHalfGoesToTheEvenNeighbour, ReplyCode,
                         ::testing::Values(Reply{"250.5 ok", 250}, Reply{"251.5 ok", 252}, Reply{".5 ok", 0}));

INSTANTIATE_TEST_SUITE_P(Unclear, ReplyCode,
                         ::testing::Values(Reply{"250-more follows\r\n", 0}, Reply{"250-a\r\n250 b\r\n", 0},
                                           Reply{" 250 ok", 0}, Reply{"", 0}, Reply{"\r\n", 0}, Reply{"ok 250", 0},
                                           Reply{"250x ok", 0}, Reply{"550\tno", 0}, Reply{"550\r\n250 ok\r\n", 0},
                                           Reply{"0x226 no", 0}, Reply{"inf", 0}, Reply{"nan", 0}, Reply{"+-5 no", 0},
                                           Reply{"1e no", 0}, Reply{"e5 no", 0}, Reply{". no", 0}, Reply{"5,5 no", 0},
                                           Reply{"550\0 no"s, 0}, Reply{"1e-999 no", 0}));

// Neither the sign of the exponent nor the number of digits alone tells what a double cannot hold.
const std::string kManyZeros(400, '0');

INSTANTIATE_TEST_SUITE_P(TooSmallForADouble, ReplyCode,
                         ::testing::Values(Reply{"0." + kManyZeros + "1 no", 0}, Reply{"." + kManyZeros + "1e20 no", 0},
                                           Reply{"1e-99999999999999999999 no", 0}));

class TooLargeACode : public ::testing::TestWithParam<std::string> {};

TEST_P(TooLargeACode, IsReportedAndNeverWraps) {
  FedSockets sockets;
  MailSocket mail(sockets);
  mail.wWaiting = true;

  sockets.made->arrive(GetParam());

  EXPECT_TRUE(mail.winsockCodeOverflow);
  EXPECT_EQ(mail.winsockResponseCode, 0);
  EXPECT_FALSE(mail.wWaiting);

  sockets.made->arrive("250 ok\r\n");
  EXPECT_FALSE(mail.winsockCodeOverflow);
  EXPECT_EQ(mail.winsockResponseCode, 250);
}

INSTANTIATE_TEST_SUITE_P(Any, TooLargeACode,
                         ::testing::Values("32768 no", "-32769 no", "65786 would wrap to 250",
                                           "99999999999999999999 no", "1e9 no", "1e999 no",
                                           "1" + kManyZeros + "e-20 no", "-1" + kManyZeros + " no",
                                           "0.1e99999999999999999999 no", "0.1e+999 no"));

}  // namespace
}  // namespace tarnwick
