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

TEST_F(ForeignLists, UrlwatchWritesItsJobs) {
  read(foreignFile("urlwatch.yaml"));
  EXPECT_EQ(kind, "urlwatch");
  EXPECT_THAT(addresses(), ElementsAre("https://a.example/", "https://b.example/login", "https://c.example/",
                                       "https://d.example/", "https://a.example/#2"));
  EXPECT_THAT(notes(),
              Contains("line 1, https://a.example/: not taken over: filter \"html2text, css:#main\", title \"A "
                       "page\""));
  EXPECT_THAT(notes(), Contains("line 21, ls -l: left out: it is a command, and only pages are watched"));
  const ListedSite& login = list.sites[1];
  EXPECT_EQ(login.site.method, "post");
  EXPECT_EQ(login.postVars, (std::vector<PostVar>{{"pw", "x y"}, {"user", "me"}}));
  EXPECT_EQ(login.site.sUserName, "me") << "of the header Authorization";
  EXPECT_EQ(login.site.sPassWord, "secret");
  EXPECT_THAT(notes(), Contains("line 8, https://b.example/login: not taken over: header \"User-Agent\""));
  EXPECT_FALSE(list.sites[3].site.active) << "a PUT cannot be sent as another request";
  EXPECT_THAT(notes(), Contains(HasSubstr("time-out of 5 seconds (there is one for all sites: the setting timeout)")));
  EXPECT_EQ(list.sites[4].postVars, (std::vector<PostVar>{{"a", "1"}, {"b", "x y"}}));
}

TEST_F(ForeignLists, UrlwatchTakesListsAnchorsAndSwitches) {
  read("- &base\n  url: http://a.example/\n  method: post\n- <<: *base\n  url: http://b.example/\n  enabled: false\n");
  EXPECT_THAT(addresses(), ElementsAre("http://a.example/", "http://b.example/"));
  EXPECT_EQ(list.sites[1].site.method, "post");
  EXPECT_FALSE(list.sites[1].site.active);
  EXPECT_THAT(notes(), IsEmpty());
}

void expectWatches(const ForeignList& list, const std::vector<std::string>& notes) {
  const ListedSite& shop = list.sites.at(0);
  EXPECT_EQ(shop.site.url, "https://shop.example.org/kettle");
  EXPECT_EQ(shop.site.tInterval, "150");
  EXPECT_TRUE(shop.site.active);
  EXPECT_THAT(notes, Contains(HasSubstr("title \"Kettle – Preis\", tags \"Shopping\", include_filters \".price, ")));
  const ListedSite& news = list.sites.at(1);
  EXPECT_EQ(news.site.tInterval, "180") << "the general one";
  EXPECT_FALSE(news.site.active) << "paused";
  EXPECT_THAT(notes, Contains(HasSubstr("fetch_backend \"html_webdriver\", filter_text_removed switched off, "
                                        "ignore_text \"/\\d+ views/\", notification_urls, trigger_text \"sale\"")));
  const ListedSite& login = list.sites.at(2);
  EXPECT_EQ(login.site.method, "post");
  EXPECT_EQ(login.postVars, (std::vector<PostVar>{{"user", "me"}, {"pass", "a b!"}}));
  EXPECT_EQ(login.site.sPassWord, "secret");
  EXPECT_EQ(login.site.tInterval, "1");
  EXPECT_THAT(notes, Contains(HasSubstr("interval of 45 seconds (taken as 1 min), header \"Cookie\", header "
                                        "\"User-Agent\"")));
  for (const std::string& note : notes) {
    EXPECT_THAT(note, ::testing::Not(HasSubstr("secret"))) << "which may be read over a shoulder";
  }
}

TEST_F(ForeignLists, ChangedetectionKeepsItsWatches) {
  read(foreignFile("url-watches.json"));
  EXPECT_EQ(kind, "changedetection");
  ASSERT_EQ(list.sites.size(), 5U);
  expectWatches(list, notes());
  EXPECT_EQ(list.sites[0].line, 4U);
  EXPECT_FALSE(list.sites[3].site.active) << "its body is no form";
  EXPECT_FALSE(list.sites[4].site.active) << "a DELETE";
  EXPECT_THAT(notes(), Contains("not taken over: the general setting global_ignore_text"));
  EXPECT_THAT(notes(), Contains(HasSubstr("file:///etc/hostname: left out: ")));
}

TEST_F(ForeignLists, ChangedetectionKeptThemOtherwiseOnce) {
  read(foreignFile("url-watches-old.json"));
  EXPECT_EQ(kind, "changedetection");
  EXPECT_THAT(addresses(), ElementsAre("https://old.example.org/", "https://weather.example.org/"));
  EXPECT_EQ(list.sites[0].site.tInterval, "180");
  EXPECT_EQ(list.sites[1].site.tInterval, "15");
  EXPECT_FALSE(list.sites[1].site.active);
  EXPECT_THAT(notes(), Contains(HasSubstr("tags \"Tech news\", css_filter \"#content\"")));
}

TEST_F(ForeignLists, ChangedetectionPacksBackups) {
  read(foreignFile("backup.zip"));
  EXPECT_EQ(kind, "changedetection");
  EXPECT_EQ(list.sites.size(), 5U);
  expectWatches(list, notes());
  list = {};
  read(foreignFile("backup-apart.zip"));
  EXPECT_EQ(list.sites.size(), 3U);
  expectWatches(list, notes());
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
