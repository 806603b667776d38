// SPDX-License-Identifier: MIT
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <string_view>

#include "platform/terminal.h"

namespace tarnwick {
namespace {

std::string_view environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string_view() : value;
}

constexpr std::array kEndings{SIGINT, SIGTERM, SIGHUP, SIGQUIT};

/// What the terminal is to be again; read by a signal's handler, which can be given nothing.
termios shownTyping{};

extern "C" void showTypingAndEnd(int signal) {
  ::tcsetattr(STDIN_FILENO, TCSANOW, &shownTyping);
  ::raise(signal);  // its own action is in force again, and waits for the end of this
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

struct HiddenTyping::Before {
  std::array<struct sigaction, kEndings.size()> actions{};
};

HiddenTyping::HiddenTyping() {
  if (::tcgetattr(STDIN_FILENO, &shownTyping) != 0) {
    return;
  }
  before_ = std::make_unique<Before>();
  struct sigaction action {};
  action.sa_handler = &showTypingAndEnd;
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  for (std::size_t i = 0; i < kEndings.size(); ++i) {
    ::sigaction(kEndings.at(i), &action, &before_->actions.at(i));
  }
  termios hidden = shownTyping;
  hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
  hidden.c_lflag |= static_cast<tcflag_t>(ECHONL);
  ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden);
}

HiddenTyping::~HiddenTyping() {
  if (before_) {
    ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &shownTyping);
    for (std::size_t i = 0; i < kEndings.size(); ++i) {
      ::sigaction(kEndings.at(i), &before_->actions.at(i), nullptr);
    }
  }
}

}  // namespace tarnwick
