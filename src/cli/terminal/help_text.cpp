// SPDX-License-Identifier: MIT
#include "cli/terminal/help_text.h"

#include <algorithm>

namespace tarnwick {
namespace {

constexpr std::string_view kExample = "  tarnwickctl ";
constexpr std::string_view kGap = "  ";

// Where the last column of a line begins: behind the last gap in its first half.
std::size_t columnOf(std::string_view line, std::size_t width) {
  const std::size_t gap = line.substr(0, width / 2).rfind(kGap);
  return gap == std::string_view::npos ? 0 : gap + kGap.size();
}

void addWrapped(std::string& text, std::string_view line, std::size_t width) {
  const std::size_t column = columnOf(line, width);
  text += line.substr(0, column);
  line.remove_prefix(column);
  while (line.size() > width - column) {
    std::size_t blank = line.rfind(' ', width - column);
    if (blank == std::string_view::npos) {
      blank = line.find(' ');
    }
    if (blank == std::string_view::npos) {
      break;
    }
    text += std::string(line.substr(0, blank)) + '\n' + std::string(column, ' ');
    line.remove_prefix(blank + 1);
  }
  text += line;
}

}  // namespace

std::string wrappedHelp(std::string_view text, std::size_t width) {
  std::string wrapped;
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(text.size(), line.size() + 1));
    if (line.starts_with(kExample)) {
      wrapped += line;
    } else {
      addWrapped(wrapped, line, width);
    }
    wrapped += '\n';
  }
  return wrapped;
}

}  // namespace tarnwick
