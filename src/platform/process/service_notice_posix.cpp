// SPDX-License-Identifier: MIT
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <charconv>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "platform/service_notice.h"

namespace tarnwick {
namespace {

std::string_view valueOf(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? "" : value;
}

void tell(std::string_view state) {
  const std::string_view name = valueOf("NOTIFY_SOCKET");
  sockaddr_un address{};
  if (name.size() < 2 || name.size() >= sizeof(address.sun_path)) {
    return;
  }
  address.sun_family = AF_UNIX;
  std::memcpy(address.sun_path, name.data(), name.size());
  // A name outside of the file system begins with a NUL character.
  if (name.front() == '@') {
    address.sun_path[0] = '\0';
  }
  const int socket = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  if (socket >= 0) {
    const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + name.size());
    ::sendto(socket, state.data(), state.size(), MSG_NOSIGNAL | MSG_DONTWAIT, reinterpret_cast<sockaddr*>(&address),
             length);
    ::close(socket);
  }
}

template <typename Number>
Number numberOf(const char* name) {
  const std::string_view text = valueOf(name);
  Number number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

/// How long the service manager waits for a sign of life; nothing when it does not.
std::chrono::microseconds patience() {
  const auto process = numberOf<pid_t>("WATCHDOG_PID");
  return std::chrono::microseconds(process == 0 || process == ::getpid() ? numberOf<std::int64_t>("WATCHDOG_USEC") : 0);
}

}  // namespace

ServiceNotice::ServiceNotice(TimerMaker& timers) {
  tell("READY=1");
  const auto interval = std::chrono::duration_cast<std::chrono::milliseconds>(patience() / 2);
  if (interval.count() > 0) {
    watchdog_ = timers.makeTimer([] { tell("WATCHDOG=1"); });
    watchdog_->setInterval(interval);
    watchdog_->setEnabled(true);
  }
}

ServiceNotice::~ServiceNotice() { tell("STOPPING=1"); }

}  // namespace tarnwick
