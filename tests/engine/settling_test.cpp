// SPDX-License-Identifier: MIT
#include "engine/settling.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "difference/page_pairs.h"
#include "engine/known_page.h"
#include "engine/result_recording.h"
#include "platform/transfer_control.h"
#include "support/data_fixture.h"

namespace tarnwick::testing {
namespace {

class SettlingTest : public DataFixture {
 protected:
  SettlingTest() { folder.execute("insert into sites (idSite,url,method,active) values (1,'http://one','GET',1)"); }

  void check(const std::string& page) {
    results.forgetSitesWithRules();
    passed = results.testSite(1, page, 0, "");
    results.setStatus(1, passed);
  }

  SettingsAndLog settings{database};
  ResultRecording results{database, settings, clock};
  Settling settling{database, clock};
  Baselines baselines{database};
  bool passed = false;
};

TEST(ErrorWords, AreThoseOfErrorPages) {
  EXPECT_EQ(errorWordsOf("<html><head><title>404 Not Found</title></head><h1>Oops</h1>"), "404 Not Found");
  EXPECT_EQ(errorWordsOf("<TITLE>\n Error 503 </TITLE>"), "Error 503");
  EXPECT_EQ(errorWordsOf("<title>Shop</title><h1 class=x>Service Unavailable</h1>"), "Service Unavailable");
  EXPECT_EQ(errorWordsOf("Bad Gateway\n"), "Bad Gateway");
  EXPECT_EQ(errorWordsOf("<title>502</title>"), "502");
  for (const char* good : {"", "<title>Shop</title>", "<title>Room 404 of the museum</title>", "<p>not found</p>",
                           "<title>Prices from 499.00</title>", "Kettle: 24.00"}) {
    EXPECT_EQ(errorWordsOf(good), "") << good;
  }
}

TEST(KnownPage, IsSilentUntilAnotherPageComesOrTheSiteIsUp) {
  const Acknowledgement known{"1f", "2026-11-23 04:00:00"};
  EXPECT_EQ(decideKnown(std::nullopt, false, "1f"), KnownStep::none);
  EXPECT_EQ(decideKnown(known, false, "1f"), KnownStep::silent);
  EXPECT_EQ(decideKnown(known, false, "2f"), KnownStep::other);
  EXPECT_EQ(decideKnown(known, true, "1f"), KnownStep::over);
}

TEST_F(SettlingTest, TellsWhatThereIsToSettle) {
  EXPECT_EQ(settling.toSettle(9).state, ToSettle::State::noSuchSite);
  EXPECT_EQ(settling.toSettle(1).state, ToSettle::State::never);
  check("a page");
  EXPECT_EQ(settling.toSettle(1).state, ToSettle::State::same);
  check("<title>404 Not Found</title>");
  const ToSettle error = settling.toSettle(1);
  EXPECT_EQ(error.state, ToSettle::State::differs);
  EXPECT_EQ(error.errorWords, "404 Not Found");
  EXPECT_EQ(error.page, "<title>404 Not Found</title>");
  EXPECT_FALSE(error.isShort);
  check("a");
  EXPECT_TRUE(settling.toSettle(1).isShort);
  EXPECT_TRUE(settling.toSettle(1).isDoubtful());
  results.testSite(1, "11:refused", 7, "refused");
  EXPECT_EQ(settling.toSettle(1).state, ToSettle::State::failedFetch);
}

TEST_F(SettlingTest, AnEmptyPageIsAnAnswerThatCannotBeTheBaseline) {
  check("");
  EXPECT_EQ(settling.toSettle(1).state, ToSettle::State::same) << "of a site that has no baseline yet";
  check("a page");
  check("");
  EXPECT_EQ(settling.toSettle(1).state, ToSettle::State::emptyPage);
  EXPECT_EQ(settling.toSettle(1).baseline, "a page");
  check("a page");
  folder.execute("update sites set content_runtime = ''");
  EXPECT_EQ(settling.toSettle(1).state, ToSettle::State::never) << "it has been up, so there was a page";
}

TEST_F(SettlingTest, TellsWhatOfThePagesMayVary) {
  const std::string baseline = "<p>at [10]</p>\n<b>24.00</b>\n";
  const std::string page = "<p>at [1234]</p>\n<b>29.00</b>\n";
  check(baseline);
  Holes holes{{.begin = 7, .length = 2, .kind = HoleClass::digits, .least = 1, .most = 6}};
  setAnchors(holes, baseline);
  SiteRules(database).storeRules(1, {{}, holes});
  check(page);
  const ToSettle found = settling.toSettle(1);
  ASSERT_EQ(found.varyingInBaseline.size(), 1U);
  EXPECT_EQ(found.varyingInBaseline.front().of(baseline), "10");
  ASSERT_EQ(found.varyingInPage.size(), 1U);
  EXPECT_EQ(found.varyingInPage.front().of(page), "1234");
}

TEST_F(SettlingTest, AcceptsExactlyThoseBytesAndGivesTheOldOnesBack) {
  for (const PagePair& pair : pagePairs(60, 20261125)) {
    SCOPED_TRACE(pair.kind);
    results.updateContentCompare(1, pair.before);
    check(pair.after);
    ASSERT_EQ(passed, pair.before == pair.after);
    settling.accept(1, settling.toSettle(1).page, AcceptAs::baseline);
    EXPECT_TRUE(results.getContentCompare(1) == pair.after);
    check(pair.after);
    EXPECT_TRUE(passed);
    EXPECT_TRUE(settling.undoAccept(1));
    EXPECT_TRUE(results.getContentCompare(1) == pair.before);
  }
}

TEST_F(SettlingTest, ASecondAcceptIsUndoneBeforeTheFirst) {
  results.updateContentCompare(1, "one");
  settling.accept(1, "two", AcceptAs::baseline);
  settling.accept(1, "three", AcceptAs::baseline);
  EXPECT_TRUE(settling.undoAccept(1));
  EXPECT_EQ(results.getContentCompare(1), "two");
  EXPECT_TRUE(settling.undoAccept(1));
  EXPECT_EQ(results.getContentCompare(1), "one");
  EXPECT_FALSE(settling.undoAccept(1));
  EXPECT_EQ(results.getContentCompare(1), "one");
}

TEST_F(SettlingTest, APageThatEqualsAFurtherGoodOneIsUp) {
  check("server A");
  check("server B");
  EXPECT_FALSE(passed);
  settling.accept(1, "server B", AcceptAs::also);
  check("server B");
  EXPECT_TRUE(passed);
  check("server A");
  EXPECT_TRUE(passed);
  check("server C");
  EXPECT_FALSE(passed);
  EXPECT_EQ(results.getContentCompare(1), "server A");
  baselines.dropBaseline(1, baselines.baselinesOf(1).front().number);
  check("server B");
  EXPECT_FALSE(passed);
  for (std::size_t i = 0; i < kMostKeptBaselines; ++i) {
    settling.accept(1, "server " + std::to_string(i), AcceptAs::also);
  }
  EXPECT_THROW(settling.accept(1, "one too many", AcceptAs::also), std::length_error);
}

TEST_F(SettlingTest, AFurtherGoodPageMayVaryAsTheBaselineMay) {
  check("at 12:00 A\n");
  settling.accept(1, "at 12:00 B\n", AcceptAs::also);
  SiteRules(database).storeRules(1, {{{PageRule::Use::leaveOut, PageRule::Language::lines, "2"}}, {}});
  check("at 12:00 B\n");
  EXPECT_TRUE(passed);
  check("at 12:00 C\n");
  EXPECT_FALSE(passed);
}

TEST_F(SettlingTest, WithoutSuchRowsNoOtherStatementIsRun) {
  check("a page");
  takeStatements();
  check("another page");
  const auto before = takeStatements();
  settling.accept(1, "x", AcceptAs::also);
  baselines.dropBaseline(1, baselines.baselinesOf(1).front().number);
  takeStatements();
  check("another page");
  EXPECT_EQ(takeStatements(), before);
}

TEST_F(SettlingTest, AnAcceptedPageIsAcknowledgedNoMore) {
  check("a page");
  check("wrong");
  settling.acknowledgePage(1, "wrong");
  EXPECT_TRUE(settling.toSettle(1).isAcknowledged);
  settling.accept(1, "wrong", AcceptAs::baseline);
  EXPECT_FALSE(settling.toSettle(1).isAcknowledged);
}

TEST_F(SettlingTest, AnAcknowledgedPageIsKnownAgainWhateverVariesOnIt) {
  check("shop\n12:00\n");
  SiteRules(database).storeRules(1, {{{PageRule::Use::leaveOut, PageRule::Language::lines, "2"}}, {}});
  settling.acknowledgePage(1, "wrong\n12:01\n");
  KnownPages known(database);
  EXPECT_EQ(known.take(1, false, "wrong\n12:02\n"), KnownStep::silent);
  EXPECT_EQ(known.take(1, false, "worse\n12:02\n"), KnownStep::other);
  EXPECT_EQ(known.take(1, false, "wrong\n12:02\n"), KnownStep::none);
  settling.acknowledgePage(1, "wrong\n12:01\n");
  KnownPages next(database);
  EXPECT_EQ(next.take(1, true, "shop\n12:03\n"), KnownStep::over);
  EXPECT_EQ(Acknowledgements(database).acknowledgementOf(1), std::nullopt);
}

}  // namespace
}  // namespace tarnwick::testing
