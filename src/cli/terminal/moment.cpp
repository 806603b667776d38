// SPDX-License-Identifier: MIT
#include "cli/terminal/moment.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <stdexcept>

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

}  // namespace

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
