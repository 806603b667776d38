// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace tarnwick {

/// What the standard streams of this process are.
struct TerminalFacts {
  /// Standard output is a terminal.
  bool isTerminal = false;
  /// Whether colours are wanted: on a terminal that is not dumb, unless the environment says NO_COLOR
  /// (https://no-color.org).
  bool colour = false;
  /// Whether somebody can be asked: standard input and standard error are terminals.
  bool canAsk = false;
  /// The terminal says that it obeys nothing, so that no line is written over and none is coloured.
  bool isDumb = false;
};

TerminalFacts standardOutputFacts();

/// What `main` was given behind the program's name, as UTF-8.
std::vector<std::string> programArguments(int argc, char** argv);

/// Lets UTF-8, and whatever other bytes a page holds, pass through the standard streams as they are.
void prepareStandardStreams();

/// How many characters a line of a terminal holds when that cannot be told.
inline constexpr std::size_t kUsualTerminalWidth = 80;
/// How many characters a line of the terminal holds now.
std::size_t terminalWidth();

/// Keeps what is typed on standard input from being shown, for this object's life; a signal that ends the process ends
/// that, too. Does nothing where standard input is no terminal. One at a time.
class HiddenTyping {
 public:
  HiddenTyping();
  ~HiddenTyping();
  HiddenTyping(const HiddenTyping&) = delete;
  HiddenTyping& operator=(const HiddenTyping&) = delete;

 private:
  struct Before;
  std::unique_ptr<Before> before_;
};

}  // namespace tarnwick
