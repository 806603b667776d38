// SPDX-License-Identifier: MIT
#include "store/alarm_values.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <map>

#include "base/one_line.h"
#include "base/text.h"

namespace tarnwick {
namespace {

using std::chrono::minutes;
using std::chrono::seconds;

constexpr std::string_view kNone = "none";
constexpr std::size_t kDays = 7;
constexpr std::size_t kHours = 24;
constexpr std::array<std::string_view, kDays> kDayNames{"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};
constexpr std::size_t kMostPauses = 10;
constexpr int kLongestPause = 300;
constexpr std::string_view kThird = "third";
constexpr int kMostDays = 3650;
constexpr std::size_t kMostLimits = 10;

std::vector<std::string_view> parts(std::string_view text, char separator) {
  std::vector<std::string_view> found;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find(separator, begin), text.size());
    found.push_back(trimmed(text.substr(begin, end - begin)));
    begin = end + 1;
  }
  return found;
}

std::string joined(const std::vector<std::string>& texts, std::string_view separator) {
  std::string all;
  for (const std::string& text : texts) {
    all.append(all.empty() ? std::string_view() : separator).append(text);
  }
  return all;
}

bool isNone(std::string_view text) { return equalsIgnoringCase(trimmed(text), kNone); }

/// Takes a number from `least` to `most` off the front of `text`, with the blanks behind it.
std::optional<int> takeNumber(std::string_view& text, int least, int most) {
  int number = 0;
  const auto [rest, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (fault != std::errc() || number < least || number > most) {
    return std::nullopt;
  }
  text = trimmed(text.substr(static_cast<std::size_t>(rest - text.data())));
  return number;
}

bool isOneOf(std::string_view text, std::initializer_list<std::string_view> words) {
  return std::ranges::any_of(words, [&](std::string_view word) { return equalsIgnoringCase(text, word); });
}

std::optional<seconds> readPauseLength(std::string_view text) {
  const auto number = takeNumber(text, 1, kLongestPause);
  const bool inMinutes = isOneOf(text, {"m", "min", "minute", "minutes"});
  if (!number || (!inMinutes && !isOneOf(text, {"", "s", "sec", "second", "seconds"})) ||
      (inMinutes && *number > kLongestPause / 60)) {
    return std::nullopt;
  }
  return inMinutes ? seconds(minutes(*number)) : seconds(*number);
}

std::optional<std::size_t> readDay(std::string_view text) {
  for (std::size_t day = 0; day < kDays; ++day) {
    if (text.size() >= 3 && isLetter(text.back()) && equalsIgnoringCase(text.substr(0, 3), kDayNames[day])) {
      return day;
    }
  }
  return std::nullopt;
}

/// "daily", "Mon", "Fri-Mon": a bit for each day.
std::optional<std::bitset<kDays>> readDays(std::string_view text) {
  std::bitset<kDays> days;
  if (isOneOf(text, {"daily", "every day"})) {
    return days.set();
  }
  const std::vector<std::string_view> ends = parts(text, '-');
  const auto first = readDay(ends.front());
  const auto last = readDay(ends.back());
  if (ends.size() > 2 || !first || !last) {
    return std::nullopt;
  }
  for (std::size_t day = *first;; day = (day + 1) % kDays) {
    days.set(day);
    if (day == *last) {
      return days;
    }
  }
}

/// "22" or "22:00".
std::optional<std::size_t> readHour(std::string_view text) {
  const auto hour = takeNumber(text, 0, static_cast<int>(kHours));
  return hour && (text.empty() || text == ":00") ? std::optional(static_cast<std::size_t>(*hour)) : std::nullopt;
}

/// From the first hour, how many.
struct HoursOfDay {
  std::size_t from;
  std::size_t count;
};

std::optional<HoursOfDay> readHoursOfDay(std::string_view text) {
  const std::vector<std::string_view> ends = parts(text, '-');
  const auto from = readHour(ends.front());
  const auto until = readHour(ends.back());
  if (ends.size() != 2 || !from || !until || *from == kHours) {
    return std::nullopt;
  }
  return HoursOfDay{*from, *until > *from ? *until - *from : *until + kHours - *from};
}

void setHours(WeekHours& week, const std::bitset<kDays>& days, const HoursOfDay& hours) {
  for (std::size_t day = 0; day < kDays; ++day) {
    for (std::size_t hour = 0; days.test(day) && hour < hours.count; ++hour) {
      week.set((day * kHours + hours.from + hour) % week.size());
    }
  }
}

std::string hoursText(std::size_t from, std::size_t until) {
  return std::to_string(from) + ":00-" + std::to_string(until) + ":00";
}

/// Runs of hours, at most a day long each, by the text of their hours: a bit for each day on which one begins.
std::map<std::string, std::bitset<kDays>> runsOf(const WeekHours& week) {
  std::map<std::string, std::bitset<kDays>> runs;
  const auto isOn = [&](std::size_t hour) { return week.test(hour % week.size()); };
  // Begun behind an hour that is not one of them, so that no run is cut at the end of the week.
  std::size_t start = 0;
  while (isOn(start)) {
    ++start;
  }
  for (std::size_t hour = start; hour < start + week.size();) {
    if (!isOn(hour)) {
      ++hour;
      continue;
    }
    std::size_t end = hour;
    while (isOn(end)) {
      ++end;
    }
    while (hour < end) {
      const std::size_t from = hour % kHours;
      const std::size_t toMidnight = kHours - from;
      const std::size_t left = end - hour;
      // A night is one run; what is longer than a day is told by days.
      const std::size_t length = left <= kHours && (left <= toMidnight || from != 0) ? left : toMidnight;
      const std::size_t until = from + length;
      runs[hoursText(from, until > kHours ? until - kHours : until)].set(hour / kHours % kDays);
      hour += length;
    }
  }
  return runs;
}

std::string daysText(const std::bitset<kDays>& days) {
  if (days.all()) {
    return "daily";
  }
  std::vector<std::string> names;
  for (std::size_t day = 0; day < kDays;) {
    if (!days.test(day)) {
      ++day;
      continue;
    }
    std::size_t end = day;
    while (end + 1 < kDays && days.test(end + 1)) {
      ++end;
    }
    if (end - day < 2) {
      end = day;
    }
    names.push_back(std::string(kDayNames[day]) + (end > day ? "-" + std::string(kDayNames[end]) : ""));
    day = end + 1;
  }
  return joined(names, ", ");
}

constexpr std::string_view kKeepAlerts = "keep alerts";
constexpr std::string_view kDoNotCheck = "do not check";
constexpr std::string_view kTo = " to ";

/// To the minute, as people write it, or to the second.
std::optional<LocalTime> readMoment(std::string_view text) { return parseStamp(trimmed(text)); }

std::string momentText(LocalTime time) {
  return dateTimeText(time).substr(0, std::string_view("YYYY-MM-DD HH:MM").size());
}

std::optional<DatedWindow> readDatedWindow(std::string_view text) {
  DatedWindow window;
  const std::size_t to = text.find(kTo);
  if (to == std::string_view::npos) {
    return std::nullopt;
  }
  const std::string_view behind = text.substr(to + kTo.size());
  // The colon of a time has a digit behind it. One at the end is followed by no note.
  const std::size_t colon = behind.ends_with(':') ? std::min(behind.find(": "), behind.size() - 1) : behind.find(": ");
  const std::vector<std::string_view> ends = parts(behind.substr(0, colon), ',');
  const auto from = readMoment(text.substr(0, to));
  const auto until = readMoment(ends.front());
  if (ends.size() > 2 || !from || !until || *until <= *from) {
    return std::nullopt;
  }
  window.from = *from;
  window.until = *until;
  if (ends.size() == 2) {
    if (!isOneOf(ends.back(), {kKeepAlerts, kDoNotCheck})) {
      return std::nullopt;
    }
    window.kind = equalsIgnoringCase(ends.back(), kDoNotCheck) ? QuietKind::noChecks : QuietKind::keepAlerts;
  }
  window.note = colon == std::string_view::npos ? std::string() : std::string(trimmed(behind.substr(colon + 1)));
  return window;
}

constexpr std::string_view kUntil = "until ";

/// A name or an address, perhaps in brackets, perhaps with a port.
bool isHost(std::string_view text) {
  const std::size_t colon = text.rfind(':');
  const bool hasPort = colon != std::string_view::npos && (text.find(':') == colon || text[colon - 1] == ']');
  std::string_view port = hasPort ? text.substr(colon + 1) : "1";
  const std::string_view name = hasPort ? text.substr(0, colon) : text;
  const bool isPort = takeNumber(port, 1, 65535).has_value() && port.empty();
  return isPort && !name.empty() && name.find_first_of(" /?#@\"'\\") == std::string_view::npos;
}

}  // namespace

std::optional<std::vector<seconds>> readPauses(std::string_view text) {
  std::vector<seconds> pauses;
  for (const std::string_view part : parts(text, ',')) {
    const auto pause = readPauseLength(part);
    if (!pause || pauses.size() == kMostPauses) {
      return std::nullopt;
    }
    pauses.push_back(*pause);
  }
  return pauses;
}

std::string pausesText(const std::vector<seconds>& pauses) {
  std::vector<std::string> texts;
  texts.reserve(pauses.size());
  for (const seconds pause : pauses) {
    texts.push_back(std::to_string(pause.count()) + " s");
  }
  return joined(texts, ", ");
}

std::optional<UnsteadyLimit> readUnsteadyLimit(std::string_view text) {
  text = trimmed(text);
  const auto changes = takeNumber(text, 1, 100);
  if (!changes || !equalsIgnoringCase(text.substr(0, 2), "in")) {
    return std::nullopt;
  }
  text = trimmed(text.substr(2));
  const auto within = takeNumber(text, 1, 1440);
  if (!within || !isOneOf(text, {"", "m", "min", "minute", "minutes"})) {
    return std::nullopt;
  }
  return UnsteadyLimit{*changes, minutes(*within)};
}

std::string unsteadyLimitText(const UnsteadyLimit& limit) {
  return std::to_string(limit.changes) + " in " + std::to_string(limit.within.count()) + " min";
}

std::optional<WeekHours> readWeekHours(std::string_view text) {
  WeekHours week;
  if (isNone(text)) {
    return week;
  }
  std::bitset<kDays> days;
  bool lacksHours = true;
  for (const std::string_view part : parts(text, ',')) {
    const std::size_t digit = std::min(part.find_first_of("0123456789"), part.size());
    const std::string_view named = trimmed(part.substr(0, digit));
    if (!named.empty()) {
      const auto read = readDays(named);
      if (!read) {
        return std::nullopt;
      }
      days = lacksHours ? days | *read : *read;
    }
    lacksHours = digit == part.size();
    if (!lacksHours) {
      const auto hours = readHoursOfDay(part.substr(digit));
      if (!hours || days.none()) {
        return std::nullopt;
      }
      setHours(week, days, *hours);
    }
  }
  return lacksHours ? std::nullopt : std::optional(week);
}

std::string weekHoursText(const WeekHours& hours) {
  if (hours.none()) {
    return std::string(kNone);
  }
  if (hours.all()) {
    return "daily 0:00-24:00";
  }
  std::vector<std::string> texts;
  for (const auto& [text, days] : runsOf(hours)) {
    texts.push_back(daysText(days) + " " + text);
  }
  return joined(texts, ", ");
}

std::size_t hourOfWeek(LocalTime time) {
  const auto day = std::chrono::floor<std::chrono::days>(time);
  const auto hour = std::chrono::floor<std::chrono::hours>(time - day);
  return (std::chrono::weekday(day).iso_encoding() - 1) * kHours + static_cast<std::size_t>(hour.count());
}

std::optional<std::vector<DatedWindow>> readDatedWindows(std::string_view text) {
  std::vector<DatedWindow> windows;
  if (isNone(text)) {
    return windows;
  }
  for (const std::string_view part : parts(text, ';')) {
    const auto window = readDatedWindow(part);
    if (!window) {
      return std::nullopt;
    }
    windows.push_back(*window);
  }
  return windows;
}

std::string datedWindowsText(const std::vector<DatedWindow>& windows) {
  std::vector<std::string> texts;
  for (const DatedWindow& window : windows) {
    std::string text = momentText(window.from) + std::string(kTo) + momentText(window.until);
    if (window.kind) {
      text.append(", ").append(*window.kind == QuietKind::noChecks ? kDoNotCheck : kKeepAlerts);
    }
    texts.push_back(text + (window.note.empty() ? "" : ": " + window.note));
  }
  return texts.empty() ? std::string(kNone) : joined(texts, "; ");
}

std::optional<Pause> readPause(std::string_view text) {
  text = trimmed(text);
  if (isOneOf(text, {"no", "off"})) {
    return Pause{};
  }
  if (equalsIgnoringCase(text, "for good")) {
    return Pause{true, std::nullopt};
  }
  if (!equalsIgnoringCase(text.substr(0, kUntil.size()), kUntil)) {
    return std::nullopt;
  }
  const auto until = readMoment(text.substr(kUntil.size()));
  return until ? std::optional(Pause{true, until}) : std::nullopt;
}

std::string pauseText(const Pause& pause) {
  if (!pause.isOn) {
    return "no";
  }
  return pause.until ? std::string(kUntil) + dateTimeText(*pause.until) : "for good";
}

bool isPaused(const Pause& pause, LocalTime now) { return pause.isOn && (!pause.until || now < *pause.until); }

std::optional<std::vector<std::string>> readHosts(std::string_view text) {
  std::vector<std::string> hosts;
  if (isNone(text)) {
    return hosts;
  }
  for (const std::string_view part : parts(text, ',')) {
    if (!isHost(part)) {
      return std::nullopt;
    }
    hosts.emplace_back(part);
  }
  return hosts;
}

std::optional<CertificateLimits> readCertificateLimits(std::string_view text) {
  CertificateLimits limits;
  for (std::string_view part : parts(text, ',')) {
    if (equalsIgnoringCase(part, kThird)) {
      limits.third = true;
      continue;
    }
    const auto days = takeNumber(part, 1, kMostDays);
    if (!days || !isOneOf(part, {"", "d", "day", "days"})) {
      return std::nullopt;
    }
    limits.days.push_back(*days);
  }
  std::ranges::sort(limits.days, std::ranges::greater());
  limits.days.erase(std::unique(limits.days.begin(), limits.days.end()), limits.days.end());
  return limits.days.size() <= kMostLimits ? std::optional(std::move(limits)) : std::nullopt;
}

std::string certificateLimitsText(const CertificateLimits& limits) {
  std::vector<std::string> texts;
  if (limits.third) {
    texts.emplace_back(kThird);
  }
  for (const int days : limits.days) {
    texts.push_back(std::to_string(days));
  }
  return joined(texts, ", ");
}

std::optional<seconds> readTimeOfDay(std::string_view text) {
  text = trimmed(text);
  const auto hour = takeNumber(text, 0, static_cast<int>(kHours) - 1);
  if (!hour || text.empty()) {
    return hour ? std::optional(seconds(std::chrono::hours(*hour))) : std::nullopt;
  }
  if (!text.starts_with(':')) {
    return std::nullopt;
  }
  text.remove_prefix(1);
  const bool hasTwoDigits = text.size() == 2;
  const auto minute = takeNumber(text, 0, 59);
  return minute && hasTwoDigits && text.empty() ? std::optional(seconds(std::chrono::hours(*hour) + minutes(*minute)))
                                                : std::nullopt;
}

std::string timeOfDayText(seconds time) {
  const std::string minute = std::to_string(time / minutes(1) % 60);
  return std::to_string(time / std::chrono::hours(1)) + (minute.size() == 1 ? ":0" : ":") + minute;
}

std::optional<std::string> readWebAddress(std::string_view text) {
  text = trimmed(text);
  const std::string start = lowerCase(std::string(text.substr(0, 8)));
  return (start.starts_with("http://") || start.starts_with("https://")) && !hasLineEnd(text)
             ? std::optional(std::string(text))
             : std::nullopt;
}

std::string webAddressText(const std::string& address) { return address; }

std::optional<std::vector<std::string>> readNames(std::string_view text) {
  std::vector<std::string> names;
  if (isNone(text)) {
    return names;
  }
  for (const std::string_view part : parts(text, ',')) {
    if (part.empty() || hasLineEnd(part)) {
      return std::nullopt;
    }
    names.emplace_back(part);
  }
  return names;
}

std::string namesText(const std::vector<std::string>& names) {
  return names.empty() ? std::string(kNone) : joined(names, ", ");
}

std::string hostsText(const std::vector<std::string>& hosts) {
  return hosts.empty() ? std::string(kNone) : joined(hosts, ", ");
}

}  // namespace tarnwick
