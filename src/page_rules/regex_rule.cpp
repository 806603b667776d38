// SPDX-License-Identifier: MIT
#include <re2/re2.h>

#include <array>
#include <chrono>

#include "base/text.h"
#include "page_rules/languages.h"

namespace tarnwick {
namespace {

constexpr std::int64_t kMostMemory = std::int64_t{8} << 20;
/// Each single find takes time in proportion to the page, but a page may be made so that many take all of that.
constexpr std::chrono::milliseconds kLongest{250};
constexpr std::size_t kFindsBetweenLooks = 64;
/// ^ and $ are those of lines, as people mean them who write a rule for a page.
constexpr std::string_view kLines = "(?m)";

}  // namespace

std::vector<ByteRange> foundByRegex(const std::string& rule, std::string_view page) {
  RE2::Options options(RE2::Quiet);
  options.set_max_mem(kMostMemory);
  options.set_encoding(isUtf8(page) ? RE2::Options::EncodingUTF8 : RE2::Options::EncodingLatin1);
  const RE2 regex(std::string(kLines) + rule, options);
  if (!regex.ok()) {
    std::string fault = regex.error();
    if (const std::size_t own = fault.find(kLines); own != std::string::npos) {
      fault.erase(own, kLines.size());
    }
    throw RuleFault{fault};
  }
  const int group = regex.NumberOfCapturingGroups() > 0 ? 1 : 0;
  std::array<re2::StringPiece, 2> parts;
  std::vector<ByteRange> found;
  const auto begun = std::chrono::steady_clock::now();
  for (std::size_t at = 0; at <= page.size();) {
    if (!regex.Match({page.data(), page.size()}, at, page.size(), RE2::UNANCHORED, parts.data(), group + 1)) {
      break;
    }
    const auto placeOf = [&](const re2::StringPiece& part) {
      return static_cast<std::size_t>(part.data() - page.data());
    };
    const re2::StringPiece& part = parts[static_cast<std::size_t>(group)];
    if (!part.empty()) {
      found.push_back({placeOf(part), placeOf(part) + part.size()});
    }
    const std::size_t end = placeOf(parts[0]) + parts[0].size();
    at = parts[0].empty() ? end + 1 : end;
    if (found.size() % kFindsBetweenLooks == 0 && std::chrono::steady_clock::now() - begun > kLongest) {
      return {};
    }
  }
  return found;
}

}  // namespace tarnwick
