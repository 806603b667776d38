// SPDX-License-Identifier: MIT
#include "cli/terminal/moment.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <utility>

#include "base/text.h"
#include "cli/terminal/console.h"

namespace tarnwick {
namespace {

// Nothing was logged before it, and the years before it have no four digits.
LocalTime earliest() { return *parseDateTime("1000-01-01"); }

std::optional<std::chrono::seconds> unitOf(std::string_view text) {
  if (text == "s") {
    return std::chrono::seconds(1);
  }
  if (text == "m") {
    return std::chrono::minutes(1);
  }
  if (text == "h") {
    return std::chrono::hours(1);
  }
  if (text == "d") {
    return std::chrono::hours(24);
  }
  return std::nullopt;
}

std::optional<std::chrono::seconds> ageOf(std::string_view text) {
  std::uint32_t count = 0;
  const char* end = text.data() + text.size();
  const auto [rest, fault] = std::from_chars(text.data(), end, count);
  if (fault != std::errc()) {
    return std::nullopt;
  }
  const auto unit = unitOf({rest, static_cast<std::size_t>(end - rest)});
  return unit ? std::optional(*unit * std::int64_t{count}) : std::nullopt;
}

constexpr std::chrono::days kLongestSpan{3650};

/// "8:00" or "08:00:30", as a time since midnight.
std::optional<std::chrono::seconds> timeOfDay(std::string_view text) {
  const std::string day = "2000-01-01";
  const bool lacksDigit = text.find(':') == 1;
  const auto moment = parseStamp(day + (lacksDigit ? " 0" : " ") + std::string(text));
  return moment && text.size() > 3 ? std::optional(*moment - *parseDateTime(day)) : std::nullopt;
}

std::optional<LocalTime> readMomentToCome(std::string_view text, LocalTime now) {
  using std::chrono::days;
  const LocalTime today = std::chrono::floor<days>(now);
  for (const auto& [name, day] : {std::pair(std::string_view("today"), today), {"tomorrow", today + days(1)}}) {
    const std::string_view rest = text.substr(std::min(name.size(), text.size()));
    if (text.starts_with(name) && rest.empty()) {
      return day;
    }
    if (text.starts_with(name)) {
      const auto time = rest.front() == ' ' ? timeOfDay(trimmed(rest)) : std::nullopt;
      return time ? std::optional(day + *time) : std::nullopt;
    }
  }
  if (const auto time = timeOfDay(text)) {
    return today + *time > now ? today + *time : today + days(1) + *time;
  }
  return parseStamp(text);
}

}  // namespace

LocalTime momentToCome(const std::string& text, LocalTime now) {
  const auto moment = readMomentToCome(trimmed(text), now);
  if (!moment) {
    throw std::runtime_error("\"" + visibleText(text) + "\" is no moment. Write it as " + kMomentsToCome + ".");
  }
  if (*moment <= now) {
    throw std::runtime_error("\"" + visibleText(text) + "\" has gone by already. Name a moment that lies ahead.");
  }
  return *moment;
}

std::chrono::seconds spanOf(const std::string& text) {
  const auto span = ageOf(text);
  if (!span || *span < std::chrono::seconds(1) || *span > kLongestSpan) {
    throw std::runtime_error("\"" + visibleText(text) +
                             "\" is no span. Write it as 90s, 30m, 2h or 1d, of ten years at most.");
  }
  return *span;
}

LocalTime momentOf(const std::string& text, LocalTime now) {
  if (text == "today") {
    return std::chrono::floor<std::chrono::days>(now);
  }
  if (const auto moment = parseDateTime(text)) {
    return *moment;
  }
  if (const auto age = ageOf(text)) {
    return std::max(now - *age, earliest());
  }
  throw std::runtime_error("\"" + visibleText(text) + "\" is no moment. Write it as " + kMomentForms + ".");
}

}  // namespace tarnwick
