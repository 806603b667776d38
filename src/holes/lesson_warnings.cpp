// SPDX-License-Identifier: MIT
#include "holes/lesson_warnings.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "base/visible_text.h"
#include "holes/date_form.h"
#include "holes/judge.h"

namespace tarnwick {
namespace {

/// More dates of today than that need not be named one by one.
constexpr std::size_t kMostDates = 3;
constexpr std::size_t kMostTexts = 3;
constexpr std::size_t kFewestCopies = 4;
constexpr std::size_t kShown = 40;
constexpr int kMinutesOfTheClock = 2;

bool isInHole(const Holes& holes, const DateFound& date) {
  return std::ranges::any_of(holes,
                             [&](const Hole& hole) { return hole.begin < date.end() && date.begin < hole.end(); });
}

// The page may be made in another time zone, so that it is a day ahead or behind.
bool isToday(const DateRead& read, LocalTime now) {
  for (const int distance : {-1, 0, 1}) {
    const std::chrono::year_month_day day(std::chrono::floor<std::chrono::days>(now) + std::chrono::days(distance));
    if (read.mayBeOn(day)) {
      return true;
    }
  }
  return false;
}

bool isNow(const DateRead& read, LocalTime now) {
  const std::chrono::hh_mm_ss time(now - std::chrono::floor<std::chrono::days>(now));
  const auto minutes = static_cast<int>(time.hours().count() * 60 + time.minutes().count());
  return read.hour && read.minute && std::abs(*read.hour * 60 + *read.minute - minutes) <= kMinutesOfTheClock;
}

std::string warningOf(std::string_view page, const DateFound& date) {
  return "Line " + std::to_string(lineOf(page, date.begin)) + ": \"" +
         visibleText(page.substr(date.begin, std::min(date.length, kShown))) +
         "\" may be another date or time tomorrow, though it has not changed yet. Fetch again over a day.";
}

void warnOfDates(std::string_view page, const Holes& holes, LocalTime now, std::vector<std::string>& warnings) {
  std::size_t told = 0;
  for (auto date = nextDate(page, 0); date && told < kMostDates; date = nextDate(page, date->end())) {
    const auto read = readDate(page.substr(date->begin), date->form);
    if (!read || isInHole(holes, *date)) {
      continue;
    }
    if (date->hasDate ? isToday(*read, now) : isNow(*read, now)) {
      warnings.push_back(warningOf(page, *date));
      ++told;
    }
  }
}

// A place in which the copies fall into two groups says little of what else may stand there.
void warnOfTwoTexts(std::span<const std::string> copies, const Holes& holes, std::vector<std::string>& warnings) {
  if (copies.size() < kFewestCopies) {
    return;
  }
  std::vector<std::set<std::string_view>> texts(holes.size());
  for (const std::string_view copy : copies) {
    const Judgement judged = judge(copies.front(), holes, copy);
    for (std::size_t i = 0; judged.same && i < holes.size(); ++i) {
      texts[i].insert(copy.substr(judged.values[i].begin, judged.values[i].length));
    }
  }
  std::size_t told = 0;
  for (std::size_t i = 0; i < holes.size() && told < kMostTexts; ++i) {
    const bool areWords =
        holes[i].kind == HoleClass::text || holes[i].kind == HoleClass::letters || holes[i].kind == HoleClass::anything;
    if (areWords && texts[i].size() == 2) {
      warnings.push_back("Line " + std::to_string(lineOf(copies.front(), holes[i].begin)) +
                         ": only two different texts were seen there; what else it may say is a guess. Fetch again "
                         "over a day.");
      ++told;
    }
  }
}

}  // namespace

std::size_t lineOf(std::string_view text, std::size_t at) {
  const std::string_view before = text.substr(0, at);
  return static_cast<std::size_t>(std::ranges::count(before, '\n')) + 1;
}

std::vector<std::string> warningsOf(std::span<const std::string> copies, const Holes& holes, LocalTime now) {
  std::vector<std::string> warnings;
  const std::string& page = copies.front();
  const double watched = watchedShare(page, holes);
  if (watched < kLeastWatched) {
    warnings.push_back("Only " + std::to_string(static_cast<int>(watched * 100)) +
                       " % of the page would stay watched: too much of it changes.");
  }
  if (std::ranges::any_of(copies, [&](const std::string& copy) {
        return copy.size() * 2 < page.size() || page.size() * 2 < copy.size();
      })) {
    warnings.emplace_back("The copies have very different lengths: one of them may be another page, or an error.");
  }
  warnOfTwoTexts(copies, holes, warnings);
  warnOfDates(page, holes, now, warnings);
  return warnings;
}

}  // namespace tarnwick
