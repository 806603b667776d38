// SPDX-License-Identifier: MIT
#include "platform/address.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

std::string urlOf(const std::string& text) {
  const auto address = parseAddress(text);
  return address ? address->url : "invalid";
}

TEST(Address, IsTakenApart) {
  const auto address = parseAddress("HTTPS://Example.test/a?b#c");
  ASSERT_TRUE(address);
  EXPECT_EQ(address->scheme, "https");
  EXPECT_EQ(address->port, "443");
  EXPECT_EQ(address->host, "Example.test");
  EXPECT_EQ(parseAddress("http://a.test:8080/")->port, "8080");
}

TEST(Address, WithoutSchemeIsHttp) {
  EXPECT_EQ(urlOf("example.test"), "http://example.test/");
  EXPECT_EQ(urlOf("example.test:8080/a"), "http://example.test:8080/a");
  EXPECT_EQ(urlOf("//example.test/a"), "http://example.test/a");
  EXPECT_EQ(urlOf("ftp.example.test/a"), "http://ftp.example.test/a");
  EXPECT_EQ(urlOf("example.test/?next=https://other.test/"), "http://example.test/?next=https://other.test/");
}

TEST(Address, BlanksAroundItDoNotCountAndInnerOnesAreEncoded) {
  EXPECT_EQ(urlOf("\t http://a.test/b c \n"), "http://a.test/b%20c");
  EXPECT_EQ(urlOf("http://a.test/%20"), "http://a.test/%20");
  EXPECT_EQ(urlOf("http://a.test/\xc3\xa4"), "http://a.test/%c3%a4");
}

TEST(Address, IsNoPathAndNoWordWithASlash) {
  for (const std::string text : {"/tmp/x.desktop", "/", "C:/Windows/x.exe", "c:/", R"(C:\Windows\x.exe)",
                                 R"(\\server\share\x.exe)", "file:/etc/passwd", "ms-msdt:/id x", "http:/a.test/",
                                 "javascript:alert(1)", "search-ms:query=x", "data:text/html,x"}) {
    EXPECT_FALSE(parseAddress(text)) << text;
  }
  EXPECT_EQ(urlOf("a.test:/b"), "http://a.test/b");
  EXPECT_EQ(urlOf("localhost:80/b:/c"), "http://localhost:80/b:/c");
}

TEST(Address, HasNoHostThatBeginsWithADash) {
  for (const std::string text : {"--post-file=/etc/passwd http://a.test/", "http://-a.test/", "-", "//-a",
                                 "https://u:p@-a/", "http://%2da.test/"}) {
    EXPECT_FALSE(parseAddress(text)) << text;
  }
  EXPECT_EQ(urlOf("http://a-b.test/-c"), "http://a-b.test/-c");
}

TEST(Address, OfAnotherSchemeIsValidButNotFetched) {
  const auto address = parseAddress("gopher://a.test/");
  ASSERT_TRUE(address);
  EXPECT_FALSE(isFetchedScheme(address->scheme));
  for (const std::string scheme : {"http", "https", "ftp", "ftps"}) {
    EXPECT_TRUE(isFetchedScheme(scheme));
  }
}

TEST(Address, HasTheHostThatIsAskedThoughItIsEncoded) {
  const auto address = parseAddress("http://%32222/");
  ASSERT_TRUE(address);
  EXPECT_EQ(address->host, "0.0.8.174");
  EXPECT_EQ(address->url, "http://0.0.8.174/");
}

TEST(Address, WithAControlCharacterIsInvalid) {
  using namespace std::string_literals;
  for (const std::string& text : {"http://a.test/\r\nb"s, "http://a.test/\0b"s, "http://a\x7f.test/"s,
                                  "http://a%7F.test/"s, "http://%0d%0aa.test/"s, ""s, "  "s}) {
    EXPECT_FALSE(parseAddress(text));
  }
}

TEST(Address, OfAFileTransferMayNotHoldAnEncodedControlCharacter) {
  for (const std::string text : {"ftp://a.test/a%0d%0aDELE%20x", "ftps://a.test/a%00b", "ftp://u%0A:p@a.test/",
                                 "ftp://a.test/%1F", "FTP://a.test/%7f"}) {
    EXPECT_FALSE(parseAddress(text)) << text;
  }
  // A web server is sent them as they are.
  EXPECT_EQ(urlOf("http://a.test/a%0d%0ab%00"), "http://a.test/a%0d%0ab%00");
  EXPECT_EQ(urlOf("ftp://a.test/%20%2F%e4%"), "ftp://a.test/%20%2F%e4%");
}

}  // namespace
}  // namespace tarnwick
