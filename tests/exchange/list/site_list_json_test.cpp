// SPDX-License-Identifier: MIT
#include "exchange/list/site_list_json.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

class SiteListJson : public ::testing::Test {
 protected:
  std::vector<ListedSite> read(std::string_view text) {
    faults_ = ListFaults();
    return readSiteListJson(text, faults_);
  }

  std::string faultsOf(std::string_view text) {
    read(text);
    std::string lines;
    for (const ListFaults::Fault& fault : faults_.kept()) {
      lines += std::to_string(fault.line) + ": " + fault.text + "\n";
    }
    return lines;
  }

  std::string faultsOfSites(const std::string& sites) {
    return faultsOf("{\"tarnwick\": 1, \"sites\": [\n" + sites + "]}");
  }

  static std::string written(const std::vector<ListedSite>& sites, ListColumns columns = {}) {
    std::string text;
    const auto writer = makeJsonWriter(columns, [&](std::string_view bytes) { text += bytes; });
    writer->begin();
    for (const ListedSite& site : sites) {
      writer->add(site);
    }
    writer->end();
    return text;
  }

  ListFaults faults_;
};

TEST_F(SiteListJson, ReadsWhatIsThereAndLeavesOutTheRest) {
  const auto sites = read(R"({"sites": [{"url": "http://a/", "active": false, "idSite": 7},
    {"url": "http://b/", "idSite": null, "postVars": [{"pvalue": "v", "pname": "n"}]}], "tarnwick": 1})");
  ASSERT_EQ(sites.size(), 2U);
  EXPECT_TRUE(faults_.none());
  EXPECT_EQ(sites[0].idSite, 7);
  EXPECT_FALSE(sites[0].site.active);
  EXPECT_FALSE(sites[0].given.has("method"));
  EXPECT_EQ(sites[1].idSite, std::nullopt);
  EXPECT_EQ(sites[1].line, 2U);
  EXPECT_EQ(sites[1].postVars, (std::vector<PostVar>{{"n", "v"}}));
}

TEST_F(SiteListJson, AcceptsAByteOrderMarkAndAnEmptyList) {
  EXPECT_TRUE(read("\xef\xbb\xbf{\"tarnwick\":1,\"sites\":[]}\r\n").empty());
  EXPECT_TRUE(faults_.none());
}

TEST_F(SiteListJson, KeepsEveryByteOfAText) {
  const std::string odd("\"a,b\"\r\n\0\xff\x1b ", 11);
  std::vector<ListedSite> sites(2);
  sites[0].idSite = 1;
  sites[0].site = {odd, "GET", false, "32767", true, "NULL", "ä\t", "\\"};
  sites[0].postVars = {{odd, "NULL"}, {"", ""}, {"a", ""}, {"a", ""}};
  sites[0].baseline = odd;
  sites[1].idSite = 9;
  const ListColumns all{.passwords = true, .baselines = true};
  const std::string text = written(sites, all);
  const auto back = read(text);
  EXPECT_TRUE(faults_.none());
  ASSERT_EQ(back.size(), 2U);
  EXPECT_EQ(back[0].site, sites[0].site);
  EXPECT_EQ(back[0].postVars, sites[0].postVars);
  EXPECT_EQ(back[0].baseline, odd);
  EXPECT_EQ(back[1].line, 3U);
  EXPECT_EQ(written(back, all), text);
}

TEST_F(SiteListJson, IsWrittenWithALineForEachSite) {
  std::vector<ListedSite> sites(1);
  sites[0].idSite = 12;
  sites[0].site.url = "http://a/";
  EXPECT_EQ(written(sites, {.passwords = false}),
            "{\"tarnwick\": 1, \"sites\": [\n"
            "{\"idSite\":12,\"url\":\"http://a/\",\"method\":\"get\",\"active\":true,\"tInterval\":10,"
            "\"alertEmail\":false,\"email\":\"\",\"sUserName\":\"\",\"postVars\":[]}\n]}\n");
}

TEST_F(SiteListJson, TellsEveryFaultWithTheLineOfItsSite) {
  const std::string faults = faultsOfSites(
      "{\"url\": \"a\",\n \"idSite\": 0, \"active\": 1},\n"
      "{\"url\": 5, \"tInterval\": \"10\", \"method\": \"put\"},\n"
      "{\"idSite\": 3}, {\"url\": \"b\", \"colour\": [{}]}, {\"url\": \"b\",\n\"url\": \"c\"},\n"
      "{\"url\": \"b\", \"idSite\": 1.0, \"sUserName\": {\"base64\": \"!\"}, \"postVars\": [{\"pname\": \"a\"}]}");
  EXPECT_THAT(faults, HasSubstr("2: idSite \"0\" is outside 1 to 32767"));
  EXPECT_THAT(faults, HasSubstr("2: active \"1\" is neither yes nor no"));
  EXPECT_THAT(faults, HasSubstr("4: url \"5\" is no text"));
  EXPECT_THAT(faults, HasSubstr("4: tInterval \"10\" is no whole number"));
  EXPECT_THAT(faults, HasSubstr("4: method \"put\""));
  EXPECT_THAT(faults, HasSubstr("5: the member url is missing"));
  EXPECT_THAT(faults, HasSubstr("5: there is no member \"colour\""));
  EXPECT_THAT(faults, HasSubstr("5: the member \"url\" is given twice"));
  EXPECT_THAT(faults, HasSubstr("7: idSite \"1.0\" is no whole number"));
  EXPECT_THAT(faults, HasSubstr("7: sUserName \"{...}\" is no text"));
  EXPECT_THAT(faults, HasSubstr("7: postVars is no array"));
}

TEST_F(SiteListJson, TellsTheLineWhereItIsNoJson) {
  EXPECT_THAT(faultsOf("{\"tarnwick\": 1,\n\"sites\": [\n{\"url\" \"a\"}]}"), HasSubstr("3: this is no JSON: "));
  EXPECT_THAT(faultsOf("{\"tarnwick\": 1,\n\"sites\": ["), HasSubstr("2: this is no JSON: "));
  EXPECT_THAT(faultsOf("{\"tarnwick\": 1, \"sites\": []}\n}"), HasSubstr("2: this is no JSON: "));
  EXPECT_THAT(faultsOf("{\"tarnwick\": 1, \"sites\": [{\"url\": \"\xff\"}]}"), HasSubstr("1: this is no JSON: "));
  EXPECT_THAT(faultsOf(""), HasSubstr("1: this is no JSON: "));
}

TEST_F(SiteListJson, RefusesWhatIsNoListOfSites) {
  EXPECT_THAT(faultsOf("[]"), HasSubstr("1: this is no list of sites"));
  EXPECT_THAT(faultsOf("7"), HasSubstr("1: this is no list of sites"));
  EXPECT_THAT(faultsOf("{\"sites\": []}"), HasSubstr("\"tarnwick\": 1 is missing"));
  EXPECT_THAT(faultsOf("{\"tarnwick\": 1}"), HasSubstr("\"sites\" is missing"));
  EXPECT_THAT(faultsOf("{\"tarnwick\": 2, \"sites\": []}"), HasSubstr("version \"2\""));
  EXPECT_THAT(faultsOf("{\"tarnwick\": 1,\n\"colour\": 3}"), HasSubstr("2: there is no member \"colour\""));
  EXPECT_THAT(faultsOf("{\"tarnwick\": 1, \"sites\": {}}"), HasSubstr("this is no list of sites"));
  EXPECT_THAT(faultsOfSites("7"), HasSubstr("2: the array \"sites\" holds something else"));
  EXPECT_THAT(faultsOfSites("[]"), HasSubstr("2: the array \"sites\" holds something else"));
}

TEST_F(SiteListJson, DoesNotFollowIntoTheDeep) {
  EXPECT_THAT(faultsOfSites("{\"url\": " + std::string(100000, '[')),
              HasSubstr("2: the site holds objects in objects"));
}

/// `count` times what `piece` makes of the number, with commas between.
std::string many(std::size_t count, const std::function<std::string(std::size_t)>& piece) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) {
    text += (i == 0 ? "" : ",") + piece(i);
  }
  return text;
}

TEST_F(SiteListJson, HoldsNoMoreMembersThanASiteCanHave) {
  const auto member = [](std::size_t i) { return "\"m" + std::to_string(i) + "\":1"; };
  EXPECT_EQ(faultsOfSites("{" + many(40000, member) + "}"),
            "2: the site holds an object of more than 100 members, and none has so many: leave them out\n");
  EXPECT_THAT(faultsOf("{\"tarnwick\":1,\"options\":{" + many(40000, member) + "},\"sites\":[]}"),
              HasSubstr("more than 100 members"));
  EXPECT_EQ(faults_.count(), 1U);
}

TEST_F(SiteListJson, HoldsNoMoreVariablesThanAFormHas) {
  const auto null = [](std::size_t) { return std::string("null"); };
  const auto nothing = [](std::size_t) { return std::string("[]"); };
  for (const auto& piece : {std::function<std::string(std::size_t)>(null), {nothing}}) {
    EXPECT_EQ(faultsOfSites("{\"url\": \"a\", \"postVars\": [" + many(10001, piece) + "]}"),
              "2: the site holds an array of more than 10000 values, and none has so many: leave them out\n");
  }
  const auto variable = [](std::size_t) { return std::string(R"({"pname":"a","pvalue":"b"})"); };
  EXPECT_EQ(faultsOfSites("{\"url\": \"a\", \"postVars\": [" + many(10000, variable) + "]}"), "");
}

std::string siteWithHistory(const std::string& lines) { return R"({"url": "http://a/", "history": [)" + lines + "]}"; }

TEST_F(SiteListJson, WritesAHistoryAsItReadsIt) {
  const std::string lines =
      R"("latest 1795447390 down 1795447400","hour 1795446000 6 2400 600 1290 645 OAEEAg==","hour 1795449600 1 0 3600 0 0",)"
      R"("day 1795388400 86400 144 86400 0 0 0","month 1793487600 2592000 4000 2592000 0 10 5",)"
      R"("outage 1795440000 1795440900 2 No answer: \"x\" within 60 s","outage 1795447000 - 3")";
  const auto sites = read("{\"tarnwick\": 1, \"sites\": [" + siteWithHistory(lines) + "]}");
  ASSERT_EQ(sites.size(), 1U) << faultsOfSites(siteWithHistory(lines));
  EXPECT_EQ(sites[0].history.hours.size(), 2U);
  EXPECT_EQ(sites[0].history.hours[0].sum.down, std::chrono::seconds(600));
  EXPECT_EQ(sites[0].history.outages[0].cause, "No answer: \"x\" within 60 s");
  EXPECT_EQ(sites[0].history.outages[1].ended, std::nullopt);
  EXPECT_THAT(written(sites, {.history = true}), HasSubstr("\"history\":[" + lines + "]"));
  EXPECT_THAT(written(sites), ::testing::Not(HasSubstr("history")));
}

TEST_F(SiteListJson, TellsWhatIsWrongWithAHistory) {
  const auto faultOf = [&](const std::string& line) { return faultsOfSites(siteWithHistory('"' + line + '"')); };
  for (const char* const line :
       {"", "hour", "hour 1795446000", "hour 1795446000 6 2400 600 1290", "hour x 6 2400 600 1290 645",
        "hour 1795446000 -6 2400 600 1290 645", "hour 1795446000 6 2400 600 1290 645 OAEEAg==x",
        "hour 1795446000 6 2400 600 1290 645 /////w==", "hour 1795446000  6 2400 600 1290 645", "Hour 1795446000",
        "latest 1795447390", "latest 1795447390 so", "latest 1795447390 up 7 7", "outage 1795447000", "outage 7 x 3",
        "outage 7 - 99999999999", "minute 1795446000 6 2400 600 1290 645", "hour 999999999999999 6 2400 600 1290 645",
        "hour 99999999999999999999 6 2400 600 1290 645"}) {
    EXPECT_EQ(faultOf(line),
              "2: the line of the history " + quotedForMessage(line) + " is none: give it as an export writes it\n");
  }
  EXPECT_THAT(faultOf("hour 1795446001 6 2400 600 0 0"), HasSubstr(" begins at no full hour of any clock: give "));
  EXPECT_THAT(faultOf("hour 1795446000 6 2400 1201 0 0"),
              HasSubstr(" was up and unknown for longer than its 3600 seconds: "));
  EXPECT_THAT(faultOf("hour 1795446000 5 2400 600 1290 645 OAEEBw=="),
              HasSubstr(" tells how long more answers took than it had checks: "));
  EXPECT_THAT(faultOf("day 1795388400 97201 144 86400 0 0 0"), HasSubstr(" has 97201 seconds: give it 1 to 97200\n"));
  EXPECT_THAT(faultOf("outage 1795440900 1795440000 2"), HasSubstr(" ended before it began: give "));
  EXPECT_THAT(faultsOfSites(R"({"url": "a", "history": "hour"})"),
              HasSubstr("history is no array: give it as an export writes it"));
}

TEST_F(SiteListJson, HoldsTheHoursOfManyYears) {
  const auto hour = [](std::size_t i) { return "\"hour " + std::to_string(i * 3600) + " 1 3600 0 0 0\""; };
  const auto sites = read("{\"tarnwick\": 1, \"sites\": [" + siteWithHistory(many(100000, hour)) + "]}");
  ASSERT_EQ(sites.size(), 1U);
  EXPECT_EQ(sites[0].history.hours.size(), 100000U);
}

TEST_F(SiteListJson, HoldsNoMoreSitesThanThereAreIds) {
  const auto site = [](std::size_t) { return std::string(R"({"url":"a"})"); };
  EXPECT_EQ(faultsOfSites(many(32767, site)), "");
  EXPECT_THAT(faultsOfSites(many(32768, site)), HasSubstr("more than 32767 sites"));
}

}  // namespace
}  // namespace tarnwick::testing
