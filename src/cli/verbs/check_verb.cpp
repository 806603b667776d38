// SPDX-License-Identifier: MIT
#include <algorithm>
#include <set>

#include "cli/terminal/json_output.h"
#include "cli/verbs/delivery_words.h"
#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"
#include "engine/cause.h"
#include "platform/interrupts.h"
#include "program/program.h"
#include "store/site_table.h"

namespace tarnwick {
namespace {

// A command that names more is none to be typed.
constexpr std::size_t kMostNamed = 10;

constexpr const char* kDropped =
    "the site was changed, switched off or deleted while it was checked, so its page was dropped; check it again";

struct CheckOptions {
  std::vector<std::int16_t> ids;
  bool due = false;
  bool json = false;
};

/// Shows a pass as it goes on: a line for each site, and on a terminal where the pass stands.
class CheckView final : public SilentView {
 public:
  CheckView(Console& console, bool json) : console_(console), json_(json), array_(console) {}

  /// What the results are told from; set once the program is there.
  void readBaselinesFrom(m& data) { data_ = &data; }

  void showStatus(const std::string& text) override {
    if (!json_) {
      console_.live(console_.worded(text));
    }
  }

  void showResult(const CheckResult& result) override {
    ++(result.passed ? up_ : down_);
    notAPage_ += hasFailureAsBaseline(result) ? 1U : 0U;
    if (json_) {
      array_.add(asJson(result));
      return;
    }
    const std::string state = result.passed ? console_.coloured(Console::Colour::green, "up  ")
                                            : console_.coloured(Console::Colour::red, "down");
    std::string line = state + " " + std::to_string(result.idSite) + " " + visibleText(result.url);
    const std::string why = reasonOf(result);
    line += why.empty() ? why : ": " + why;
    console_.tell(line);
  }

  void showDropped(std::int16_t idSite, const std::string& url) override {
    ++dropped_;
    if (json_) {
      array_.add({{"idSite", idSite},
                  {"url", jsonText(url)},
                  {"status", JsonValue()},
                  {"errCode", 0},
                  {"errDescription", ""},
                  {"cause", kDropped},
                  {"dropped", true}});
    } else {
      console_.tell("drop " + std::to_string(idSite) + " " + visibleText(url) + ": " + kDropped);
    }
  }

  void showLostMail(const LostMail& mail) override {
    console_.complain("Site " + std::to_string(mail.idSite) + ": " + visibleText(mail.why));
  }

  void end() {
    if (json_) {
      array_.end();
    }
    console_.endLive();
  }

  std::size_t up() const { return up_; }
  std::size_t down() const { return down_; }
  std::size_t dropped() const { return dropped_; }
  /// How many of those that are up are so without a page.
  std::size_t notAPage() const { return notAPage_; }

 private:
  JsonValue asJson(const CheckResult& result) {
    JsonValue json{{"idSite", result.idSite},
                   {"url", jsonText(result.url)},
                   {"status", result.passed},
                   {"errCode", result.errCode},
                   {"errDescription", jsonText(result.errDescription)}};
    const std::string why = reasonOf(result);
    json["cause"] = why.empty() ? JsonValue() : JsonValue(why);
    if (hasFailureAsBaseline(result)) {
      json["notAPage"] = true;
    }
    return json;
  }

  std::string reasonOf(const CheckResult& result) {
    return result.passed ? noteOf(result)
                         : causeOf(result, data_->getContentCompare(result.idSite), data_->rulesOf(result.idSite));
  }

  Console& console_;
  bool json_;
  JsonArray array_;
  m* data_ = nullptr;
  std::size_t up_ = 0;
  std::size_t down_ = 0;
  std::size_t dropped_ = 0;
  std::size_t notAPage_ = 0;
};

TextTable chosenSites(m& data, const CheckOptions& options, bool newSitesAtOnce) {
  if (options.due && newSitesAtOnce) {
    return data.getSitesDueOrNeverChecked();
  }
  if (options.ids.empty()) {
    return data.getArraySitesActiveTrue(options.due ? site_choice::due : site_choice::active);
  }
  TextTable chosen(site_column::last);
  for (const std::int16_t id : std::set<std::int16_t>(options.ids.begin(), options.ids.end())) {
    const TextTable site = data.getArraySites(id);
    if (id <= 0 || site.lastRow() == 0) {
      throw noSuchSite(id);
    }
    const std::size_t row = chosen.addRow();
    for (std::size_t column = site_column::idSite; column <= site_column::last; ++column) {
      chosen.at(column, row) = site.at(column, 1);
    }
  }
  return chosen;
}

// Originally a site that was never checked is never due, and who only ever asks for those that are would never hear of
// it.
void tellWhatIsNeverDue(Console& console, m& data) {
  std::size_t count = 0;
  std::string ids;
  for (const std::int64_t id : data.idsNeverChecked()) {
    if (++count <= kMostNamed) {
      ids += " " + std::to_string(id);
    }
  }
  if (count > 0) {
    console.complain("Left out, since never checked: " + std::to_string(count) + (count == 1 ? " site" : " sites") +
                     ". Check once with: tarnwickctl check" + (count > kMostNamed ? "" : ids));
  }
}

int check(Tool& tool, const CheckOptions& options) {
  Console& console = tool.console();
  CheckView view(console, options.json);
  Program program(tool.programFolder(), tool.services(), view);
  view.readBaselinesFrom(program.data());
  const Interrupts interrupts([&program] { program.close(); });

  const OptionsInForce inForce = program.data().optionsInForce();
  const bool newSitesAtOnce = inForce.newSitesAtOnce();
  TextTable sites = chosenSites(program.data(), options, newSitesAtOnce);
  if (options.ids.empty()) {
    program.run().obey(inForce);
    sites = program.run().withoutResting(std::move(sites));
  }
  const std::size_t count = sites.lastRow();
  if (count == 0) {
    console.complain(options.due ? "No site is due."
                                 : "There is no active site to check. Add one with: tarnwickctl add URL");
  }
  if (options.due && !newSitesAtOnce) {
    tellWhatIsNeverDue(console, program.data());
  }
  bool whole = true;
  try {
    whole = program.run().testOnce(std::move(sites));
  } catch (const FullCounter& notice) {
    console.complain(visibleText(notice.what()));  // every site has been checked, and recorded
  } catch (...) {
    view.end();
    throw;
  }
  view.end();
  if (program.run().network().offlineSince()) {
    console.complain("This machine is offline. " + std::to_string(view.up() + view.down()) + " of " +
                     std::to_string(count) + " sites were checked, and nothing is counted as down.");
    return exit_status::failed;
  }
  if (!whole) {
    console.complain("Interrupted: " + std::to_string(view.up() + view.down()) + " of " + std::to_string(count) +
                     " sites were checked.");
    return exit_status::failed;
  }
  deliverAndTell(console, program.data(), tool.services());
  if (view.down() > 0) {
    return exit_status::down;
  }
  if (view.dropped() > 0) {
    return exit_status::dropped;
  }
  return view.notAPage() > 0 ? exit_status::notAPage : exit_status::ok;
}

}  // namespace

Verb checkVerb() {
  auto options = std::make_shared<CheckOptions>();
  return Verb{
      "check",
      "Check sites once, now: all active ones, those named, or those that are due",
      {{"ID", &options->ids, "The sites to check, active or not"},
       {.name = "--due",
        .target = &options->due,
        .meaning = "Only the active sites whose interval has elapsed; one that was never checked is none of them",
        .excludes = "ID"},
       jsonOption(options->json)},
      "Each result is recorded, and each failure raises the alerts that the settings switch on, as in a run.\n"
      "Exit status: 0 when every site is up, 1 when one is down, 2 when the check could not be made,\n"
      "3 when none is down, but one was changed, switched off or deleted meanwhile and its page was dropped,\n"
      "4 when neither is so, but one is up only because its baseline is the text of a fetch that fails.\n" +
          examples({{"check", "every active site, a line each"},
                    {"check 3 7", "two sites"},
                    {"check --due --json", "what is due, for a script"}}),
      [options](Tool& tool) { return check(tool, *options); }};
}

}  // namespace tarnwick
