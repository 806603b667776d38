// SPDX-License-Identifier: MIT
#include "exchange/list/site_list_csv.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "exchange/list/site_list_post_vars.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

class SiteListCsv : public ::testing::Test {
 protected:
  std::vector<ListedSite> read(std::string_view text) {
    faults_ = ListFaults();
    return readSiteListCsv(text, faults_);
  }

  /// The faults of a text, a line each, as "line: text".
  std::string faultsOf(std::string_view text) {
    read(text);
    std::string lines;
    for (const ListFaults::Fault& fault : faults_.kept()) {
      lines += std::to_string(fault.line) + ": " + fault.text + "\n";
    }
    return lines;
  }

  static std::string written(const std::vector<ListedSite>& sites, ListColumns columns = {}) {
    std::string text;
    const auto writer = makeCsvWriter(columns, [&](std::string_view bytes) { text += bytes; });
    writer->begin();
    for (const ListedSite& site : sites) {
      writer->add(site);
    }
    writer->end();
    return text;
  }

  ListFaults faults_;
};

TEST_F(SiteListCsv, ReadsColumnsInAnyOrderAndLeavesOutTheOthers) {
  const auto sites = read("active,url,idSite\r\nno,http://a/,7\r\nTRUE,http://b/,\r\n");
  ASSERT_EQ(sites.size(), 2U);
  EXPECT_TRUE(faults_.none());
  EXPECT_EQ(sites[0].idSite, 7);
  EXPECT_EQ(sites[0].site.url, "http://a/");
  EXPECT_FALSE(sites[0].site.active);
  EXPECT_EQ(sites[0].line, 2U);
  EXPECT_FALSE(sites[0].given.has("method"));
  EXPECT_EQ(sites[1].idSite, std::nullopt);
  EXPECT_TRUE(sites[1].site.active);
  EXPECT_EQ(sites[1].site.tInterval, "10");
}

TEST_F(SiteListCsv, TakesNamesOfColumnsInAnyLetterCase) {
  EXPECT_EQ(read("URL, idsite\nhttp://a/,3\n").at(0).idSite, 3);
}

TEST_F(SiteListCsv, TakesWhatASpreadsheetWrites) {
  const auto sites = read("\xef\xbb\xbfidSite,url,tInterval\n1,http://a/,\n,,\n\n2,http://b/, 5 ");
  ASSERT_EQ(sites.size(), 2U);
  EXPECT_TRUE(faults_.none());
  EXPECT_FALSE(sites[0].given.has("tInterval"));
  EXPECT_EQ(sites[1].site.tInterval, "5");
  EXPECT_EQ(sites[1].line, 5U);
}

TEST_F(SiteListCsv, KeepsEveryByteOfAText) {
  const std::string odd(" \"a,b\"\r\n\0\xff;\t ", 13);
  std::vector<ListedSite> sites(1);
  sites[0].idSite = 1;
  sites[0].site.url = odd;
  sites[0].site.sPassWord = "NULL";
  sites[0].site.email = "\"";
  sites[0].site.sUserName = odd + odd;
  sites[0].postVars = {{odd, "NULL"}, {"", ""}, {"a", ""}, {"a", ""}};
  sites[0].baseline = odd;
  const std::string text = written(sites, {.passwords = true, .baselines = true});
  const auto back = read(text);
  EXPECT_TRUE(faults_.none());
  ASSERT_EQ(back.size(), 1U);
  EXPECT_EQ(back[0].site, sites[0].site);
  EXPECT_EQ(back[0].postVars, sites[0].postVars);
  EXPECT_EQ(back[0].baseline, odd);
  EXPECT_EQ(written(back, {.passwords = true, .baselines = true}), text);
}

TEST_F(SiteListCsv, WritesCrLfAndQuotesOnlyWhereTheyAreNeeded) {
  std::vector<ListedSite> sites(1);
  sites[0].idSite = 12;
  sites[0].site = {"http://a/?x=1", "post", true, "5", false, "a@b.cd", "o'neil", " p"};
  sites[0].postVars = {{"a b", "1&2"}, {"", ""}};
  EXPECT_EQ(written(sites),
            "idSite,url,method,active,tInterval,alertEmail,email,sUserName,sPassWord,postVars\r\n"
            "12,http://a/?x=1,post,True,5,False,a@b.cd,o'neil,\" p\",a%20b=1%262&=\r\n");
  EXPECT_THAT(written(sites, {.passwords = false}), ::testing::Not(HasSubstr("PassWord")));
}

TEST_F(SiteListCsv, TellsEveryFaultWithItsPhysicalLine) {
  const std::string faults = faultsOf(
      "idSite,url,method,active,tInterval\r\n"
      "1,\"two\r\nlines\",get,True,5\r\n"
      "x,http://a/,head,maybe,0\r\n"
      "32768,http://a/,get,True,32768\r\n"
      "-1,http://a/,get,True,1.5\r\n");
  EXPECT_THAT(faults, HasSubstr("4: idSite \"x\" is no whole number"));
  EXPECT_THAT(faults, HasSubstr("4: method \"head\""));
  EXPECT_THAT(faults, HasSubstr("4: active \"maybe\""));
  EXPECT_THAT(faults, HasSubstr("4: tInterval \"0\" is outside 1 to 32767"));
  EXPECT_THAT(faults, HasSubstr("5: idSite \"32768\" is outside 1 to 32767"));
  EXPECT_THAT(faults, HasSubstr("5: tInterval \"32768\""));
  EXPECT_THAT(faults, HasSubstr("6: idSite \"-1\""));
  EXPECT_THAT(faults, HasSubstr("6: tInterval \"1.5\" is no whole number"));
  EXPECT_EQ(faults_.count(), 8U);
}

TEST_F(SiteListCsv, RefusesQuotesThatDoNotFit) {
  EXPECT_THAT(faultsOf("url\nhttp://a/\n\"never\nclosed\n"), HasSubstr("3: the quote that begins a field here"));
  EXPECT_THAT(faultsOf("url\n\"a\"b\n"), HasSubstr("2: text stands behind the quote"));
  EXPECT_THAT(faultsOf("url\na\"b\n"), HasSubstr("2: a quote stands inside a field"));
}

TEST_F(SiteListCsv, RefusesAWrongNumberOfFields) {
  EXPECT_THAT(faultsOf("idSite,url\n1\n1,a,b\n"), AllOf(HasSubstr("2: the number of fields is 1 and that of columns 2"),
                                                        HasSubstr("3: the number of fields is 3")));
}

TEST_F(SiteListCsv, RefusesWhatIsNoText) {
  EXPECT_THAT(faultsOf({"url\na\0b\n", 8}), HasSubstr("2: a NUL character stands outside of quotes"));
  EXPECT_THAT(faultsOf("\xff\xfeu"), HasSubstr("1: the file is UTF-16"));
  EXPECT_THAT(faultsOf("url\rhttp://a/\r"), HasSubstr("1: a carriage return stands alone"));
  EXPECT_THAT(faultsOf(""), HasSubstr("1: the file is empty"));
}

TEST_F(SiteListCsv, RefusesAFirstLineThatDoesNotName) {
  EXPECT_THAT(faultsOf("idSite;url\n1;http://a/\n"), HasSubstr("1: the fields are separated by semicolons"));
  EXPECT_THAT(faultsOf("idSite\turl\n"), HasSubstr("1: the fields are separated by tabs"));
  EXPECT_THAT(faultsOf("url,colour\n"), HasSubstr("1: there is no column \"colour\""));
  EXPECT_THAT(faultsOf("url,status\n"), HasSubstr("1: there is no column \"status\""));
  EXPECT_THAT(faultsOf("url,url\n"), HasSubstr("named twice"));
  EXPECT_THAT(faultsOf("idSite\n1\n"), HasSubstr("1: the column url is missing"));
  EXPECT_EQ(faults_.count(), 1U);
}

TEST_F(SiteListCsv, CountsTheFaultsBeyondTheFirst) {
  std::string text = "url,active\n";
  for (int i = 0; i < 30; ++i) {
    text += "http://a/,maybe\n";
  }
  read(text);
  EXPECT_EQ(faults_.count(), 30U);
  EXPECT_EQ(faults_.kept().size(), 20U);
}

TEST_F(SiteListCsv, ShowsNoControlCharacterInAFault) {
  EXPECT_EQ(faultsOf("url,active\nx,\"\x1b[2J\n\"\n").find('\x1b'), std::string::npos);
}

TEST_F(SiteListCsv, RefusesWhatIsNoBase64) {
  EXPECT_THAT(faultsOf("url,baseline\nx,!!\n"), HasSubstr("2: the baseline is no base64 text"));
}

TEST(ListedPostVars, KeepTheirOrderAndEveryByte) {
  const std::vector<PostVar> vars{{"a", "1"}, {"a", "2"}, {"", ""}, {"", ""}, {std::string("\0\xff&=+ %", 7), "~-._"}};
  EXPECT_EQ(encodePostVars(vars), "a=1&a=2&=&=&%00%FF%26%3D%2B%20%25=~-._");
  EXPECT_EQ(decodePostVars(encodePostVars(vars)), vars);
  EXPECT_EQ(decodePostVars(""), std::vector<PostVar>());
}

TEST(ListedPostVars, MayBeWrittenByHand) {
  EXPECT_EQ(decodePostVars("q=a+b c=d&e=%c3%A4"), (std::vector<PostVar>{{"q", "a+b c=d"}, {"e", "ä"}}));
}

TEST(ListedPostVars, AreRefusedWithTheRemedy) {
  EXPECT_THROW(decodePostVars("a"), std::invalid_argument);
  EXPECT_THROW(decodePostVars("a=1&"), std::invalid_argument);
  EXPECT_THROW(decodePostVars("a=100%"), std::invalid_argument);
  EXPECT_THROW(decodePostVars("a=%g0"), std::invalid_argument);
  EXPECT_THROW(decodePostVars("a=%0"), std::invalid_argument);
}

TEST_F(SiteListCsv, HoldsNoMoreFieldsThanAListHasColumns) {
  const std::string commas(1000, ',');
  const std::string fault = "the row has more than 1000 fields, and the list has no such columns: leave them out\n";
  EXPECT_EQ(faultsOf("url" + commas + "\na\n"), "1: " + fault);
  EXPECT_EQ(faultsOf("url\n" + commas + "\n" + commas + commas + "\nb\n"), "2: " + fault + "3: " + fault);
}

TEST_F(SiteListCsv, HoldsNoMoreVariablesThanAListInJson) {
  std::string vars = "a=b";
  for (std::size_t var = 1; var < list_bound::elements; ++var) {
    vars += "&a=b";
  }
  EXPECT_EQ(faultsOf("url,postVars\na," + vars + "\n"), "");
  EXPECT_EQ(faultsOf("url,postVars\na," + vars + "&a=b\n"),
            "2: postVars: there are more than 10000 variables, and no site has so many: leave them out\n");
}

TEST_F(SiteListCsv, HoldsNoMoreSitesThanThereAreIds) {
  std::string text = "url\n";
  for (int site = 0; site < 32767; ++site) {
    text += "a\n";
  }
  EXPECT_EQ(faultsOf(text), "");
  EXPECT_EQ(faultsOf(text + "a\na\n"),
            "32769: the file holds more than 32767 sites, and a list has no ids for more: leave some out\n");
}

}  // namespace
}  // namespace tarnwick::testing
