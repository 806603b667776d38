// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <sstream>
#include <utility>

#include "engine/alarm_oracle.h"
#include "engine/alarm_rule.h"
#include "engine/alert_words.h"
#include "support/fresh_seed.h"

namespace tarnwick::testing {
namespace {

using std::chrono::hours;
using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;
using Kinds = std::vector<AlertKind>;

constexpr int kStories = 10'000;
constexpr seconds kYear = hours(365 * 24);

/// When the program dies between two writes of a step.
enum class Kill { none, beforeTelling, afterTelling };

/// One thing that happens to a site, so long after the one before; a clock that is set back makes that less than
/// nothing.
struct Happening {
  seconds after{0};
  std::optional<CheckOutcome> check{};
  std::optional<AlarmPolicy> policy{};  ///< from now on
  Kill kill = Kill::none;
};

struct Story {
  LocalTime begin;
  AlarmPolicy policy;
  std::vector<Happening> happenings;
};

std::string text(const Kinds& kinds) { return "[" + wordsOf(kinds) + "]"; }

std::string text(std::optional<seconds> pause) { return pause ? std::to_string(pause->count()) + " s" : "none"; }

std::string text(const AlarmPolicy& policy) {
  std::ostringstream all;
  all << "alerts " << policy.alerts << ", confirm " << policy.confirm << " after " << pausesText(policy.confirmAfter)
      << ", recovery " << policy.recovery << ", remind kind " << static_cast<int>(policy.remind.kind) << " every "
      << policy.remind.every.count() << " min, flapping "
      << (policy.unsteady ? unsteadyLimitText(*policy.unsteady) : "unset") << ", slow "
      << (policy.slow ? std::to_string(policy.slow->count()) : "unset") << ", quiet " << weekHoursText(policy.quiet)
      << ", maintenance " << datedWindowsText(policy.maintenance) << ", pause " << pauseText(policy.pause);
  return all.str();
}

/// What is wrong with the step by what holds whatever the policy; nothing when all is well.
std::string faultOf(const AlarmStep& step, const Kinds& owedBefore) {
  const Kinds& owed = step.standing.owed;
  if (owed.size() < owedBefore.size() || !std::equal(owedBefore.begin(), owedBefore.end(), owed.begin())) {
    return "something that is owed is lost";
  }
  std::map<AlertKind, int> news;
  for (std::size_t i = owedBefore.size(); i < owed.size(); ++i) {
    if (++news[owed[i]] > 1) {
      return "two of a kind";
    }
  }
  return step.alerts.empty() || step.alerts == owed ? "" : "other than what is owed is told";
}

/// Lets the story happen to the rule and to the oracle. What they differ in, with all that has happened until then;
/// nothing when they agree.
std::string differenceIn(const Story& story) {
  std::ostringstream told;
  SiteStanding standing;
  AlarmOracle oracle;
  AlarmPolicy policy = story.policy;
  LocalTime now = story.begin;
  told << text(policy) << "\n";
  for (const Happening& happening : story.happenings) {
    now += happening.after;
    if (happening.policy) {
      policy = *happening.policy;
      told << text(policy) << "\n";
    }
    const bool mayBringSomething = happening.check || waitsForTime(standing, policy);
    const Kinds owedBefore = standing.owed;
    const AlarmStep step = decideAlarm(standing, happening.check, policy, now);
    const AlarmOracle::Answer wanted = oracle.ask(happening.check, policy, now);

    told << dateTimeText(now) << " "
         << (!happening.check          ? "time"
             : happening.check->passed ? "passed after " + std::to_string(happening.check->took.count()) + " ms"
                                       : "failed")
         << (happening.kill == Kill::none            ? ""
             : happening.kill == Kill::beforeTelling ? ", killed before"
                                                     : ", killed")
         << ": " << text(step.alerts) << ", owed " << text(step.standing.owed) << ", repeated after "
         << text(step.repeatAfter) << "\n";
    std::string fault = faultOf(step, owedBefore);
    if (step.alerts != wanted.alerts || step.standing.owed != wanted.owed || step.repeatAfter != wanted.repeatAfter) {
      fault = "wanted " + text(wanted.alerts) + ", owed " + text(wanted.owed) + ", repeated after " +
              text(wanted.repeatAfter);
    } else if (!mayBringSomething && !step.alerts.empty()) {
      fault = "nobody would have asked";
    }
    if (!fault.empty()) {
      told << fault << "\n";
      return told.str();
    }
    standing = step.standing;
    if (happening.kill == Kill::none && !step.alerts.empty()) {
      standing.owed.clear();
      oracle.settle();
    }
  }
  return "";
}

/// The story without all that the difference does not need.
Story shortened(Story story) {
  for (bool goesOn = true; goesOn;) {
    goesOn = false;
    for (std::size_t i = story.happenings.size(); i-- > 0;) {
      Story without = story;
      // Once leaving the time out, once keeping it.
      const seconds after = without.happenings[i].after;
      without.happenings.erase(without.happenings.begin() + static_cast<std::ptrdiff_t>(i));
      Story later = without;
      if (i < later.happenings.size()) {
        later.happenings[i].after += after;
      }
      for (const Story& shorter : {without, later}) {
        if (!differenceIn(shorter).empty()) {
          story = shorter;
          goesOn = true;
          break;
        }
      }
    }
  }
  return story;
}

/// Makes up stories.
class Teller {
 public:
  Story story() {
    const LocalTime begin =
        std::chrono::local_days(std::chrono::year(2026) / 3 / 26) + seconds(dice_.between(0, 7 * 24 * 3600));
    Story story{.begin = begin, .policy = dice_.oneIn(20) ? AlarmPolicy() : policy(begin), .happenings = {}};
    const bool changesPolicy = dice_.oneIn(4);
    const bool setsClock = dice_.oneIn(4);
    const bool kills = dice_.oneIn(2);
    const std::size_t oftenPasses = dice_.below(5) + 1;
    for (auto left = dice_.between(3, 40); left > 0; --left) {
      Happening next{.after = wait(setsClock)};
      if (!dice_.oneIn(5)) {
        next.check = check(oftenPasses);
      }
      if (changesPolicy && dice_.oneIn(8)) {
        next.policy = dice_.oneIn(2) ? policy(begin) : paused(story.policy, begin);
      }
      if (kills && dice_.oneIn(4)) {
        next.kill = dice_.oneIn(2) ? Kill::beforeTelling : Kill::afterTelling;
      }
      story.happenings.push_back(std::move(next));
    }
    // Whatever is still owed in the end.
    story.happenings.push_back({.after = hours(1), .check = check(oftenPasses), .policy = AlarmPolicy()});
    return story;
  }
  std::string again() const { return dice_.again(); }

 private:
  /// Mostly such that limits are hit to the second.
  seconds wait(bool setsClock) {
    if (setsClock && dice_.oneIn(6)) {
      const std::array<seconds, 5> jumps{hours(1), hours(24), kYear, minutes(dice_.between(1, 600)), seconds(1)};
      return dice_.oneOf(jumps) * (dice_.oneIn(3) ? 1 : -1);
    }
    const std::array<seconds, 10> usual{seconds(0),
                                        seconds(5),
                                        seconds(20),
                                        minutes(1),
                                        minutes(5),
                                        minutes(10),
                                        minutes(30),
                                        hours(1),
                                        minutes(dice_.between(1, 300)),
                                        seconds(dice_.between(0, 7200))};
    return dice_.oneOf(usual);
  }
  CheckOutcome check(std::size_t oftenPasses) {
    const bool passed = dice_.below(6) < oftenPasses;
    return {.passed = passed,
            .error = passed ? "" : "refused",
            .took = milliseconds(dice_.oneIn(2) ? 100 : dice_.between(1999, 2002))};
  }
  AlarmPolicy policy(LocalTime begin) {
    AlarmPolicy policy;
    policy.alerts = !dice_.oneIn(30);
    policy.confirm = static_cast<int>(dice_.oneIn(2) ? 1 : dice_.between(2, 4));
    for (auto pauses = dice_.oneIn(2) ? 0 : dice_.between(1, 3); pauses > 0; --pauses) {
      policy.confirmAfter.emplace_back(dice_.between(1, 300));
    }
    policy.recovery = !dice_.oneIn(4);
    const std::array<Reminders::Kind, 4> kinds{Reminders::Kind::everyCheck, Reminders::Kind::never,
                                               Reminders::Kind::regular, Reminders::Kind::growing};
    const std::array<minutes, 5> every{minutes(1), minutes(10), minutes(60), minutes(90),
                                       minutes(dice_.between(1, 300))};
    policy.remind = {.kind = dice_.oneOf(kinds), .every = dice_.oneOf(every)};
    if (dice_.oneIn(2)) {
      const std::array<minutes, 4> within{minutes(5), minutes(30), minutes(60), minutes(dice_.between(1, 1440))};
      policy.unsteady = UnsteadyLimit{.changes = static_cast<int>(dice_.between(1, 5)), .within = dice_.oneOf(within)};
    }
    if (dice_.oneIn(2)) {
      policy.slow = milliseconds(2000);
    }
    policy.quietKind = dice_.oneIn(2) ? QuietKind::keepAlerts : QuietKind::noChecks;
    if (dice_.oneIn(3)) {
      policy.quiet = *readWeekHours(dice_.oneIn(2) ? "daily 22-6" : "Mon-Fri 18:00-8:00, Sat, Sun 0-24");
    } else if (dice_.oneIn(4)) {
      for (std::size_t hour = 0; hour < policy.quiet.size(); ++hour) {
        policy.quiet[hour] = dice_.oneIn(3);
      }
    }
    for (auto windows = dice_.oneIn(3) ? dice_.between(1, 2) : 0; windows > 0; --windows) {
      const LocalTime from = moment(begin);
      policy.maintenance.push_back(
          {.from = from, .until = from + minutes(dice_.between(1, 300)), .kind = {}, .note = ""});
    }
    return dice_.oneIn(8) ? paused(policy, begin) : policy;
  }
  AlarmPolicy paused(AlarmPolicy policy, LocalTime begin) {
    policy.pause.isOn = dice_.oneIn(2);
    policy.pause.until = dice_.oneIn(4) ? std::nullopt : std::optional(moment(begin));
    return policy;
  }
  LocalTime moment(LocalTime begin) { return begin + minutes(dice_.between(0, 24 * 60)); }

  FreshSeed dice_;
};

TEST(AlarmStorm, TellsWhatASecondReadingOfTheRulesTells) {
  Teller teller;
  for (int i = 0; i < kStories; ++i) {
    const Story story = teller.story();
    if (!differenceIn(story).empty()) {
      FAIL() << "story " << i << " of " << teller.again() << ":\n" << differenceIn(shortened(story));
    }
  }
}

}  // namespace
}  // namespace tarnwick::testing
