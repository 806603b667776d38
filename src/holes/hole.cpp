// SPDX-License-Identifier: MIT
#include "holes/hole.h"

#include <algorithm>
#include <array>

#include "holes/hole_values.h"

namespace tarnwick {
namespace {

constexpr std::array<std::string_view, 8> kWords = {"digits", "hex",  "base64", "letters",
                                                    "date",   "list", "text",   "anything"};

}  // namespace

std::string_view holeWord(HoleClass kind) { return kWords[static_cast<std::size_t>(kind)]; }

std::optional<HoleClass> holeClassOf(std::string_view word) {
  const auto* const found = std::ranges::find(kWords, word);
  return found == kWords.end() ? std::nullopt : std::optional(static_cast<HoleClass>(found - kWords.begin()));
}

void setAnchors(Holes& holes, std::string_view baseline) {
  for (std::size_t i = 0; i < holes.size(); ++i) {
    Hole& hole = holes[i];
    const std::size_t from = i == 0 ? 0 : holes[i - 1].end();
    const std::size_t to = i + 1 < holes.size() ? holes[i + 1].begin : baseline.size();
    const std::size_t before = std::min(kAnchor, hole.begin - from);
    hole.before = baseline.substr(hole.begin - before, before);
    hole.after = baseline.substr(hole.end(), std::min(kAnchor, to - hole.end()));
  }
}

double watchedShare(std::string_view baseline, const Holes& holes) {
  std::size_t open = 0;
  for (const Hole& hole : holes) {
    open += hole.length;
  }
  return baseline.empty() ? 1 : 1 - static_cast<double>(open) / static_cast<double>(baseline.size());
}

}  // namespace tarnwick
