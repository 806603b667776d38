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

bool Console::Written::note(bool done) {
  if (!done && cause == 0) {
    cause = errno != 0 ? errno : EIO;
  }
  return done;
}

Console::Written::int_type Console::Written::overflow(int_type character) {
  const char byte = traits_type::to_char_type(character);
  return traits_type::eq_int_type(character, traits_type::eof()) || xsputn(&byte, 1) == 1
             ? traits_type::not_eof(character)
             : traits_type::eof();
}

std::streamsize Console::Written::xsputn(const char* bytes, std::streamsize count) {
  std::streamsize taken = 0;
  if (target_.good()) {
    errno = 0;
    taken = target_.rdbuf()->sputn(bytes, count);
  }
  note(taken == count);
  return taken;
}

int Console::Written::sync() {
  if (!target_.good()) {
    note(false);
    return -1;
  }
  errno = 0;
  return note(target_.rdbuf()->pubsync() == 0) ? 0 : -1;
}

void Console::Written::clear() {
  target_.clear();
  cause = 0;
}

std::ostream& Console::out() {
  endLive();
  return out_;
}

void Console::say(std::string_view line) {
  const std::string below = live_;
  out() << line << '\n';
  out_.flush();
  if (!below.empty()) {
    live(below);
  }
}

void Console::complain(std::string_view line) {
  endLive();
  hasComplained_ = true;
  err_ << "tarnwickctl: " << visibleLines(worded(line)) << '\n';
  err_.flush();
}

std::string Console::ask(std::string_view question) {
  endLive();
  err_ << visibleLines(worded(question)) << ' ';
  err_.flush();
  std::string answer;
  std::getline(std::cin, answer);
  return answer;
}

std::string Console::askSecret(std::string_view question) {
  const HiddenTyping hidden;
  std::string answer = ask(question);
  if (answer.ends_with('\r')) {
    answer.pop_back();
  }
  return answer;
}

void Console::live(const std::string& text) {
  if (!canRewrite() || text == live_) {
    return;
  }
  // The last column stays free: a character there would move some terminals to the next line.
  const std::size_t width = width_();
  live_ = text;
  out_ << "\r\x1b[K" << visibleText(text, width > 1 ? width - 1 : 1);
  out_.flush();
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

std::error_code Console::flush() {
  endLive();
  out_.flush();
  return failure();
}

void Console::writeOn() {
  out_.clear();
  written_.clear();
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
