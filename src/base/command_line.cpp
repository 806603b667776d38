// SPDX-License-Identifier: MIT
#include "base/command_line.h"

#include <utility>

namespace tarnwick {
namespace {

/// Stands for a double quote that is text: the one byte that can be part of no argument.
constexpr char kLiteralQuote = '\0';

constexpr bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

}  // namespace

std::vector<std::string> splitCommandLine(std::string_view line) {
  std::vector<std::string> arguments;
  std::string argument;
  bool begun = false;
  bool quoted = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (!quoted && isBlank(c)) {
      if (begun) {
        arguments.push_back(std::exchange(argument, {}));
        begun = false;
      }
      continue;
    }
    begun = true;
    if (c != '"') {
      argument += c == kLiteralQuote ? '"' : c;
    } else if (quoted && i + 1 < line.size() && line[i + 1] == '"') {
      argument += c;
      ++i;
    } else {
      quoted = !quoted;
    }
  }
  if (begun) {
    arguments.push_back(std::move(argument));
  }
  return arguments;
}

std::string literalArgumentText(std::string_view value) {
  std::string text;
  text.reserve(value.size());
  for (const char c : value) {
    if (c != '\0') {
      text += c == '"' ? kLiteralQuote : c;
    }
  }
  return text;
}

}  // namespace tarnwick
