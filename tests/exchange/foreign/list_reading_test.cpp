// SPDX-License-Identifier: MIT
#include "exchange/foreign/list_reading.h"

#include <stdexcept>

#include "exchange/foreign/list_packing.h"
#include "foreign_fixture.h"
#include "support/system.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

TEST(ListReadings, HandOverEverythingThatAListHolds) {
  ReadList list;
  list.word = "jet";
  list.list.foreign = true;
  ListedSite site;
  site.line = 7;
  site.idSite = 32767;
  site.site = {"http://a/", "post", true, "9", true, "a@b.cd", "name", std::string("\0\xff", 2)};
  site.site.further["more"] = "value";
  site.postVars = {{"a", "1"}, {"", ""}};
  site.baseline = std::string(100000, '\0');
  site.options["adopt"] = "anything";
  addLine(site.rules, "leave out css div.clock");
  addLine(site.rules, "hole digits at=3 length=2 least=1 most=6 before=a%20b");
  site.state = CheckedState{"2026-01-01 00:00:00", true, 5, -1, std::nullopt};
  site.given.set("url");
  list.list.content.sites = {site, ListedSite{}};
  list.list.content.notes = {{3, "http://b/", {"title", "folder"}, true}};
  list.list.content.settings = {{"smtp", "mail"}, {"clogs", true}};
  list.list.content.log = {{5, "http://a/", false, -3, std::nullopt, "2026-01-01 00:00:00", "page"}};
  for (std::size_t i = 0; i < 30; ++i) {
    list.faults.add(i, "fault " + std::to_string(i));
  }
  const std::string bytes = packed(list);
  const ReadList same = unpacked(bytes);
  EXPECT_EQ(packed(same), bytes);
  EXPECT_EQ(same.list.content.sites[0].state->success, 5);
  EXPECT_EQ(same.list.content.sites[0].site, site.site);
  EXPECT_EQ(same.list.content.sites[1].state, std::nullopt);
  EXPECT_EQ(same.faults.count(), 30U);
  EXPECT_EQ(same.list.content.log[0].errCode, -3);
}

TEST(ListReadings, RaiseWhatTheReadingRaised) {
  ListReading reading(
      "a.csv", "", []() -> std::string { throw std::runtime_error("a.csv: no such file"); }, programFields());
  try {
    reading.finish();
    FAIL();
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "a.csv: no such file");
  }
}

TEST(ListReadings, AFileThatEatsMemoryIsRefused) {
  SKIP_ON_WINDOWS("There files are read in this process.");
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  GTEST_SKIP() << "This build needs more memory than any limit leaves.";
#endif
  std::string sites;
  for (int i = 0; i < 30000; ++i) {
    sites += "http://a.b/" + std::to_string(i) + "\n";
  }
  ListReading reading(
      "a.txt", "addresses", [&] { return sites; }, programFields(), std::size_t{1} << 20U);
  const ReadList read = reading.finish();
  ASSERT_EQ(read.faults.count(), 1U);
  EXPECT_THAT(read.faults.kept().front().text, HasSubstr("not enough memory to read the file"));
}

TEST(ListReadings, ALibraryThatEndsItsProcessEndsNothingElse) {
  SKIP_ON_WINDOWS("There files are read in this process.");
  ListReading reading(
      "a.mdb", "jet", []() -> std::string { std::abort(); }, programFields());
  const ReadList read = reading.finish();
  ASSERT_EQ(read.faults.count(), 1U);
  EXPECT_THAT(read.faults.kept().front().text, HasSubstr("damaged so badly"));
}

}  // namespace
}  // namespace tarnwick::testing
