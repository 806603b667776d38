// SPDX-License-Identifier: MIT
#include "platform/clock.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>

#include "base/text.h"
#include "platform/local_fields.h"

namespace tarnwick {

using namespace std::chrono;

namespace {

/// Each check writes some of these: no format is read for them.
void appendDigits(std::string& text, unsigned number, unsigned first) {
  for (unsigned place = first; place > 0; place /= 10) {
    text += static_cast<char>('0' + number / place % 10);
  }
}

}  // namespace

std::string dateText(LocalTime time) {
  constexpr unsigned kThousands = 1000;
  constexpr int kLastOfFourDigits = 9999;
  const year_month_day day{floor<days>(time)};
  const int year = static_cast<int>(day.year());
  std::string text;
  if (year >= 0 && year <= kLastOfFourDigits) {
    appendDigits(text, static_cast<unsigned>(year), kThousands);
  } else {
    std::array<char, 16> digits{};
    std::snprintf(digits.data(), digits.size(), "%04d", year);
    text = digits.data();
  }
  text += '-';
  appendDigits(text, static_cast<unsigned>(day.month()), 10);
  text += '-';
  appendDigits(text, static_cast<unsigned>(day.day()), 10);
  return text;
}

std::string dateTimeText(LocalTime time) {
  const hh_mm_ss clock{time - floor<days>(time)};
  std::string text = dateText(time);
  const std::array<std::int64_t, 3> parts{clock.hours().count(), clock.minutes().count(), clock.seconds().count()};
  for (std::size_t i = 0; i < parts.size(); ++i) {
    text += i == 0 ? ' ' : ':';
    appendDigits(text, static_cast<unsigned>(parts[i]), 10);
  }
  return text;
}

std::optional<LocalTime> parseDateTime(std::string_view text) {
  std::tm fields{};
  int used = 0;
  const std::string copy(text);
  const int read = std::sscanf(copy.c_str(), "%4d-%2d-%2d%n %2d:%2d:%2d%n", &fields.tm_year, &fields.tm_mon,
                               &fields.tm_mday, &used, &fields.tm_hour, &fields.tm_min, &fields.tm_sec, &used);
  if ((read != 3 && read != 6) || used != static_cast<int>(copy.size())) {
    return std::nullopt;
  }
  const year_month_day day{year{fields.tm_year}, month{static_cast<unsigned>(fields.tm_mon)},
                           std::chrono::day{static_cast<unsigned>(fields.tm_mday)}};
  const bool inRange = day.ok() && fields.tm_hour >= 0 && fields.tm_hour < 24 && fields.tm_min >= 0 &&
                       fields.tm_min < 60 && fields.tm_sec >= 0 && fields.tm_sec < 60;
  if (!inRange) {
    return std::nullopt;
  }
  return local_days{day} + hours{fields.tm_hour} + minutes{fields.tm_min} + seconds{fields.tm_sec};
}

namespace {

/// Takes a text apart from its beginning.
class Pieces {
 public:
  explicit Pieces(std::string_view text) : rest_(text) {}

  bool isAtEnd() const { return rest_.empty(); }
  /// Takes one of these characters.
  bool take(std::string_view oneOf) {
    const bool taken = !rest_.empty() && oneOf.find(rest_.front()) != std::string_view::npos;
    rest_.remove_prefix(taken ? 1 : 0);
    return taken;
  }
  /// Takes exactly so many digits.
  std::optional<std::string_view> digits(std::size_t count) {
    if (rest_.size() < count || !std::ranges::all_of(rest_.substr(0, count), isDigit)) {
      return std::nullopt;
    }
    const std::string_view taken = rest_.substr(0, count);
    rest_.remove_prefix(count);
    return taken;
  }

 private:
  std::string_view rest_;
};

int numberOf(std::string_view digits) {
  int number = 0;
  for (const char digit : digits) {
    number = number * 10 + (digit - '0');
  }
  return number;
}

/// "Z", "+02:00", "-0530", "+02"; nothing when there is none or it is no such distance.
std::optional<minutes> takeDistance(Pieces& pieces) {
  if (pieces.take("Zz")) {
    return minutes{0};
  }
  const bool west = pieces.take("-");
  if (!west && !pieces.take("+")) {
    return std::nullopt;
  }
  const auto wholeHours = pieces.digits(2);
  const bool colon = wholeHours && pieces.take(":");
  const auto rest = wholeHours ? pieces.digits(2) : std::nullopt;
  if (!wholeHours || (colon && !rest)) {
    return std::nullopt;
  }
  const minutes distance = hours{numberOf(*wholeHours)} + minutes{rest ? numberOf(*rest) : 0};
  return west ? -distance : distance;
}

}  // namespace

std::optional<LocalTime> parseStamp(std::string_view text) {
  constexpr std::size_t kDateLength = 10;
  Pieces pieces(text.substr(std::min(text.size(), kDateLength)));
  const bool hasTime = pieces.take("Tt ");
  const auto hour = hasTime ? pieces.digits(2) : std::nullopt;
  const auto minute = hour && pieces.take(":") ? pieces.digits(2) : std::nullopt;
  if (!minute) {
    return parseDateTime(text);
  }
  std::string_view second = "00";
  if (pieces.take(":")) {
    const auto stored = pieces.digits(2);
    if (!stored) {
      return std::nullopt;
    }
    second = *stored;
    if (pieces.take(".,")) {
      if (!pieces.digits(1)) {
        return std::nullopt;
      }
      while (pieces.digits(1)) {
      }
    }
  }
  const auto time = parseDateTime(std::string(text.substr(0, kDateLength))
                                      .append(" ")
                                      .append(*hour)
                                      .append(":")
                                      .append(*minute)
                                      .append(":")
                                      .append(second));
  if (!time || pieces.isAtEnd()) {
    return time;
  }
  pieces.take(" ");
  const auto distance = takeDistance(pieces);
  if (!distance || !pieces.isAtEnd()) {
    return std::nullopt;
  }
  return localTimeAt(sys_seconds(time->time_since_epoch()) - *distance);
}

LocalTime localTimeAt(sys_seconds moment) {
  const auto fields = localFields(system_clock::to_time_t(moment));
  if (!fields) {
    return LocalTime(moment.time_since_epoch());
  }
  const year_month_day date{year{fields->tm_year + 1900}, month{static_cast<unsigned>(fields->tm_mon + 1)},
                            day{static_cast<unsigned>(fields->tm_mday)}};
  return local_days{date} + hours{fields->tm_hour} + minutes{fields->tm_min} + seconds{fields->tm_sec};
}

sys_seconds momentAt(LocalTime time) {
  const sys_seconds asUtc(time.time_since_epoch());
  const auto distanceAt = [](sys_seconds moment) {
    return localTimeAt(moment).time_since_epoch() - moment.time_since_epoch();
  };
  // No clock is set twice within two days.
  const seconds before = distanceAt(asUtc - days{1});
  const seconds after = distanceAt(asUtc + days{1});
  for (const seconds distance : {std::max(before, after), std::min(before, after)}) {
    if (localTimeAt(asUtc - distance) == time) {
      return asUtc - distance;
    }
  }
  return asUtc - before;
}

sys_seconds Clock::now() const { return momentAt(localNow()); }

sys_seconds SystemClock::now() const { return floor<seconds>(system_clock::now()); }

milliseconds SystemClock::steadyNow() const {
  return duration_cast<milliseconds>(steady_clock::now().time_since_epoch());
}

}  // namespace tarnwick
