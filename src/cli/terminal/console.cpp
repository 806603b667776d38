// SPDX-License-Identifier: MIT
#include "cli/terminal/console.h"

#include <cerrno>
#include <iostream>

#include "base/text.h"

namespace tarnwick {
namespace {

constexpr std::string_view codeOf(Console::Colour colour) {
  switch (colour) {
    case Console::Colour::red:
      return "\x1b[31m";
    case Console::Colour::green:
      return "\x1b[32m";
    case Console::Colour::cyan:
      return "\x1b[36m";
    case Console::Colour::bold:
      return "\x1b[1m";
    case Console::Colour::plain:
      break;
  }
  return "";
}

// A file's name in it may hold anything.
std::string visibleLines(std::string_view text) {
  std::string shown;
  for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
    shown += visibleText(text.substr(0, end)) + '\n';
    text.remove_prefix(end + 1);
  }
  return shown + visibleText(text);
}

}  // namespace

std::ostream& Console::out() {
  noteFailure();
  endLive();
  return out_;
}

void Console::say(std::string_view line) {
  const std::string below = live_;
  out() << line << '\n';
  out_.flush();
  noteFailure();
  if (!below.empty()) {
    live(below);
  }
}

void Console::complain(std::string_view line) {
  endLive();
  hasComplained_ = true;
  err_ << "tarnwickctl: " << visibleLines(line) << '\n';
  err_.flush();
}

std::string Console::ask(std::string_view question) {
  endLive();
  err_ << question << ' ';
  err_.flush();
  std::string answer;
  std::getline(std::cin, answer);
  return answer;
}

void Console::live(const std::string& text) {
  if (!facts_.isTerminal || text == live_) {
    return;
  }
  // The last column stays free: a character there would move some terminals to the next line.
  const std::size_t width = width_();
  live_ = text;
  out_ << "\r\x1b[K" << visibleText(text, width > 1 ? width - 1 : 1);
  out_.flush();
  noteFailure();
}

void Console::endLive() {
  if (!live_.empty()) {
    live_.clear();
    out_ << "\r\x1b[K";
    out_.flush();
  }
}

std::string Console::coloured(Colour colour, std::string_view text) const {
  const std::string_view code = facts_.colour ? codeOf(colour) : "";
  return code.empty() ? std::string(text) : std::string(code) + std::string(text) + "\x1b[0m";
}

bool Console::good() const { return out_.good(); }

// Only the attempt itself tells the reason, and not for long.
void Console::noteFailure() {
  if (!out_.good() && cause_ == 0) {
    cause_ = errno != 0 ? errno : EIO;
  }
}

std::error_code Console::flush() {
  endLive();
  out_.flush();
  noteFailure();
  return failure();
}

void Console::writeOn() {
  out_.clear();
  cause_ = 0;
}

std::size_t characterCount(std::string_view text) {
  std::size_t count = 0;
  while (!text.empty()) {
    const auto decoded = decodeUtf8(text);
    text.remove_prefix(decoded ? decoded->length : 1);
    ++count;
  }
  return count;
}

}  // namespace tarnwick
