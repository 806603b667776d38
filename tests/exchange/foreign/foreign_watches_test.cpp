// SPDX-License-Identifier: MIT
#include "foreign_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

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

}  // namespace
}  // namespace tarnwick::testing
