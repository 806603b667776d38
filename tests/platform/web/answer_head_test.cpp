// The header lines of HTTP answers: where one ends, and the lengths that it announces.
#include "platform/web/answer_head.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarnwick::testing {
namespace {

// The first fault that is found in these lines, each given its line end.
HeadFault faultOf(const std::vector<std::string>& lines, AnswerHead& head) {
  for (const std::string& line : lines) {
    if (const HeadFault fault = head.add(line + "\r\n"); fault != HeadFault::none) {
      return fault;
    }
  }
  return HeadFault::none;
}

HeadFault faultOf(const std::vector<std::string>& lines) {
  AnswerHead head;
  return faultOf(lines, head);
}

HeadFault faultOfLength(const std::string& value) {
  return faultOf({"HTTP/1.1 200 OK", "Content-Length: " + value, ""});
}

TEST(AnswerHeadTest, IsOpenFromItsFirstLineToItsEmptyOne) {
  AnswerHead head;
  EXPECT_FALSE(head.open());
  head.add("HTTP/1.1 200 OK\r\n");
  EXPECT_TRUE(head.open());
  head.add("X-A: b\r\n");
  EXPECT_TRUE(head.open());
  head.add("\r\n");
  EXPECT_FALSE(head.open());
}

TEST(AnswerHeadTest, EndsAtABareLineFeedToo) {
  AnswerHead head;
  head.add("HTTP/1.1 200 OK\n");
  head.add("\n");
  EXPECT_FALSE(head.open());
}

TEST(AnswerHeadTest, LinesOutsideOfAHeaderDoNotCount) {
  AnswerHead head;
  EXPECT_EQ(faultOf({"220 ready", "Content-Length: none", ""}, head), HeadFault::none);
  EXPECT_FALSE(head.open());
}

TEST(AnswerHeadTest, OneLengthIsClear) {
  EXPECT_EQ(faultOfLength("5"), HeadFault::none);
  EXPECT_EQ(faultOfLength("  5\t"), HeadFault::none);
  EXPECT_EQ(faultOfLength("0"), HeadFault::none);
}

TEST(AnswerHeadTest, TheSameLengthSeveralTimesIsClear) {
  EXPECT_EQ(faultOfLength("5, 5,5"), HeadFault::none);
  EXPECT_EQ(faultOf({"HTTP/1.1 200 OK", "Content-Length: 5", "content-LENGTH: 05", ""}), HeadFault::none);
}

TEST(AnswerHeadTest, DifferentLengthsAreNot) {
  EXPECT_EQ(faultOfLength("5, 6"), HeadFault::unclearLength);
  EXPECT_EQ(faultOf({"HTTP/1.1 200 OK", "Content-Length: 5", "Content-Length: 6", ""}), HeadFault::unclearLength);
}

TEST(AnswerHeadTest, WhatIsNoNumberIsNoLength) {
  for (const std::string value : {"", "five", "5x", "-5", "+5", "0x5", "5 6", "5,", ",5", "5.0"}) {
    EXPECT_EQ(faultOfLength(value), HeadFault::unclearLength) << value;
  }
}

TEST(AnswerHeadTest, ALengthBeyondAllNumbersIsToldApart) {
  EXPECT_EQ(faultOfLength("99999999999999999999999999"), HeadFault::endlessPage);
  EXPECT_EQ(faultOfLength("9223372036854775808"), HeadFault::endlessPage);
  EXPECT_EQ(faultOfLength("9223372036854775807"), HeadFault::none);
}

TEST(AnswerHeadTest, ChunksOverruleEveryLength) {
  EXPECT_EQ(faultOf({"HTTP/1.1 200 OK", "Content-Length: 5, 6", "Transfer-Encoding: chunked", ""}), HeadFault::none);
}

TEST(AnswerHeadTest, TheNextAnswerBeginsAnew) {
  AnswerHead head;
  EXPECT_EQ(faultOf({"HTTP/1.1 302 Found", "Content-Length: 5", ""}, head), HeadFault::none);
  EXPECT_EQ(faultOf({"HTTP/1.1 200 OK", "Content-Length: 6", ""}, head), HeadFault::none);
}

TEST(AnswerHeadTest, AnotherProtocolIsAFault) {
  EXPECT_EQ(faultOf({"HTTP/1.1 101 Switching Protocols"}), HeadFault::otherProtocol);
  EXPECT_EQ(faultOf({"HTTP/1.1 100 Continue", ""}), HeadFault::none);
}

TEST(AnswerHeadTest, StatusIsReadFromTheFirstLine) {
  EXPECT_EQ(statusOf("HTTP/1.1 303 See Other\r\n"), 303);
  EXPECT_EQ(statusOf("HTTP/1.0  200\r\n"), 200);
  EXPECT_EQ(statusOf("HTTP/1.1 fine"), 0);
  EXPECT_EQ(statusOf("HTTP/1.1"), 0);
  EXPECT_EQ(statusOf("HTTP/1.1 -303"), 0);
}

}  // namespace
}  // namespace tarnwick::testing
