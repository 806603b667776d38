// SPDX-License-Identifier: MIT
#include "engine/page_fetch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/program_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

TEST(UrlEncodeTest, LettersAndDigitsStandForThemselves) {
  EXPECT_EQ(PageFetch::urlEncode("azAZ09"), "azAZ09");
  EXPECT_EQ(PageFetch::urlEncode(""), "");
}

TEST(UrlEncodeTest, EverythingElseIsItsTwoDigitCode) {
  EXPECT_EQ(PageFetch::urlEncode(" "), "%20");
  EXPECT_EQ(PageFetch::urlEncode("-_.~"), "%2D%5F%2E%7E");
  EXPECT_EQ(PageFetch::urlEncode("\r\n\t"), "%0D%0A%09");
  EXPECT_EQ(PageFetch::urlEncode(std::string("\0", 1)), "%00");
  EXPECT_EQ(PageFetch::urlEncode("@[`{/:"), "%40%5B%60%7B%2F%3A");
}

TEST(UrlEncodeTest, CharactersHaveTheirWindows1252Code) {
  EXPECT_EQ(PageFetch::urlEncode("é"), "%E9");
  EXPECT_EQ(PageFetch::urlEncode("€"), "%80");
  EXPECT_EQ(PageFetch::urlEncode("Ÿ"), "%9F");
}

TEST(UrlEncodeTest, CharactersOutsideTheSetAreOneQuestionMarkEach) {
  EXPECT_EQ(PageFetch::urlEncode("日本"), "%3F%3F");
  EXPECT_EQ(PageFetch::urlEncode("😀a"), "%3Fa");
}

TEST(UrlEncodeTest, BytesThatAreNoUtf8AreCodesAlready) {
  EXPECT_EQ(PageFetch::urlEncode("\xE9"), "%E9");
  EXPECT_EQ(PageFetch::urlEncode("\xC0\x80"), "%C0%80");
  EXPECT_EQ(PageFetch::urlEncode("\xED\xA0\x80"), "%ED%A0%80");
  EXPECT_EQ(PageFetch::urlEncode("a\xC3"), "a%C3");
}

class PageFetchTest : public ::testing::Test, public ProgramFixture {
 protected:
  m& data() { return program.data(); }
};

TEST_F(PageFetchTest, JoinsTheEncodedVariables) {
  const std::int16_t id = addSite("http://127.0.0.1/");
  data().addPostVars(id, "a b", "x&y");
  data().addPostVars(id, "n", "");
  EXPECT_EQ(data().getPostVarsAsString(id), "a%20b=x%26y&n=");
}

TEST_F(PageFetchTest, ASiteWithoutVariablesHasAnEmptyBody) {
  const std::int16_t id = addSite("http://127.0.0.1/");
  data().addPostVars(static_cast<std::int16_t>(id + 1), "other", "site");
  EXPECT_EQ(data().getPostVarsAsString(id), "");
}

TEST_F(PageFetchTest, OnlyPostCarriesABodyAndAHeader) {
  const std::int16_t id = addSite("http://127.0.0.1/");
  data().addPostVars(id, "a", "b");
  const Request post = data().requestFor(id, "pOsT");
  EXPECT_EQ(post.method, "POST");
  EXPECT_EQ(post.headers, "Content-Type: application/x-www-form-urlencoded");
  EXPECT_EQ(post.body, "a=b");
  for (const char* method : {"get", "put", "NULL", ""}) {
    const Request other = data().requestFor(id, method);
    EXPECT_EQ(other.headers, "");
    EXPECT_EQ(other.body, "");
  }
  EXPECT_EQ(data().requestFor(id, "put").method, "PUT");
}

TEST_F(PageFetchTest, FetchesThePageOfASiteAndStoresNothing) {
  const std::int16_t id = addPage("/a", std::string("hello\0\xFF\r\n", 9));
  EXPECT_EQ(data().getHtmlFromSite(id), std::string("hello\0\xFF\r\n", 9));
  EXPECT_EQ(column(id, "content_compare"), "NULL");
  EXPECT_EQ(column(id, "lastChecked"), "NULL");
}

TEST_F(PageFetchTest, FetchesALongPageWhole) {
  const std::string page(3'000'000, 'x');
  const std::int16_t id = addPage("/a", page);
  EXPECT_EQ(data().getHtmlFromSite(id), page);
}

TEST_F(PageFetchTest, PostsAndLogsIn) {
  server.requireBasic("/form", "me", "secret", {.body = "thanks"});
  const std::int16_t id = addSite(server.url("/form"));
  data().updateSites(id, server.url("/form"), "post", true, 10, false, "", "me", "secret");
  data().addPostVars(id, "a", "b");
  EXPECT_EQ(data().getHtmlFromSite(id), "thanks");
  EXPECT_EQ(server.requests().back().method, "POST");
  EXPECT_EQ(server.requests().back().body, "a=b");
}

TEST_F(PageFetchTest, AFailureIsItsCodeAndItsCause) {
  const std::int16_t id = addSite(server.url("/a"));
  server.respond("/a", {.drop = true});
  const std::string text = data().getHtmlFromSite(id);
  const std::size_t digits = text.find_first_not_of("0123456789");
  ASSERT_TRUE(digits != 0 && digits != std::string::npos) << text;
  EXPECT_THAT(text.substr(digits), StartsWith(" : "));
  EXPECT_GT(text.size(), digits + 3);
}

TEST_F(PageFetchTest, ASecondCallDuringTheFirstReturnsEmptyAtOnce) {
  std::string inner = "not called";
  std::int16_t id = 0;
  server.handle("/a", [&](const HttpRequest&) {
    inner = data().getHtmlFromSite(id);
    return HttpResponse{.body = "hello"};
  });
  id = addSite(server.url("/a"));
  EXPECT_EQ(data().getHtmlFromSite(id), "hello");
  EXPECT_EQ(inner, "");
  EXPECT_THAT(server.requests(), SizeIs(1));
}

TEST_F(PageFetchTest, APageWithoutContentIsTheEmptyText) {
  const std::int16_t id = addPage("/a", "");
  EXPECT_EQ(data().getHtmlFromSite(id), "");
}

TEST_F(PageFetchTest, ASiteThatDoesNotExistIsAFailureOfItsAddress) {
  EXPECT_THAT(data().getHtmlFromSite(99), HasSubstr(" : "));
}

TEST_F(PageFetchTest, TheTimeOutOfTheSettingsEndsTheFetch) {
  data().setControl("timeout", std::string("1"));
  server.respond("/a", {.hold = true});
  const std::int16_t id = addSite(server.url("/a"));
  EXPECT_THAT(data().getHtmlFromSite(id), ::testing::StartsWith("28 : "));
}

TEST_F(PageFetchTest, ClosingTheProgramEndsTheFetch) {
  server.handle("/a", [&](const HttpRequest&) {
    program.close();
    return HttpResponse{.hold = true};
  });
  const std::int16_t id = addSite(server.url("/a"));
  EXPECT_EQ(data().getHtmlFromSite(id), "");
  EXPECT_FALSE(data().single().sInet().stillExecuting());
}

}  // namespace
}  // namespace tarnwick::testing
