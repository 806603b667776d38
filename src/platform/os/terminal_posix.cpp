// SPDX-License-Identifier: MIT
#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>
#include <string_view>

#include "platform/terminal.h"

namespace tarnwick {
namespace {

std::string_view environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string_view() : value;
}

}  // namespace

TerminalFacts standardOutputFacts() {
  const bool isTerminal = ::isatty(STDOUT_FILENO) == 1;
  const bool isDumb = environment("TERM") == "dumb";
  const bool canAsk = ::isatty(STDIN_FILENO) == 1 && ::isatty(STDERR_FILENO) == 1;
  return {isTerminal, isTerminal && !isDumb && environment("NO_COLOR").empty(), canAsk, isDumb};
}

std::vector<std::string> programArguments(int argc, char** argv) {
  return argc > 1 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

void prepareStandardStreams() {
  // They do so already.
}

std::size_t terminalWidth() {
  winsize size{};
  return ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : kUsualTerminalWidth;
}

}  // namespace tarnwick
