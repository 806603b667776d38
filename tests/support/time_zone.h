// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace tarnwick::testing {

/// This process is in another time zone during its life. On Windows a process has the zone of its system.
class TimeZone {
 public:
#ifdef _WIN32
  static constexpr bool canBeSet = false;
  explicit TimeZone(const char*) {}
#else
  static constexpr bool canBeSet = true;
  /// `zone` is a rule of its own, as POSIX has them, so that no table of zones is needed.
  explicit TimeZone(const char* zone) {
    if (const char* const before = std::getenv("TZ")) {
      before_ = before;
    }
    setenv("TZ", zone, 1);
    tzset();
  }
  ~TimeZone() {
    before_ ? setenv("TZ", before_->c_str(), 1) : unsetenv("TZ");
    tzset();
  }
#endif
  TimeZone(const TimeZone&) = delete;
  TimeZone& operator=(const TimeZone&) = delete;

 private:
  std::optional<std::string> before_;
};

}  // namespace tarnwick::testing
