#pragma once

#include <cstddef>

namespace tarnwick {

/// What the standard output of this process is.
struct TerminalFacts {
  bool isTerminal = false;
  /// Whether colours are wanted: on a terminal that is not dumb, unless the environment says NO_COLOR
  /// (https://no-color.org).
  bool colour = false;
};

TerminalFacts standardOutputFacts();

/// How many characters a line of the terminal holds now; 80 when that cannot be told.
std::size_t terminalWidth();

}  // namespace tarnwick
