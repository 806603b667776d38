// SPDX-License-Identifier: MIT
#include "store/alarm_values.h"

#include <gtest/gtest.h>

#include <random>

#include "store/option_table.h"

namespace tarnwick {
namespace {

using std::chrono::minutes;
using std::chrono::seconds;

constexpr int kRounds = 3000;

LocalTime at(std::string_view text) { return *parseDateTime(text); }

/// What is stored for a text, and for that again; empty for none.
template <auto read, auto write>
std::string stored(std::string_view text) {
  const auto value = read(text);
  if (!value) {
    return {};
  }
  const std::string form = write(*value);
  const auto again = read(form);
  EXPECT_TRUE(again) << form;
  EXPECT_EQ(again ? write(*again) : std::string(), form) << text;
  return form;
}

std::string pauses(std::string_view text) { return stored<readPauses, pausesText>(text); }
std::string limit(std::string_view text) { return stored<readUnsteadyLimit, unsteadyLimitText>(text); }
std::string certificate(std::string_view text) { return stored<readCertificateLimits, certificateLimitsText>(text); }
std::string hours(std::string_view text) { return stored<readWeekHours, weekHoursText>(text); }
std::string windows(std::string_view text) { return stored<readDatedWindows, datedWindowsText>(text); }
std::string pause(std::string_view text) { return stored<readPause, pauseText>(text); }
std::string hosts(std::string_view text) { return stored<readHosts, hostsText>(text); }

TEST(AlarmValues, PausesAreSecondsOrMinutes) {
  EXPECT_EQ(pauses("5 s, 20 s"), "5 s, 20 s");
  EXPECT_EQ(pauses(" 5s,20 sec , 2 min"), "5 s, 20 s, 120 s");
  EXPECT_EQ(pauses("90"), "90 s");
  EXPECT_EQ(pauses("5m"), "300 s");
  EXPECT_EQ(pauses("1,2,3,4,5,6,7,8,9,10"), "1 s, 2 s, 3 s, 4 s, 5 s, 6 s, 7 s, 8 s, 9 s, 10 s");
  for (const char* const bad : {"", " ", ",", "5,", "0", "-5", "301", "6 min", "5 h", "5 s 20 s", "five", "5.5",
                                "99999999999999999999", "1,2,3,4,5,6,7,8,9,10,11"}) {
    EXPECT_EQ(readPauses(bad), std::nullopt) << bad;
  }
}

TEST(AlarmValues, RandomPausesComeBack) {
  std::mt19937 random(7);
  for (int round = 0; round < kRounds; ++round) {
    std::vector<seconds> some(1 + random() % 10);
    for (seconds& one : some) {
      one = seconds(1 + random() % 300);
    }
    EXPECT_EQ(readPauses(pausesText(some)), some);
  }
}

TEST(AlarmValues, ALimitOfChangesIsANumberInMinutes) {
  EXPECT_EQ(limit("5 in 30 min"), "5 in 30 min");
  EXPECT_EQ(limit("5in30"), "5 in 30 min");
  EXPECT_EQ(limit(" 100 IN 1440 minutes "), "100 in 1440 min");
  for (const char* const bad : {"", "5", "5 in", "in 30", "0 in 30", "101 in 30", "5 in 0", "5 in 1441", "5 in 30 h",
                                "5 of 30", "5 in 30 min 2"}) {
    EXPECT_FALSE(readUnsteadyLimit(bad)) << bad;
  }
}

TEST(AlarmValues, LimitsOfACertificateAreDaysOrAThird) {
  EXPECT_EQ(certificate("21"), "21");
  EXPECT_EQ(certificate(" 1,21 days, 7d,7"), "21, 7, 1");
  EXPECT_EQ(certificate("7, Third"), "third, 7");
  EXPECT_EQ(certificate("third"), "third");
  EXPECT_EQ(certificate("3650"), "3650");
  for (const char* const bad :
       {"", " ", ",", "7,", "0", "-7", "3651", "7 h", "half", "off", "7 7", "2.5", "1,2,3,4,5,6,7,8,9,10,11"}) {
    EXPECT_FALSE(readCertificateLimits(bad)) << bad;
  }
}

TEST(AlarmValues, HoursOfTheWeekAreTakenAsPeopleWriteThem) {
  EXPECT_EQ(hours("daily 22-6"), "daily 22:00-6:00");
  EXPECT_EQ(hours("every day 22:00 - 6:00"), "daily 22:00-6:00");
  EXPECT_EQ(hours("monday-FRIDAY 18:00-8:00, Sat, sun 0-24"), hours("Mon-Fri 18-8, Sat 0-24, Sun 0-24"));
  EXPECT_EQ(hours("Fri-Mon 3-4"), hours("Mon 3-4, Fri 3-4, Sat 3-4, Sun 3-4"));
  EXPECT_EQ(hours("Mon 1-2, 3-4"), hours("Mon 1-2, Mon 3-4"));
  EXPECT_EQ(hours("none"), "none");
  EXPECT_EQ(hours("daily 0-24"), "daily 0:00-24:00");
  EXPECT_EQ(hours("daily 5-5"), "daily 0:00-24:00");
  for (const char* const bad :
       {"", "22-6", "Mon", "Mon 22", "Mon 22-", "Mon 24-1", "Mon 25-26", "Mon 8:30-9:30", "Mo 8-9", "Mon-Tue-Wed 8-9",
        "Mon 8-9;", "Mon 8-9,", "Mon 8-9, Tue", "xMon 8-9", "daily none"}) {
    EXPECT_FALSE(readWeekHours(bad)) << bad;
  }
}

TEST(AlarmValues, AnEndThatIsNotBehindTheBeginningIsOnTheNextDay) {
  const WeekHours night = *readWeekHours("Sun 22-6");
  EXPECT_TRUE(night.test(hourOfWeek(at("2026-11-22 23:59:59"))));
  EXPECT_TRUE(night.test(hourOfWeek(at("2026-11-23 05:59:59"))));
  EXPECT_FALSE(night.test(hourOfWeek(at("2026-11-23 06:00:00"))));
  EXPECT_FALSE(night.test(hourOfWeek(at("2026-11-22 21:59:59"))));
  EXPECT_EQ(night.count(), 8U);
}

TEST(AlarmValues, RandomMapsOfTheWeekComeBack) {
  std::mt19937 random(11);
  for (int round = 0; round < kRounds; ++round) {
    WeekHours week;
    // From a few hours to almost all of them, single ones and runs.
    const auto share = random() % 9;
    for (std::size_t hour = 0; hour < week.size(); ++hour) {
      week.set(hour, round % 2 == 0                  ? random() % 8 < share
                     : hour > 0 && random() % 6 != 0 ? week.test(hour - 1)
                                                     : random() % 2 == 0);
    }
    const std::string text = weekHoursText(week);
    EXPECT_EQ(readWeekHours(text), week) << text;
  }
}

TEST(AlarmValues, EachHourOfTheWeekHasItsPlace) {
  const LocalTime monday = at("2026-11-23 00:00:00");
  for (std::size_t hour = 0; hour < WeekHours().size(); ++hour) {
    EXPECT_EQ(hourOfWeek(monday + std::chrono::hours(hour)), hour);
    EXPECT_EQ(hourOfWeek(monday + std::chrono::hours(hour) + seconds(3599)), hour);
  }
}

TEST(AlarmValues, DatedWindowsAreTakenWithKindAndNote) {
  EXPECT_EQ(windows("2026-12-01 08:00 to 2026-12-01 12:00"), "2026-12-01 08:00 to 2026-12-01 12:00");
  EXPECT_EQ(windows("2026-12-01 to 2026-12-02T12:00,DO NOT CHECK:  new: server ;2026-12-08 08:00 to 2026-12-08 09:00"),
            "2026-12-01 00:00 to 2026-12-02 12:00, do not check: new: server; 2026-12-08 08:00 to 2026-12-08 09:00");
  EXPECT_EQ(windows("2026-12-01 08:00 to 2026-12-01 12:00, keep alerts"),
            "2026-12-01 08:00 to 2026-12-01 12:00, keep alerts");
  EXPECT_EQ(windows("none"), "none");
  EXPECT_EQ(windows("2026-12-01 08:00 to 2026-12-01 12:00: ; 2026-12-02 08:00 to 2026-12-02 12:00, keep alerts:"),
            "2026-12-01 08:00 to 2026-12-01 12:00; 2026-12-02 08:00 to 2026-12-02 12:00, keep alerts");
  for (const char* const bad :
       {"", "2026-12-01", "2026-12-01 08:00 - 2026-12-01 12:00", "2026-12-01 12:00 to 2026-12-01 08:00",
        "2026-12-01 12:00 to 2026-12-01 12:00", "2026-13-01 to 2026-14-01", "2026-12-01 to 2026-12-02, sleep",
        "2026-12-01 to 2026-12-02, do not check, keep alerts", "2026-12-01 to 2026-12-02;", "tomorrow to 2026-12-02"}) {
    EXPECT_FALSE(readDatedWindows(bad)) << bad;
  }
}

TEST(AlarmValues, RandomDatedWindowsComeBack) {
  std::mt19937 random(13);
  const LocalTime begin = at("2020-01-01");
  const std::vector<std::string> notes{"", "new server", "see: the plan, page 3",
                                       "Umzug \xc3\xbc"
                                       "ber Nacht",
                                       "to 7"};
  for (int round = 0; round < kRounds; ++round) {
    std::vector<DatedWindow> some(1 + random() % 4);
    for (DatedWindow& one : some) {
      one.from = begin + minutes(random() % 10'000'000);
      one.until = one.from + minutes(1 + random() % 100'000);
      if (const auto kind = random() % 3; kind != 0) {
        one.kind = kind == 1 ? QuietKind::keepAlerts : QuietKind::noChecks;
      }
      one.note = notes[random() % notes.size()];
    }
    const std::string text = datedWindowsText(some);
    const auto read = readDatedWindows(text);
    ASSERT_TRUE(read) << text;
    ASSERT_EQ(read->size(), some.size()) << text;
    for (std::size_t i = 0; i < some.size(); ++i) {
      EXPECT_EQ((*read)[i].from, some[i].from) << text;
      EXPECT_EQ((*read)[i].until, some[i].until) << text;
      EXPECT_EQ((*read)[i].kind, some[i].kind) << text;
      EXPECT_EQ((*read)[i].note, some[i].note) << text;
    }
  }
}

TEST(AlarmValues, APauseIsUntilATimeOrForGood) {
  EXPECT_EQ(pause("until 2026-12-01 08:00"), "until 2026-12-01 08:00:00");
  EXPECT_EQ(pause("UNTIL 2026-12-01"), "until 2026-12-01 00:00:00");
  EXPECT_EQ(pause(" For Good "), "for good");
  EXPECT_EQ(pause("off"), "no");
  for (const char* const bad : {"", "yes", "until", "until tomorrow", "2026-12-01", "for 2 h"}) {
    EXPECT_FALSE(readPause(bad)) << bad;
  }
  const LocalTime end = at("2026-12-01 08:00:00");
  EXPECT_TRUE(isPaused({true, end}, end - seconds(1)));
  EXPECT_FALSE(isPaused({true, end}, end));
  EXPECT_TRUE(isPaused({true, std::nullopt}, end));
  EXPECT_FALSE(isPaused({}, end));
}

TEST(AlarmValues, HostsHaveAPortPerhaps) {
  EXPECT_EQ(hosts("example.org,192.0.2.1:53 , [2001:db8::1]:443"), "example.org, 192.0.2.1:53, [2001:db8::1]:443");
  EXPECT_EQ(hosts("NONE"), "none");
  for (const char* const bad : {"", ",", "example.org,", "http://example.org", "example.org/", "a b", "a@b",
                                "example.org:0", "example.org:65536", "example.org:http", ":53"}) {
    EXPECT_FALSE(readHosts(bad)) << bad;
  }
}

TEST(AlarmValues, NoTextEndsTheReading) {
  std::mt19937 random(17);
  const std::string letters = "0123456789 ,;:-.daily MonTueSunin untilforgod\n\"\\to2026T\xc3\0";
  for (int round = 0; round < kRounds; ++round) {
    std::string text(random() % 30, ' ');
    for (char& c : text) {
      c = letters[random() % letters.size()];
    }
    pauses(text);
    limit(text);
    hours(text);
    windows(text);
    pause(text);
    hosts(text);
  }
}

TEST(AlarmValues, EveryOptionRefusesWhatItDoesNotTakeAndNamesIt) {
  for (const OptionField& option : programOptions()) {
    if (option.form == nullptr) {
      continue;
    }
    try {
      option.checked("what is\nthis?");
      ADD_FAILURE() << option.name;
    } catch (const std::runtime_error& error) {
      EXPECT_EQ(std::string(error.what()),
                "The option " + option.name + " does not take \"what is\nthis?\". It takes " + option.takes + ".");
    }
    EXPECT_THROW(option.checked(""), std::runtime_error) << option.name;
  }
}

}  // namespace
}  // namespace tarnwick
