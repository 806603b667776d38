// SPDX-License-Identifier: MIT
#include <re2/re2.h>

#include <array>
#include <ctime>

#include "base/text.h"
#include "page_rules/languages.h"

namespace tarnwick {
namespace {

constexpr std::int64_t kMostMemory = std::int64_t{8} << 20;
/// Each single find takes time in proportion to the page, but a page may be made so that many take all of that. It is
/// the time of the processor that counts: on a busy machine a rule finds what it finds elsewhere.
constexpr std::clock_t kLongest = CLOCKS_PER_SEC;
constexpr std::size_t kTriesBetweenLooks = 64;
/// ^ and $ are those of lines, as people mean them who write a rule for a page.
constexpr std::string_view kLines = "(?m)";

RE2::Options optionsFor(RE2::Options::Encoding encoding) {
  RE2::Options options(RE2::Quiet);
  options.set_max_mem(kMostMemory);
  options.set_encoding(encoding);
  return options;
}

}  // namespace

std::vector<ByteRange> foundByRegex(const std::string& rule, std::string_view page) {
  const auto own = isUtf8(rule) ? RE2::Options::EncodingUTF8 : RE2::Options::EncodingLatin1;
  const auto encoding = isUtf8(page) ? own : RE2::Options::EncodingLatin1;
  const std::string expression = std::string(kLines) + rule;
  const RE2 regex(expression, optionsFor(encoding));
  if (!regex.ok()) {
    if (encoding != own && RE2(expression, optionsFor(own)).ok()) {
      return {};  // it names letters that such a page cannot have
    }
    std::string fault = regex.error();
    if (const std::size_t added = fault.find(kLines); added != std::string::npos) {
      fault.erase(added, kLines.size());
    }
    throw RuleFault{fault};
  }
  const int group = regex.NumberOfCapturingGroups() > 0 ? 1 : 0;
  std::array<re2::StringPiece, 2> parts;
  std::vector<ByteRange> found;
  const std::clock_t begun = std::clock();
  std::size_t tries = 1;
  for (std::size_t at = 0; at <= page.size(); ++tries) {
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
    if (tries % kTriesBetweenLooks == 0 && std::clock() - begun > kLongest) {
      return {};
    }
  }
  return found;
}

}  // namespace tarnwick
