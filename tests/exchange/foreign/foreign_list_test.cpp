// SPDX-License-Identifier: MIT
#include "foreign_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST_F(ForeignLists, AddressesStandOneALine) {
  read(
      "\xef\xbb\xbf# mine\r\n\r\nhttps://a.example/\r\n  www.b.example\t\r\nftp://c.example/x # "
      "why\rhttp://d.example/");
  EXPECT_EQ(kind, "addresses");
  EXPECT_THAT(addresses(),
              ElementsAre("https://a.example/", "www.b.example", "ftp://c.example/x", "http://d.example/"));
  EXPECT_THAT(notes(), IsEmpty());
  EXPECT_EQ(list.sites[1].line, 4U);
  EXPECT_EQ(list.sites[3].line, 6U) << "a carriage return alone ends a line, too";
}

TEST_F(ForeignLists, WhatIsNoAddressIsNamedWithItsLine) {
  read("https://a.example/ shop, price\n|ls -l\nhttp://b.example:port/\nmailto:me@example.org\n");
  EXPECT_THAT(addresses(), ElementsAre("https://a.example/"));
  EXPECT_THAT(notes(), ElementsAre("line 1, https://a.example/: not taken over: the text behind it, \"shop, price\"",
                                   "line 2, |ls -l: left out: it is a command, and only pages are watched",
                                   HasSubstr("line 3, http://b.example:port/: left out: "),
                                   HasSubstr("line 4, mailto:me@example.org: left out: ")));
}

TEST_F(ForeignLists, FirefoxExportsItsBookmarks) {
  read(foreignFile("firefox.html"));
  EXPECT_EQ(kind, "bookmarks");
  EXPECT_THAT(addresses(), ElementsAre("https://www.mozilla.org/firefox/?a=1&b=2", "https://news.example.org/",
                                       "https://inner.example.org/ä", "https://news.example.org"));
  EXPECT_THAT(notes(), Contains("line 12, https://www.mozilla.org/firefox/?a=1&b=2: not taken over: title \"Get <Help> "
                                "& Mühe\", tags \"x,y\", keyword \"ff\", description \"A description of it\""));
  EXPECT_THAT(notes(),
              Contains("line 19, https://inner.example.org/ä: not taken over: title \"Grüße\", folder \"News & "
                       "more / Inner\""));
  EXPECT_THAT(notes(), Contains(HasSubstr("line 20, javascript:alert(1): left out: ")));
  EXPECT_THAT(notes(), Contains(HasSubstr("line 22, place:sort=8&maxResults=10: left out: ")));
  EXPECT_THAT(notes(), Contains(HasSubstr("file:///home/me/x.html\" cannot be fetched")));
  EXPECT_THAT(notes(), Contains("not taken over: the dates and icons of the bookmarks"));
}

TEST_F(ForeignLists, ChromiumAndSafariExportTheirs) {
  read(foreignFile("chromium.html"));
  EXPECT_THAT(addresses(), ElementsAre("https://www.example.org/?q=a&b=c&d=%C3%BC", "ftp://ftp.example.org/pub/"));
  EXPECT_THAT(notes(), Contains(HasSubstr("title \"Beispiel \"eins\"\", folder \"Lesezeichenleiste\"")));
  EXPECT_THAT(notes(), Contains(HasSubstr("chrome://settings/: left out: ")));
  list = {};
  read(foreignFile("safari.html"));
  EXPECT_THAT(addresses(), ElementsAre("https://www.example.com/", "https://read.example.com/a"));
  EXPECT_THAT(notes(), Contains(HasSubstr("title \"Read me\", folder \"Reading List\"")));
}

TEST_F(ForeignLists, OutlinesLieInOutlines) {
  read(foreignFile("feeds.opml"));
  EXPECT_EQ(kind, "opml");
  EXPECT_THAT(addresses(),
              ElementsAre("https://a.example/feed.xml?x=1&y=2", "http://link.example/", "https://h.example/"));
  EXPECT_THAT(notes(),
              ElementsAre("line 6, https://a.example/feed.xml?x=1&y=2: not taken over: title \"A & B\", htmlUrl "
                          "\"https://a.example/\", folder \"Technik\", description \"Two letters\"",
                          "line 8, http://link.example/: not taken over: title \"A page\", folder \"Technik / "
                          "Grüße\"",
                          "line 12, https://h.example/: not taken over: title \"Only a page\""));
}

TEST_F(ForeignLists, ListsOfTheProgramItselfAreStillThose) {
  EXPECT_EQ(wordOfFile("a.csv", "https://a.example/\n"), "csv");
  EXPECT_EQ(wordOfFile("a.json", "nonsense"), "json");
  EXPECT_EQ(wordOfFile("-", "{\"tarnwick\": 1, \"sites\": []}"), "json");
  EXPECT_EQ(wordOfFile("a.txt", "idSite,url,active\n"), "csv");
  EXPECT_EQ(wordOfFile("a.txt", "some words about nothing\n"), std::nullopt);
  EXPECT_EQ(wordOfFile("a.html", "<html><body><a href='http://a/'>x</a></body></html>"), std::nullopt);
  EXPECT_EQ(wordOfFile("a", std::string("\x7f"
                                        "ELF\0\1",
                                        6)),
            std::nullopt);
  EXPECT_EQ(wordOfFile("a", ""), std::nullopt);
}

}  // namespace
}  // namespace tarnwick::testing
