// SPDX-License-Identifier: MIT
// The header lines of HTTP answers: where one ends, and the lengths that it announces.
#include "platform/web/response_header.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarnwick::testing {
namespace {

// The first fault that is found in these lines, each given its line end.
HeaderFault faultOf(const std::vector<std::string>& lines, ResponseHeader& head) {
  for (const std::string& line : lines) {
    if (const HeaderFault fault = head.add(line + "\r\n"); fault != HeaderFault::none) {
      return fault;
    }
  }
  return HeaderFault::none;
}

HeaderFault faultOf(const std::vector<std::string>& lines) {
  ResponseHeader head;
  return faultOf(lines, head);
}

HeaderFault faultOfLength(const std::string& value) {
  return faultOf({"HTTP/1.1 200 OK", "Content-Length: " + value, ""});
}

TEST(ResponseHeaderTest, IsOpenFromItsFirstLineToItsEmptyOne) {
  ResponseHeader head;
  EXPECT_FALSE(head.open());
  head.add("HTTP/1.1 200 OK\r\n");
  EXPECT_TRUE(head.open());
  head.add("X-A: b\r\n");
  EXPECT_TRUE(head.open());
  head.add("\r\n");
  EXPECT_FALSE(head.open());
}

TEST(ResponseHeaderTest, EndsAtABareLineFeedToo) {
  ResponseHeader head;
  head.add("HTTP/1.1 200 OK\n");
  head.add("\n");
  EXPECT_FALSE(head.open());
}

TEST(ResponseHeaderTest, LinesOutsideOfAHeaderDoNotCount) {
  ResponseHeader head;
  EXPECT_EQ(faultOf({"220 ready", "Content-Length: none", ""}, head), HeaderFault::none);
  EXPECT_FALSE(head.open());
}

TEST(ResponseHeaderTest, OneLengthIsClear) {
  EXPECT_EQ(faultOfLength("5"), HeaderFault::none);
  EXPECT_EQ(faultOfLength("  5\t"), HeaderFault::none);
  EXPECT_EQ(faultOfLength("0"), HeaderFault::none);
}

TEST(ResponseHeaderTest, TheSameLengthSeveralTimesIsClear) {
  EXPECT_EQ(faultOfLength("5, 5,5"), HeaderFault::none);
  EXPECT_EQ(faultOf({"HTTP/1.1 200 OK", "Content-Length: 5", "content-LENGTH: 05", ""}), HeaderFault::none);
}

TEST(ResponseHeaderTest, DifferentLengthsAreNot) {
  EXPECT_EQ(faultOfLength("5, 6"), HeaderFault::unclearLength);
  EXPECT_EQ(faultOf({"HTTP/1.1 200 OK", "Content-Length: 5", "Content-Length: 6", ""}), HeaderFault::unclearLength);
}

TEST(ResponseHeaderTest, WhatIsNoNumberIsNoLength) {
  for (const std::string value : {"", "five", "5x", "-5", "+5", "0x5", "5 6", "5,", ",5", "5.0"}) {
    EXPECT_EQ(faultOfLength(value), HeaderFault::unclearLength) << value;
  }
}

TEST(ResponseHeaderTest, ALengthBeyondAllNumbersIsToldApart) {
  EXPECT_EQ(faultOfLength("99999999999999999999999999"), HeaderFault::endlessPage);
  EXPECT_EQ(faultOfLength("9223372036854775808"), HeaderFault::endlessPage);
  EXPECT_EQ(faultOfLength("9223372036854775807"), HeaderFault::none);
}

TEST(ResponseHeaderTest, ChunksOverruleEveryLength) {
  EXPECT_EQ(faultOf({"HTTP/1.1 200 OK", "Content-Length: 5, 6", "Transfer-Encoding: chunked", ""}), HeaderFault::none);
}

TEST(ResponseHeaderTest, TheNextAnswerBeginsAnew) {
  ResponseHeader head;
  EXPECT_EQ(faultOf({"HTTP/1.1 302 Found", "Content-Length: 5", ""}, head), HeaderFault::none);
  EXPECT_EQ(faultOf({"HTTP/1.1 200 OK", "Content-Length: 6", ""}, head), HeaderFault::none);
}

TEST(ResponseHeaderTest, CodingsAreThoseOfTheContentThenThoseOfTheWay) {
  using Names = std::vector<std::string>;
  ResponseHeader head;
  faultOf({"HTTP/1.1 200 OK", "Transfer-Encoding: x-gzip,  chunked", "content-encoding: gzip, ,br ,",
           "Content-Encoding:zstd", "Content-Encoding : other", ""},
          head);
  EXPECT_EQ(head.codings(), (Names{"gzip", "br", "zstd", "x-gzip"}));
  faultOf({"HTTP/1.1 200 OK", "Content-Encoding: chunked", "", "Content-Encoding: trailer"}, head);
  EXPECT_EQ(head.codings(), Names{"chunked"});
  faultOf({"HTTP/1.1 200 OK", "Transfer-Encoding: chunked", ""}, head);
  EXPECT_EQ(head.codings(), Names{});
}

TEST(ResponseHeaderTest, AnotherProtocolIsAFault) {
  EXPECT_EQ(faultOf({"HTTP/1.1 101 Switching Protocols"}), HeaderFault::otherProtocol);
  EXPECT_EQ(faultOf({"HTTP/1.1 100 Continue", ""}), HeaderFault::none);
}

TEST(ResponseHeaderTest, StatusIsReadFromTheFirstLine) {
  EXPECT_EQ(statusOf("HTTP/1.1 303 See Other\r\n"), 303);
  EXPECT_EQ(statusOf("HTTP/1.0  200\r\n"), 200);
  EXPECT_EQ(statusOf("HTTP/1.1 fine"), 0);
  EXPECT_EQ(statusOf("HTTP/1.1"), 0);
  EXPECT_EQ(statusOf("HTTP/1.1 -303"), 0);
}

}  // namespace
}  // namespace tarnwick::testing
