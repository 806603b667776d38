// SPDX-License-Identifier: MIT
#include <algorithm>
#include <optional>

#include "holes/hole.h"
#include "holes/hole_values.h"

namespace tarnwick {
namespace {

/// A place that fits has at least this many bytes of the anchors around it, unless the page begins or ends there.
constexpr std::size_t kFewestOfAnchor = 4;
constexpr std::size_t kMostTries = 64;

/// The bytes after `at` that a hole's value may take there, followed by `after`; nothing where that does not fit.
std::optional<std::size_t> lengthAt(const Hole& hole, std::string_view baseline, std::size_t at, std::string_view after,
                                    bool isEnd) {
  const std::string_view rest = baseline.substr(at);
  const auto isRight = [&](std::size_t length) {
    return after.empty() ? !isEnd || length == rest.size() : rest.substr(length).starts_with(after);
  };
  if (hole.kind == HoleClass::anything) {
    const std::size_t found = after.empty() ? rest.size() : rest.find(after, std::min(hole.least, rest.size()));
    return found != std::string_view::npos && fits(hole, rest.substr(0, found)) ? std::optional(found) : std::nullopt;
  }
  const std::size_t length = findLength(hole, rest, after.empty() ? nullptr : after.data(), isRight);
  return length != std::string_view::npos ? std::optional(length) : std::nullopt;
}

/// With the anchors halved until they are found, since a change nearby may have taken the rest.
std::optional<Hole> placed(std::string_view baseline, const Hole& hole, std::size_t from) {
  std::string_view before = hole.before;
  std::string_view after = hole.after;
  for (;;) {
    std::size_t tries = 0;
    const bool isBegin = before.empty();
    for (std::size_t at = isBegin ? from : baseline.find(before, from);
         at != std::string_view::npos && ++tries < kMostTries;
         at = isBegin ? std::string_view::npos : baseline.find(before, at + 1)) {
      if (const auto length = lengthAt(hole, baseline, at + before.size(), after, hole.after.empty())) {
        Hole there = hole;
        there.begin = at + before.size();
        there.length = *length;
        return there;
      }
    }
    if (before.size() / 2 < kFewestOfAnchor && after.size() / 2 < kFewestOfAnchor) {
      return std::nullopt;
    }
    if (before.size() / 2 >= kFewestOfAnchor) {
      before.remove_prefix(before.size() / 2);
    }
    if (after.size() / 2 >= kFewestOfAnchor) {
      after.remove_suffix(after.size() - after.size() / 2);
    }
  }
}

}  // namespace

PlacedHoles placeIn(std::string_view baseline, const Holes& holes) {
  PlacedHoles result;
  std::size_t from = 0;
  for (const Hole& hole : holes) {
    if (auto there = placed(baseline, hole, from)) {
      from = there->end();
      result.placed.push_back(std::move(*there));
    } else {
      result.lost.push_back(hole);
    }
  }
  return result;
}

}  // namespace tarnwick
