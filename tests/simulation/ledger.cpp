// SPDX-License-Identifier: MIT
#include "simulation/ledger.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "engine/result_recording.h"

namespace tarnwick::simulation {
namespace {

using namespace std::chrono_literals;

std::string rowText(std::int64_t idSite, std::string_view url, bool passed, std::int64_t errCode) {
  return std::to_string(idSite)
      .append("|")
      .append(url)
      .append("|")
      .append(passed ? "1" : "0")
      .append("|")
      .append(std::to_string(errCode));
}

/// Results that come together are in the log at once, and shown one after the other.
constexpr std::size_t kMostTogether = 16;

/// How long a failure may take to be counted that could not be at once: the program tries it with the ticks of the
/// lamps, which are rare here.
constexpr Time kCountedLater = 1h;

bool isFailure(const std::string& row) { return row.find("|0|") != std::string::npos; }

}  // namespace

void Ledger::fail(const std::string& what) {
  if (hasFailed()) {
    return;
  }
  failure_ = what;
  world_.journal.add("FAILED", what);
  for (SimulatedPump* const pump : world_.pumps) {
    pump->close();
  }
}

void Ledger::shown(const CheckResult& result) {
  ++results_;
  alertWatch_.shown(result);
  answerWatch_.told(std::string(result.url));
  sawSign();
  excuse(result.idSite, Time(0));
  if (known_) {
    expected_.push_back({result.idSite, rowText(result.idSite, result.url, result.passed, result.errCode)});
    ++(result.passed ? seen_[result.idSite].success : seen_[result.idSite].failure);
  }
}

void Ledger::started(const std::vector<std::string>& program) {
  if (const std::int16_t site = AlertWatch::siteOfProgram(program)) {
    ++alerts_[site];
  }
}

void Ledger::setFails(bool& what, bool fails) {
  answerWatch_.forget();
  if (what && !fails) {
    recounts_ = known_ && &what == &diskFails_ && !memoryFails_;
    known_ = false;
    settlesFrom_ = world_.agenda.now() + kCountedLater;
  }
  what = fails;
}

void Ledger::settle() {
  if (!known_ && !diskFails_ && !memoryFails_ && world_.agenda.now() >= settlesFrom_ && !world_.isDead()) {
    try {
      if (std::exchange(recounts_, false)) {
        recount();
      }
      begin();
    } catch (const std::exception&) {
      // It cannot be looked into just now.
    }
  }
}

void Ledger::begin() {
  logBefore_ = logAtBegin_ = lastLogRow(world_);
  countersBefore_ = counters();
  expected_.clear();
  seen_.clear();
  alerts_.clear();
  known_ = true;
}

// What could not be counted while the disk failed has been by now.
void Ledger::recount() {
  ++comparisons_;
  const std::map<std::int16_t, Counts> now = counters();
  for (const auto& [id, before] : countersBefore_) {
    const std::string logged =
        askDatabase(world_, "select coalesce(sum(status), 0), coalesce(sum(not status), 0) from log where rowid > " +
                                std::to_string(logAtBegin_) + " and idSite = " + std::to_string(id))
            .front();
    if (const auto found = now.find(id); found != now.end()) {
      const Counts& counts = found->second;
      const std::string counted =
          std::to_string(counts.success - before.success) + "|" + std::to_string(counts.failure - before.failure);
      if (counted != logged) {
        fail("site " + std::to_string(id) + " has passed and failed " + logged + " times, and " + counted +
             " of them were counted");
        return;
      }
    }
  }
}

std::vector<std::string> Ledger::newLogRows() const {
  return askDatabase(world_, "select idSite, url, status, errCode from log where rowid > " +
                                 std::to_string(logBefore_) + " order by rowid");
}

std::map<std::int16_t, Ledger::Counts> Ledger::counters() const {
  std::map<std::int16_t, Counts> all;
  for (const std::string& row :
       askDatabase(world_, "select idSite, coalesce(success, 0), coalesce(failure, 0) from sites order by idSite")) {
    const std::size_t first = row.find('|');
    const std::size_t second = row.find('|', first + 1);
    all[static_cast<std::int16_t>(std::stoi(row))] = {std::stoll(row.substr(first + 1)),
                                                      std::stoll(row.substr(second + 1))};
  }
  return all;
}

void Ledger::compare() {
  if (!known_) {
    return;
  }
  try {
    ++comparisons_;
    compareLog(false);
    if (!diskFails_ && !memoryFails_) {
      compareCounters(false);
    }
  } catch (const std::exception& error) {
    fail(std::string("the list cannot be looked into: ") + error.what());
  }
}

void Ledger::compareAfterDeath() {
  try {
    const std::vector<std::string> sound = askDatabase(world_, "pragma integrity_check");
    if (sound != std::vector<std::string>{"ok"}) {
      fail("the list is damaged after the end of its processes: " + (sound.empty() ? "" : sound.front()));
      return;
    }
    if (known_) {
      compareLog(true);
    }
    if (known_ && !diskFails_ && !memoryFails_) {
      compareCounters(true);
    }
    disturb();
    diskFails_ = false;
    memoryFails_ = false;
    settlesFrom_ = {};
    settle();
  } catch (const std::exception& error) {
    fail(std::string("the list cannot be opened after the end of its processes: ") + error.what());
  }
}

// A failure is in the log before its alerts go out, and shown after them: not at all when the process ends in between,
// nor when the disk fails the alerts.
void Ledger::compareLog(bool afterDeath) {
  const std::vector<std::string> rows = newLogRows();
  std::size_t row = 0;
  for (const Row& wanted : expected_) {
    while (row < rows.size() && rows[row] != wanted.text && (memoryFails_ || (diskFails_ && isFailure(rows[row])))) {
      ++row;
    }
    if (row >= rows.size()) {
      fail("a result was shown and is not in the log: " + wanted.text);
      return;
    }
    if (rows[row] != wanted.text) {
      fail("the log says " + rows[row] + " where " + wanted.text + " was shown");
      return;
    }
    ++row;
  }
  if (!diskFails_ && !memoryFails_ && row + (afterDeath ? kMostTogether : 1) < rows.size()) {
    fail("the log has results that were never shown, the first one: " + rows[row]);
    return;
  }
  unshown_ = row < rows.size();
  if (row == rows.size()) {
    logBefore_ = lastLogRow(world_);
    expected_.clear();
  }
}

// The counter of a failure comes after its alerts, too.
void Ledger::compareCounters(bool afterDeath) {
  std::int64_t pending = afterDeath ? static_cast<std::int64_t>(kMostTogether) : unshown_ ? 1 : 0;
  for (const auto& [id, now] : counters()) {
    const Counts before = countersBefore_.contains(id) ? countersBefore_[id] : Counts{};
    const Counts seen = seen_.contains(id) ? seen_[id] : Counts{};
    const std::int64_t success = now.success - before.success - seen.success;
    const std::int64_t failure = now.failure - before.failure - seen.failure;
    const auto isOff = [&](std::int64_t by) { return by < 0 || by > pending; };
    if (isOff(success) || isOff(failure)) {
      fail("the counters of site " + std::to_string(id) + " are off by " + std::to_string(success) + " and " +
           std::to_string(failure));
      return;
    }
    pending -= success + failure;
    const std::int64_t alerted = alerts_.contains(id) ? alerts_[id] : 0;
    if (alerted < seen.failure || alerted > seen.failure + 1) {
      fail("site " + std::to_string(id) + " has failed " + std::to_string(seen.failure) + " times and alerted " +
           std::to_string(alerted) + " times");
      return;
    }
  }
}

void Ledger::watchLiveness() {
  const Time now = world_.agenda.now();
  if (now < excusedUntil_) {
    return;
  }
  watchChecks();
  watchPages();
  alertWatch_.watch(excusedUntil_);
  if (now - std::max(lastSign_, excusedUntil_) > kLatest) {
    fail("the run has shown nothing for more than a quarter of an hour");
  }
}

// Of a log with a bound the oldest pages are emptied, and no more of them than there must be. On a full disk a page is
// not kept in the first place, which its row says. The newest rows tell enough, of a list with the least bound.
void Ledger::watchPages() {
  constexpr std::int64_t kMost = std::int64_t{1} << 20U;
  constexpr std::int64_t kLongestPage = 16'000;
  constexpr std::uint64_t kNewest = 5000;
  if (askDatabase(world_, "select 1 from siteOptions where idSite = 0 and name = 'logLimit' and value = '1'").empty()) {
    return;
  }
  const std::uint64_t last = lastLogRow(world_);
  const std::string pages =
      askDatabase(
          world_,
          std::string("with pages as (select rowid as id, length(cast(content as blob)) as bytes from log where "
                      "status = 0 and rowid > ") +
              std::to_string(last - std::min(last, kNewest)) + " and errDescription <> '" + kPageNotKept +
              "') select coalesce(sum(bytes), 0), coalesce(max(id) filter (where bytes = 0), 0), "
              "coalesce(min(id) filter (where bytes > 0), 9e15) from pages")
          .front();
  const std::size_t first = pages.find('|');
  const std::size_t second = pages.find('|', first + 1);
  const std::int64_t bytes = std::stoll(pages);
  const double lastEmptied = std::stod(pages.substr(first + 1));
  if (bytes > kMost || (lastEmptied > 0 && bytes < kMost - kLongestPage) ||
      lastEmptied > std::stod(pages.substr(second + 1))) {
    fail("the log may keep pages of " + std::to_string(kMost) + " bytes, and keeps, empties and begins with " + pages);
  }
}

// A site that was never checked waits for the next Start, unless the list has it taken on at once.
void Ledger::watchChecks() {
  const Time now = world_.agenda.now();
  for (const std::string& row :
       askDatabase(world_,
                   "select idSite, tInterval from sites where active and (lastChecked is not null or exists "
                   "(select 1 from siteOptions where name = 'newSites' and value = 'at once'))")) {
    const auto id = static_cast<std::int16_t>(std::stoi(row));
    lastSeen_.try_emplace(id, now);
    const std::chrono::minutes interval(std::stoll(row.substr(row.find('|') + 1)));
    const Time since = std::max(lastSeen_[id], excusedUntil_);
    if (now - since > interval + kLatest) {
      fail("site " + row + " was not checked for " +
           std::to_string(std::chrono::floor<std::chrono::minutes>(now - since).count()) + " minutes");
      return;
    }
  }
}

}  // namespace tarnwick::simulation
