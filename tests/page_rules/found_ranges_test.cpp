// SPDX-License-Identifier: MIT
#include "page_rules/found_ranges.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ctime>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using Language = PageRule::Language;

std::vector<std::string> found(Language language, const std::string& rule, const std::string& page) {
  std::vector<std::string> parts;
  for (const ByteRange& range : foundBy({PageRule::Use::leaveOut, language, rule}, page)) {
    parts.push_back(page.substr(range.begin, range.end - range.begin));
  }
  return parts;
}

std::string faultOf(Language language, const std::string& rule) {
  try {
    checkRule({PageRule::Use::leaveOut, language, rule});
  } catch (const std::runtime_error& fault) {
    return fault.what();
  }
  return {};
}

TEST(RulesByLines, FindWholeLines) {
  const std::string page = "one\ntwo\nthree\nfour";
  EXPECT_THAT(found(Language::lines, "2", page), ElementsAre("two\n"));
  EXPECT_THAT(found(Language::lines, " 2 - 3 ", page), ElementsAre("two\nthree\n"));
  EXPECT_THAT(found(Language::lines, "4-", page), ElementsAre("four"));
  EXPECT_THAT(found(Language::lines, "5", page), IsEmpty());
  for (const char* rule : {"", "0", "x", "3-2", "1-2-3", "-3"}) {
    EXPECT_NE(faultOf(Language::lines, rule), "") << rule;
  }
}

#ifdef TARNWICK_ALL_LANGUAGES

TEST(RulesByRegularExpressions, FindWhatMatchesOrItsFirstGroup) {
  const std::string page = "price: 24.00\nprice: 29.50\n<b>x</b>\n";
  EXPECT_THAT(found(Language::regex, "price: .*", page), ElementsAre("price: 24.00", "price: 29.50"));
  EXPECT_THAT(found(Language::regex, "price: (\\d+)", page), ElementsAre("24", "29"));
  EXPECT_THAT(found(Language::regex, "^<b>", page), ElementsAre("<b>")) << "the beginning of a line";
  EXPECT_THAT(found(Language::regex, "(?s)price.*", page), ElementsAre(page));
  EXPECT_THAT(found(Language::regex, "x*", page), ElementsAre("x")) << "nothing is no finding";
  EXPECT_THAT(found(Language::regex, "caf.", "caf\xE9 au lait"), ElementsAre("caf\xE9")) << "not UTF-8";
  EXPECT_THAT(found(Language::regex, "caf\xE9", "caf\xE9"), ElementsAre("caf\xE9"));
  EXPECT_EQ(faultOf(Language::regex, "caf\xE9"), "") << "whether a rule is understood is no matter of the page";
  EXPECT_THAT(found(Language::regex, "\\x{2014}|a", "caf\xE9"), IsEmpty()) << "a letter that the page cannot have";
  EXPECT_THAT(found(Language::regex, "\\x{2014}", "\xE2\x80\x94"), ElementsAre("\xE2\x80\x94"));
  EXPECT_THAT(faultOf(Language::regex, "a(b"), HasSubstr("missing ): a(b"));
  EXPECT_THAT(faultOf(Language::regex, "(a)\\1"), HasSubstr("\"regex (a)\\1\"")) << "no references back";
}

TEST(RulesByRegularExpressions, EndInTimeOnAPageMadeForThem) {
  const std::string page(5'000'000, 'x');
  const std::clock_t begun = std::clock();
  found(Language::regex, "(?s)x(.*y)?", page);
  found(Language::regex, "(x+x+)+y", page);
  found(Language::regex, "(y)|x(?s:.*z)?", "y" + page);
  EXPECT_LT(std::clock() - begun, 4 * CLOCKS_PER_SEC) << "of a processor, whatever else the machine does";
}

const std::string kPage =
    "<!DOCTYPE html>\n<html><head><title>A page</title></head>\n<body class=\"big\">\n"
    "<div id=\"main\" class=\"news first\"><p>One</p><p lang='de-AT'>Zw\xC3\xB6lf <b>bold</b></p>\n"
    "<ul><li>a<li>b</ul><img src=\"/ad/1.png\"><br/></div>\n"
    "<!-- <p>no</p> --><script>if (a<b) { x = \"<p>no</p>\"; }</script>\n"
    "<p>last\n</body></html>\n";

TEST(RulesBySelectors, FindWholeElementsWithTheirTags) {
  const auto css = [](const std::string& rule) { return found(Language::css, rule, kPage); };
  EXPECT_THAT(css("title"), ElementsAre("<title>A page</title>"));
  EXPECT_THAT(css("#main > p"), ElementsAre("<p>One</p><p lang='de-AT'>Zw\xC3\xB6lf <b>bold</b></p>"));
  EXPECT_THAT(css("p b"), ElementsAre("<b>bold</b>"));
  EXPECT_THAT(css("div.news.first b, title"), ElementsAre("<title>A page</title>", "<b>bold</b>"));
  EXPECT_THAT(css("P + p"), ElementsAre("<p lang='de-AT'>Zw\xC3\xB6lf <b>bold</b></p>"));
  EXPECT_THAT(css("p[lang|=de]"), ElementsAre("<p lang='de-AT'>Zw\xC3\xB6lf <b>bold</b></p>"));
  EXPECT_THAT(css("[src^='/ad']"), ElementsAre("<img src=\"/ad/1.png\">"));
  EXPECT_THAT(css("[src$=\".png\"]"), ElementsAre("<img src=\"/ad/1.png\">"));
  EXPECT_THAT(css("[src*='d/1']"), ElementsAre("<img src=\"/ad/1.png\">"));
  EXPECT_THAT(css("div[class~=first] > p:first-child"), ElementsAre("<p>One</p>"));
  EXPECT_THAT(css("#main > p:not([lang])"), ElementsAre("<p>One</p>"));
  EXPECT_THAT(css("div > :nth-child(2)"), ElementsAre("<p lang='de-AT'>Zw\xC3\xB6lf <b>bold</b></p>"));
  EXPECT_THAT(css("script"), ElementsAre("<script>if (a<b) { x = \"<p>no</p>\"; }</script>"));
  EXPECT_THAT(css("br"), ElementsAre("<br/>"));
  EXPECT_THAT(css("li:first-child"), ElementsAre("<li>a"));
  EXPECT_THAT(css("li ~ li"), ElementsAre("<li>b"));
  EXPECT_THAT(css("table"), IsEmpty());
  for (const char* rule : {"", "p >", "p..x", "[", "p:hover", "a[b=]", "p, ", "::before", "p:nth-child(0)",
                           "p:nth-child(99999999999999999999)"}) {
    EXPECT_NE(faultOf(Language::css, rule), "") << rule;
  }
}

TEST(RulesByXPath, FindWholeElements) {
  EXPECT_THAT(found(Language::xpath, "//p[@lang]/b", kPage), ElementsAre("<b>bold</b>"));
  EXPECT_THAT(found(Language::xpath, "//p[contains(., 'Zw\xC3\xB6lf')]/b/text()", kPage), ElementsAre("<b>bold</b>"));
  EXPECT_THAT(found(Language::xpath, "/html/body/p", kPage), ElementsAre("<p>last\n"));
  EXPECT_THAT(found(Language::xpath, "count(//p)", kPage), IsEmpty()) << "a number is no element";
  ::testing::internal::CaptureStderr();
  EXPECT_THAT(found(Language::xpath, "//p[nosuch(.)] | //p[$x]", kPage), IsEmpty());
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
  EXPECT_NE(faultOf(Language::xpath, "//p["), "");
  EXPECT_NE(faultOf(Language::xpath, ""), "");
}

TEST(RulesOnMarkup, EndInTimeOnAPageMadeForThem) {
  const std::clock_t begun = std::clock();
  std::string deep;
  for (int i = 0; i < 200'000; ++i) {
    deep += "<div>";
  }
  found(Language::css, "div div div", deep);
  std::string wide;
  for (int i = 0; i < 20'000; ++i) {
    wide += "<b id=" + std::to_string(i) + "><p>";
  }
  found(Language::css, "p b p", wide);
  found(Language::xpath, "//*[count(//*) > count(.//*)]", wide);
  found(Language::css, "p", std::string(100'000, '<'));
  found(Language::css, "p", "<p " + std::string(1'000'000, 'x'));
  std::string attributes = "<p";
  std::string cells;
  std::string names;
  for (int i = 0; i < 100'000; ++i) {
    attributes += " a" + std::to_string(i) + "=1";
    cells += "<td>x";
    names += "<a";
  }
  found(Language::css, "p", attributes + ">");
  found(Language::css, "td", cells);
  found(Language::css, "a", names);
  EXPECT_LT(std::clock() - begun, 10 * CLOCKS_PER_SEC);
}

TEST(Rules, ThatAreNestedDeeplyAreNoDanger) {
  constexpr std::size_t kDepth = 100'000;
  const auto repeated = [](const std::string& part) {
    std::string all;
    for (std::size_t i = 0; i < kDepth; ++i) {
      all += part;
    }
    return all;
  };
  for (const std::string part : {"(", "[", "-", "a[", "not(", "//*[", "a/"}) {
    const std::string rule = repeated(part);
    for (const Language language : {Language::regex, Language::css, Language::xpath, Language::json}) {
      faultOf(language, rule);
    }
  }
  EXPECT_NE(faultOf(Language::css, repeated(":not(") + "p" + repeated(")")), "");
  EXPECT_NE(faultOf(Language::xpath, repeated("(") + "//p" + repeated(")")), "");
  faultOf(Language::regex, repeated("(") + "a" + repeated(")*"));
  EXPECT_THAT(found(Language::json, repeated("/0"), repeated("[") + repeated("]")), IsEmpty());
  EXPECT_THAT(found(Language::xpath, "//b", repeated("<div>") + "<b>x</b>"), IsEmpty());
  EXPECT_THAT(found(Language::css, "b", "<p>" + repeated("<i>") + "</p><b>x</b>"), IsEmpty());
}

TEST(RulesOnMarkup, KeepTheirPlacesWhateverTheBytesAre) {
  for (const std::string& noise :
       {std::string("\xE9\xE8"), std::string("\xC3\xB6\xE2\x82\xAC"), std::string("\0\x01", 2),
        std::string("&auml;&#x20ac;&nosuch;"), std::string("<meta charset=utf-16>"), std::string("\r\n\r"),
        std::string("</nosuch></p>")}) {
    const std::string page = "<html><body>" + noise + "<p>" + noise + "x</p>" + noise + "<b>y</b></body></html>";
    EXPECT_THAT(found(Language::css, "b", page), ElementsAre("<b>y</b>")) << noise;
  }
}

TEST(RulesByPointer, FindTheValueAsItIsWritten) {
  const std::string page = R"({"a": {"b": [1, {"c": "x y"}, 2.50]}, "t/u": null, "last": [ 1,2 ] })";
  const auto json = [&](const std::string& rule) { return found(Language::json, rule, page); };
  EXPECT_THAT(json("/a/b/1"), ElementsAre(R"({"c": "x y"})"));
  EXPECT_THAT(json("/a/b/1/c"), ElementsAre(R"("x y")"));
  EXPECT_THAT(json("/a/b/2"), ElementsAre("2.50"));
  EXPECT_THAT(json("/t~1u"), ElementsAre("null"));
  EXPECT_THAT(json("/last"), ElementsAre("[ 1,2 ]"));
  EXPECT_THAT(json("/nothing"), IsEmpty());
  EXPECT_THAT(found(Language::json, "/a", "<html>"), IsEmpty());
  EXPECT_NE(faultOf(Language::json, "a/b"), "");
  EXPECT_NE(faultOf(Language::json, "/a~2"), "");
}

#else

TEST(ALanguageWithoutItsLibrary, IsRefusedWithTheRemedy) { EXPECT_THAT(faultOf(Language::lines, "3"), IsEmpty()); }

#endif

}  // namespace
}  // namespace tarnwick
