// SPDX-License-Identifier: MIT
#include "exchange/list/site_list_history.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <utility>

#include "base/base64.h"
#include "base/decode_error.h"
#include "base/one_line.h"

namespace tarnwick {

using namespace std::chrono;

namespace {

namespace word {
constexpr std::string_view latest = "latest";
constexpr std::string_view hour = "hour";
constexpr std::string_view day = "day";
constexpr std::string_view month = "month";
constexpr std::string_view outage = "outage";
constexpr std::string_view up = "up";
constexpr std::string_view down = "down";
constexpr std::string_view isOn = "-";
}  // namespace word

/// The end of the year 9999, in seconds since 1970.
constexpr std::int64_t kLastMoment = 253'402'300'799;
constexpr std::int64_t kHour = 3600;
constexpr std::int64_t kMostChecks = 1'000'000'000;

std::string textOf(Moment moment) { return std::to_string(moment.time_since_epoch().count()); }

std::string lineOf(std::string_view kind, const KnownTime& row) {
  const TimeSum& sum = row.sum;
  const seconds length = row.time.until - row.time.from;
  std::string line = std::string(kind) + " " + textOf(row.time.from);
  if (kind != word::hour) {
    line += " " + std::to_string(length.count());
  }
  for (const std::int64_t number :
       {sum.checks, std::int64_t{sum.up.count()}, std::int64_t{(length - sum.known()).count()},
        std::int64_t{sum.tookInAll.count()}, std::int64_t{sum.slowest.count()}}) {
    line += " " + std::to_string(number);
  }
  const std::string buckets = sum.latency.packed();
  return buckets.empty() ? line : line + " " + encodeBase64(buckets);
}

/// A line word by word. What is missing or no number makes it a bad one.
class Words {
 public:
  explicit Words(std::string_view line) : rest_(line) {}

  bool good() const { return good_; }
  bool atEnd() const { return rest_.empty(); }

  std::string_view next() {
    const std::string_view found = rest_.substr(0, rest_.find(' '));
    rest_.remove_prefix(std::min(rest_.size(), found.size() + 1));
    good_ = good_ && !found.empty();
    return found;
  }
  std::string_view all() { return std::exchange(rest_, {}); }
  std::int64_t number(std::int64_t most = kLastMoment) {
    const std::string_view text = next();
    std::int64_t value = 0;
    const auto [end, cause] = std::from_chars(text.data(), text.data() + text.size(), value);
    good_ = good_ && cause == std::errc() && end == text.data() + text.size() && value >= 0 && value <= most;
    return value;
  }
  Moment moment() { return Moment(seconds(number())); }
  void refuse() { good_ = false; }

 private:
  std::string_view rest_;
  bool good_ = true;
};

Latency latencyIn(Words& words) {
  Latency latency;
  try {
    const std::string bytes = decodeBase64(words.all());
    latency = Latency::unpacked(bytes);
    if (latency.packed() != bytes) {
      words.refuse();
    }
  } catch (const DecodeError&) {
    words.refuse();
  }
  return latency;
}

/// What is wrong with a line that can be read; nothing where it is right.
std::string readRow(std::vector<KnownTime>& rows, Words& words, std::int64_t most) {
  constexpr minutes kClockStep{15};  // no zone has another distance to the next
  KnownTime row;
  row.time.from = words.moment();
  row.time.until = row.time.from + seconds(most == kHour ? kHour : words.number());
  row.sum.checks = words.number(kMostChecks);
  row.sum.up = seconds(words.number());
  const seconds unknown(words.number());
  row.sum.tookInAll = milliseconds(words.number());
  row.sum.slowest = milliseconds(words.number());
  row.sum.latency = latencyIn(words);
  if (!words.good()) {
    return {};
  }
  const seconds length = row.time.until - row.time.from;
  if (row.time.from.time_since_epoch() % kClockStep != seconds(0)) {
    return "begins at no full hour of any clock: give the seconds since 1970 at which it began";
  }
  if (length.count() < 1 || length.count() > most) {
    return "has " + std::to_string(length.count()) + " seconds: give it 1 to " + std::to_string(most);
  }
  if (row.sum.up + unknown > length) {
    return "was up and unknown for longer than its " + std::to_string(length.count()) +
           " seconds: the two together are as much at most";
  }
  if (row.sum.latency.count() > static_cast<std::uint64_t>(row.sum.checks)) {
    return "tells how long more answers took than it had checks: give it as many checks at least";
  }
  row.sum.down = length - row.sum.up - unknown;
  rows.push_back(std::move(row));
  return {};
}

void readLatest(KeptHistory& history, Words& words) {
  LatestCheck check{.at = words.moment()};
  const std::string_view state = words.next();
  check.up = state == word::up;
  if (!words.atEnd()) {
    check.until = words.moment();
  }
  if (!words.atEnd() || (!check.up && state != word::down)) {
    words.refuse();
  }
  if (words.good()) {
    history.latest = check;
  }
}

std::string readOutage(KeptHistory& history, Words& words) {
  Outage outage;
  outage.began = words.moment();
  Words end(words.next());
  if (const std::string_view text = Words(end).next(); text != word::isOn) {
    outage.ended = end.moment();
  }
  outage.checks = words.number(kMostChecks);
  outage.cause = words.all();
  if (!words.good() || !end.good() || hasLineEnd(outage.cause)) {
    words.refuse();
    return {};
  }
  if (outage.ended && *outage.ended < outage.began) {
    return "ended before it began: give the end as the second number, or - while it is on";
  }
  history.outages.push_back(std::move(outage));
  return {};
}

std::string readLine(KeptHistory& history, Words& words) {
  constexpr std::int64_t kDay = 24 * kHour;
  // The clock is set by some hours at most.
  constexpr std::int64_t kSet = 3 * kHour;
  const std::string_view kind = words.next();
  if (kind == word::hour) {
    return readRow(history.hours, words, kHour);
  }
  if (kind == word::day) {
    return readRow(history.days, words, kDay + kSet);
  }
  if (kind == word::month) {
    return readRow(history.months, words, 31 * kDay + kSet);
  }
  if (kind == word::outage) {
    return readOutage(history, words);
  }
  if (kind == word::latest && !history.latest) {
    readLatest(history, words);
    return {};
  }
  words.refuse();
  return {};
}

}  // namespace

std::vector<std::string> linesOf(const KeptHistory& history) {
  std::vector<std::string> lines;
  if (const auto& latest = history.latest) {
    lines.push_back(std::string(word::latest) + " " + textOf(latest->at) + " " +
                    std::string(latest->up ? word::up : word::down) +
                    (latest->until ? " " + textOf(*latest->until) : std::string()));
  }
  for (const auto& [kind, rows] : {std::pair(word::hour, &history.hours), std::pair(word::day, &history.days),
                                   std::pair(word::month, &history.months)}) {
    for (const KnownTime& row : *rows) {
      lines.push_back(lineOf(kind, row));
    }
  }
  for (const Outage& outage : history.outages) {
    lines.push_back(std::string(word::outage) + " " + textOf(outage.began) + " " +
                    (outage.ended ? textOf(*outage.ended) : std::string(word::isOn)) + " " +
                    std::to_string(outage.checks) + (outage.cause.empty() ? "" : " " + oneLine(outage.cause)));
  }
  return lines;
}

void readHistoryLine(KeptHistory& history, std::string_view line, ListValues& values) {
  Words words(line);
  const std::string wrong = readLine(history, words);
  if (!words.good()) {
    values.fault("the line of the history " + quotedForMessage(line) + " is none: give it as an export writes it");
  } else if (!wrong.empty()) {
    values.fault("the line of the history " + quotedForMessage(line) + " " + wrong);
  }
}

}  // namespace tarnwick
