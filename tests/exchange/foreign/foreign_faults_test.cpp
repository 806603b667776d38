// SPDX-License-Identifier: MIT
#include "foreign_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class BadForeignLists : public ForeignLists {};

std::string repeated(const std::string& text, std::size_t count) {
  std::string all;
  for (std::size_t i = 0; i < count; ++i) {
    all += text;
  }
  return all;
}

TEST_F(BadForeignLists, WhatIsCutShortIsToldWithItsPlace) {
  const std::string firefox = foreignFile("firefox.html");
  EXPECT_THAT(faultOf("bookmarks", firefox.substr(0, firefox.size() * 2 / 3)), HasSubstr("the file breaks off here"));
  const std::string opml = foreignFile("feeds.opml");
  EXPECT_THAT(faultOf("opml", opml.substr(0, opml.size() / 2)), HasSubstr("this is no whole OPML: "));
  const std::string watches = foreignFile("url-watches.json");
  EXPECT_THAT(faultOf("changedetection", watches.substr(0, watches.size() / 2)), HasSubstr("this is no JSON: "));
  const std::string backup = foreignFile("backup.zip");
  EXPECT_THAT(faultOf("changedetection", backup.substr(0, backup.size() - 40)),
              HasSubstr("the zip archive is damaged or cut short"));
  EXPECT_THAT(faultOf("urlwatch", "url: http://a.example/\nfilter: [css\n"), HasSubstr("this is no YAML: "));
}

TEST_F(BadForeignLists, AnotherKindThanSaidIsTold) {
  for (const std::string word : {"opml", "changedetection", "urlwatch", "addresses", "bookmarks"}) {
    EXPECT_NE(faultOf(word, std::string("\x7f"
                                        "ELF\0\1\2",
                                        7)),
              "")
        << word;
    EXPECT_NE(faultOf(word, ""), "") << word;
  }
  EXPECT_THAT(faultOf("opml", "<rss><channel/></rss>"),
              StartsWith("1: this is no OPML: its outermost element is \"rss\""));
  EXPECT_THAT(faultOf("changedetection", "[1]"), HasSubstr("no list of changedetection.io"));
  EXPECT_THAT(faultOf("urlwatch", "just words"), HasSubstr("no job of urlwatch"));
  EXPECT_THAT(faultOf("addresses", "\xff\xfe\x68"), StartsWith("1: the file is UTF-16"));
}

TEST_F(BadForeignLists, EntitiesThatGrowAreRefused) {
  std::string bomb = "<?xml version=\"1.0\"?><!DOCTYPE opml [<!ENTITY a0 \"lolololololololo\">";
  for (int i = 1; i < 12; ++i) {
    const std::string before = "&a" + std::to_string(i - 1) + ";";
    bomb += "<!ENTITY a" + std::to_string(i) + " \"" + repeated(before, 10) + "\">";
  }
  bomb += "]><opml><body><outline url=\"http://a.example/\" text=\"&a11;\"/></body></opml>";
  EXPECT_THAT(faultOf("opml", bomb), HasSubstr("no whole OPML"));
  // No file of the machine, and no page, is read into one.
  const std::string outside =
      "<?xml version=\"1.0\"?><!DOCTYPE opml [<!ENTITY x SYSTEM \"file:///etc/passwd\">]>"
      "<opml><body><outline url=\"http://a.example/\" text=\"&x;\"/></body></opml>";
  EXPECT_THAT(faultOf("opml", outside), HasSubstr("no whole OPML"));
  std::string aliases = "url: http://a.example/\na0: &a0 [x, x, x, x, x, x, x, x, x, x]\n";
  for (int i = 1; i < 12; ++i) {
    const std::string before = "*a" + std::to_string(i - 1);
    aliases +=
        "a" + std::to_string(i) + ": &a" + std::to_string(i) + " [" + before + repeated(", " + before, 9) + "]\n";
  }
  EXPECT_EQ(faultOf("urlwatch", aliases), "") << "what is named is short, however much stands behind it";
}

TEST_F(BadForeignLists, DepthIsNoDanger) {
  EXPECT_NE(faultOf("opml", "<opml>" + repeated("<outline text=\"a\">", 100000)), "");
  EXPECT_NE(faultOf("urlwatch", "url: http://a.example/\nfilter: " + repeated("[", 100000)), "");
  EXPECT_NE(faultOf("changedetection", R"({"watching": )" + repeated("[", 100000)), "");
  const std::string deep = "<!DOCTYPE NETSCAPE-Bookmark-file-1>\n" + repeated("<DL><p><DT>", 20000) +
                           "<A HREF=\"http://a.example/\">x</A>" + repeated("</DL><p>", 20000);
  EXPECT_EQ(faultOf("bookmarks", deep), "");
}

TEST_F(BadForeignLists, TooManySitesAreTold) {
  std::string text;
  for (int i = 0; i < 50000; ++i) {
    text += "http://a.example/" + std::to_string(i) + "\n";
  }
  EXPECT_THAT(faultOf("addresses", text), StartsWith("32768: the file holds more than 32767 sites"));
}

TEST_F(BadForeignLists, TooLargeFilesAreTold) {
  EXPECT_THAT(faultOf("addresses", std::string(100'000'000, 'a')), HasSubstr("larger than 64 MiB"));
}

}  // namespace
}  // namespace tarnwick::testing
