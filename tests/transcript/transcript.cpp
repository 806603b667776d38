// SPDX-License-Identifier: MIT
#include "transcript/transcript.h"

#include <array>
#include <cstdint>
#include <cstdio>

namespace tarnwick::testing {
namespace {

/// The kinds stand in a column of their own.
constexpr std::size_t kIndent = 9;
/// So many ticks in a row are written as they are; of more so many at either end.
constexpr std::size_t kMostTicks = 8;
constexpr std::size_t kTicksKept = 3;

std::string escaped(char c) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  switch (c) {
    case '\\':
      return "\\\\";
    case '\r':
      return "\\r";
    case '\n':
      return "\\n";
    default:
      break;
  }
  if (c >= ' ' && c <= '~') {
    return {c};
  }
  const auto code = static_cast<unsigned char>(c);
  return {'\\', 'x', kDigits[code >> 4U], kDigits[code & 15U]};
}

/// FNV-1a: enough to see a difference.
std::string checksumOf(const std::vector<std::string>& lines) {
  std::uint64_t sum = 14695981039346656037ULL;
  for (const std::string& line : lines) {
    for (const char c : line) {
      sum = (sum ^ static_cast<unsigned char>(c)) * 1099511628211ULL;
    }
  }
  std::array<char, 17> text{};
  std::snprintf(text.data(), text.size(), "%016llx", static_cast<unsigned long long>(sum));
  return text.data();
}

}  // namespace

void Transcript::scene(std::string_view title) {
  text_ += foldedTicks() + "\n== " + std::string(title) + "\n";
  ticks_.clear();
}

void Transcript::add(std::string_view kind, std::string_view bytes) {
  text_ += foldedTicks() + entry(kind, bytes);
  ticks_.clear();
}

void Transcript::addTick(std::string_view kind, std::string_view bytes) { ticks_.push_back(entry(kind, bytes)); }

void Transcript::rename(std::string text, std::string name) { names_.emplace_back(std::move(text), std::move(name)); }

std::string Transcript::entry(std::string_view kind, std::string_view bytes) const {
  std::string lines(kind);
  lines.resize(kIndent, ' ');
  const std::string named = renamed(bytes);
  for (std::size_t at = 0; at < named.size(); ++at) {
    lines += escaped(named[at]);
    if (named[at] == '\n' && at + 1 < named.size()) {
      lines += "\n" + std::string(kIndent, ' ');
    }
  }
  return lines + "\n";
}

std::string Transcript::renamed(std::string_view bytes) const {
  std::string result(bytes);
  for (const auto& [text, name] : names_) {
    for (std::size_t at = result.find(text); at != std::string::npos; at = result.find(text, at)) {
      const std::size_t next = at + text.size();
      const bool goesOn = next < result.size() && result[next] >= '0' && result[next] <= '9';
      if (!goesOn) {
        result.replace(at, text.size(), name);
      }
      at += goesOn ? text.size() : name.size();
    }
  }
  return result;
}

std::string Transcript::foldedTicks() const {
  std::string lines;
  const bool all = ticks_.size() <= kMostTicks;
  for (std::size_t i = 0; i < ticks_.size(); ++i) {
    if (all || i < kTicksKept || i >= ticks_.size() - kTicksKept) {
      lines += ticks_[i];
    } else if (i == kTicksKept) {
      lines += "   ...   " + std::to_string(ticks_.size() - 2 * kTicksKept) + " more, all together with the checksum " +
               checksumOf(ticks_) + "\n";
    }
  }
  return lines;
}

}  // namespace tarnwick::testing
