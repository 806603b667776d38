#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>
#include <string_view>

#include "platform/terminal.h"

namespace tarnwick {
namespace {

constexpr std::size_t kUsualWidth = 80;

std::string_view environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string_view() : value;
}

}  // namespace

TerminalFacts standardOutputFacts() {
  const bool isTerminal = ::isatty(STDOUT_FILENO) == 1 && environment("TERM") != "dumb";
  return {isTerminal, isTerminal && environment("NO_COLOR").empty()};
}

std::size_t terminalWidth() {
  winsize size{};
  return ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : kUsualWidth;
}

}  // namespace tarnwick
