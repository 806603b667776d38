// SPDX-License-Identifier: MIT
#include "difference/short_difference.h"

#include "base/text.h"
#include "base/visible_text.h"
#include "base/windows_1252.h"
#include "difference/first_difference.h"
#include "difference/unified_diff.h"

namespace tarnwick {
namespace {

/// What is looked at from three lines before the first difference on.
constexpr std::size_t kWindow = std::size_t{64} << 10U;
constexpr std::size_t kContext = 3;
constexpr std::size_t kLongestLine = 200;
constexpr const char* kMore = "...";

std::string shown(std::string_view line) {
  // Of a line that is far too long no more than what is shown of it.
  line = line.substr(0, kLongestLine * 4);
  std::string text;
  if (isUtf8(line.substr(0, line.size() < kLongestLine * 4 ? line.size() : line.size() - 4))) {
    text = line;
  } else {
    for (const char c : line) {
      appendUtf8(text, characterOfWindows1252(static_cast<unsigned char>(c)));
    }
  }
  return visibleText(text, kLongestLine);
}

std::size_t beginOfWindow(std::string_view same) {
  std::size_t begin = same.size();
  for (std::size_t lines = 0; lines <= kContext && begin > 0; ++lines) {
    const std::size_t feed = begin < 2 ? std::string_view::npos : same.rfind('\n', begin - (lines == 0 ? 1 : 2));
    begin = feed == std::string_view::npos ? 0 : feed + 1;
  }
  // A line that is far too long is shown from shortly before the difference on.
  return same.size() - begin > kWindow / 2 ? same.size() - kLongestLine / 4 : begin;
}

}  // namespace

std::string shortDifference(std::string_view before, std::string_view after, std::size_t mostLines) {
  if (before == after) {
    return {};
  }
  const std::string_view same = before.substr(0, commonBytes(before, after));
  const std::size_t begin = beginOfWindow(same);
  const bool isCut = before.size() - begin > kWindow || after.size() - begin > kWindow;
  std::string text;
  std::size_t lines = 0;
  unifiedDiff(before.substr(begin, kWindow), after.substr(begin, kWindow), [&](const DiffLine& line) {
    if (line.mark == '@' || line.mark == '\\' || ++lines > mostLines) {
      return;
    }
    text.append(1, line.mark).append(shown(line.text)).append("\n");
  });
  return lines > mostLines || isCut ? text + kMore + "\n" : text;
}

}  // namespace tarnwick
