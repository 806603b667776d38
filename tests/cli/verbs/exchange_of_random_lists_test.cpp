// SPDX-License-Identifier: MIT
// A list that is exported and imported is the list that it was, whatever it holds.
#include <array>
#include <fstream>
#include <iterator>
#include <numeric>
#include <tuple>

#include "cli/support/tool_fixture.h"
#include "program/site_draft.h"
#include "store/site_history.h"
#include "support/fresh_seed.h"

namespace tarnwick::testing {
namespace {

enum class Form { pagesApart, oneTable };

class ExchangeOfRandomLists : public ToolFixture, public ::testing::WithParamInterface<std::tuple<const char*, Form>> {
 protected:
  static std::string file(const ProgramFolder& list) {
    return list.file(std::string("sites.") + std::get<0>(GetParam()));
  }
  static std::string bytesOf(const std::string& path) {
    std::ifstream read(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(read), {}};
  }
  /// Everything that a list says of its sites but what checks have found.
  static std::string contents(const ProgramFolder& list) {
    return list.queryRows(
               "select idSite, hex(url), hex(method), active, tInterval, alertEmail, hex(email), hex(sUserName), "
               "hex(sPassWord), hex(content_compare) from sites order by idSite") +
           list.queryRows("select idSite, hex(pname), hex(pvalue) from postVars order by idSite, idPostVars") +
           list.queryRows("select idSite, name, value from siteOptions order by idSite, name");
  }

  /// Any bytes; without line ends and NUL for what is one line.
  std::string text(bool oneLine) {
    static const std::array<std::string, 12> kTraps{
        "\"", ",", ";", "'", "=1+1", "\\u0000", " ", "NULL", "True", "ä", "\xf0\x9f\x99\x82", "\xc3"};
    std::string made;
    for (std::size_t left = dice_.below(8); left > 0; --left) {
      char byte = static_cast<char>(dice_.below(256));
      if (oneLine && (byte == '\r' || byte == '\n' || byte == '\0')) {
        byte = '\t';
      }
      made += dice_.oneIn(2) ? dice_.oneOf(kTraps) : std::string(1, byte);
    }
    return made;
  }
  std::string address() {
    std::string made = "http://a/" + text(true);
    std::erase_if(made, [](char c) { return (c >= '\0' && c < ' ') || c == '\x7f'; });
    return made;
  }
  std::string page() {
    std::string made = text(false);
    for (std::size_t doubled = dice_.below(12); doubled > 0; --doubled) {
      made += made + text(false);
    }
    return made;
  }
  /// Some that a single site may have. What is read out of a text is odd where it may be.
  void storeRandomOptions(m& data, std::int16_t id) {
    std::string note = text(true);
    std::erase(note, ';');
    const OptionValues some{{"adopt", dice_.oneIn(2) ? "pages only" : "anything"},
                            {"alerts", dice_.oneIn(2) ? "on" : "off"},
                            {"confirm", std::to_string(dice_.between(1, 20))},
                            {"confirmAfter", std::to_string(dice_.between(1, 300)) + ", 2 min"},
                            {"recovery", dice_.oneIn(2) ? "on" : "off"},
                            {"remind", dice_.oneIn(2) ? "every check" : std::to_string(dice_.between(1, 10080))},
                            {"flapping", dice_.oneIn(2) ? "off" : "5 in 30 min"},
                            {"slow", dice_.oneIn(2) ? "off" : std::to_string(dice_.between(1, 600000))},
                            {"quiet", dice_.oneIn(2) ? "none" : "Mon-Fri 22-6, Sat, Sun 0-24"},
                            {"quietHow", dice_.oneIn(2) ? "keep alerts" : "do not check"},
                            {"maintenance", "2026-12-01 08:00 to 2026-12-01 12:00, do not check: " + note +
                                                "; 2026-12-02 to 2026-12-03: x"},
                            {"pause", dice_.oneIn(2) ? "for good" : "until 2026-12-01 08:00"}};
    for (const auto& [name, value] : some) {
      if (dice_.oneIn(2)) {
        data.setOption(id, name, value);
      }
    }
  }
  void addRandomSite(m& data, std::int16_t id) {
    static const std::array<const char*, 4> kMethods{"get", "post", "POST", "Get"};
    const bool alerts = dice_.oneIn(2);
    SiteDraft site{address(), dice_.oneOf(kMethods),          dice_.oneIn(2), std::to_string(dice_.between(1, 32767)),
                   alerts,    alerts ? "a@b.cd" : text(true), text(true),     text(false)};
    std::vector<PostVar> vars(dice_.below(4));
    for (PostVar& var : vars) {
      var = {text(false), text(false)};
    }
    data.addSite(id);
    storeSite(data, id, site, vars);
    if (!dice_.oneIn(4)) {
      data.updateContentCompare(id, page());
    }
    storeRandomOptions(data, id);
    checkAtRandom(data, id);
  }
  /// As a run would, over some days.
  void checkAtRandom(m& data, std::int16_t id) {
    SiteHistory history(data.database());
    ASSERT_TRUE(history.canBeKept());
    Moment at(std::chrono::seconds(1'795'000'000 + dice_.below(1'000'000)));
    Transaction whole(data.database());
    for (std::size_t left = dice_.below(60); left > 0; --left) {
      const bool up = !dice_.oneIn(3);
      history.take(id, {.check = {at, up, up ? "" : text(true), std::chrono::milliseconds(dice_.below(60'000))},
                        .interval = std::chrono::minutes(dice_.between(1, 200))});
      at += std::chrono::seconds(dice_.below(30'000));
    }
    whole.commit();
  }
  void fill(const ProgramFolder& list) {
    m data(list.path(), machine.services());
    std::vector<std::int16_t> ids(40);
    std::iota(ids.begin(), ids.end(), std::int16_t{1});
    ids.back() = 32767;
    std::ranges::shuffle(ids, dice_.engine());
    ids.resize(dice_.below(12));
    for (const std::int16_t id : ids) {
      addRandomSite(data, id);
    }
    data.storeOptions(kAllSites, {{"parallel", dice_.oneIn(2) ? "auto" : "7"},
                                  {"mailLimit", std::to_string(dice_.between(1, 3600))}});
    if (dice_.oneIn(2)) {
      data.setOption(kAllSites, "newSites", "at once");
      data.setOption(kAllSites, "witnesses", "example.org, [2001:db8::1]:53");
      data.setOption(kAllSites, "ownNetwork", "on");
      storeRandomOptions(data, kAllSites);
    }
  }

  FreshSeed dice_;
  const ::testing::ScopedTrace trace_{__FILE__, __LINE__, dice_.again()};
};

INSTANTIATE_TEST_SUITE_P(Formats, ExchangeOfRandomLists,
                         ::testing::Combine(::testing::Values("csv", "json"),
                                            ::testing::Values(Form::pagesApart, Form::oneTable)),
                         [](const auto& chosen) {
                           return std::string(std::get<0>(chosen.param)) +
                                  (std::get<1>(chosen.param) == Form::pagesApart ? "PagesApart" : "OneTable");
                         });

TEST_P(ExchangeOfRandomLists, ExportAndImportAreTheIdentity) {
  const ProgramFolder from;
  if (std::get<1>(GetParam()) == Form::oneTable) {
    from.laySitesAsOneTable();
  }
  fill(from);
  ASSERT_EQ(run({"--folder", from.path(), "export", file(from), "--baselines", "--with-history"}), exit_status::ok)
      << err;
  EXPECT_EQ(err, "");

  const ProgramFolder to(ProgramFolder::Options::recommended);
  ASSERT_EQ(run({"--folder", to.path(), "import", file(from)}), exit_status::ok) << err;
  EXPECT_EQ(contents(to), contents(from));
  ASSERT_EQ(run({"--folder", to.path(), "export", file(to), "--baselines", "--with-history"}), exit_status::ok) << err;
  EXPECT_EQ(bytesOf(file(to)), bytesOf(file(from)));

  // Over a list of others: these go, and what is the same already is left alone.
  const ProgramFolder other;
  fill(other);
  ASSERT_EQ(run({"--folder", other.path(), "import", file(from), "--replace", "--yes"}), exit_status::ok) << err;
  EXPECT_EQ(contents(other), contents(from));
  const std::string count = from.queryText("select count(*) from sites");
  ASSERT_EQ(run({"--folder", other.path(), "import", file(from), "--replace", "--yes"}), exit_status::ok) << err;
  EXPECT_EQ(out, "0 added, 0 changed, 0 deleted, " + count + " unchanged.\n");
}

}  // namespace
}  // namespace tarnwick::testing
