// SPDX-License-Identifier: MIT
// The hole that a person means who says no more than which class it has.
#include <algorithm>
#include <array>
#include <limits>

#include "holes/classify.h"
#include "holes/date_form.h"
#include "holes/hole_values.h"
#include "holes/regions.h"
#include "ui/baseline/hole_draft.h"

namespace tarnwick {
namespace {

constexpr std::size_t kRoomForKey = 64;
constexpr std::size_t kRoomForWords = 200;
constexpr std::size_t kRoomForAnything = 4096;

std::vector<std::string_view> valuesOf(std::string_view own, const std::optional<std::string>& seen) {
  std::vector<std::string_view> values{own};
  if (seen) {
    values.emplace_back(*seen);
  }
  return values;
}

std::optional<Hole> dateHole(std::string_view own) {
  const auto date = dateAt(own, 0);
  return date && date->length == own.size() ? std::optional(Hole{.kind = HoleClass::date, .form = date->form})
                                            : std::nullopt;
}

Hole listHole(std::string_view own, const std::optional<std::string>& seen) {
  Hole hole{.kind = HoleClass::list};
  for (const std::string_view value : valuesOf(own, seen)) {
    if (std::ranges::find(hole.choices, value) == hole.choices.end()) {
      hole.choices.emplace_back(value);
    }
  }
  // The longest first, lest one stands for the beginning of another.
  std::ranges::stable_sort(hole.choices, std::ranges::greater{}, &std::string::size);
  return hole;
}

}  // namespace

Hole smallestHole(std::string_view own, const std::optional<std::string>& seen) {
  if (auto date = dateHole(own); date && (!seen || fits(*date, *seen))) {
    return *date;
  }
  return classified(valuesOf(own, seen), isBinary(own));
}

std::optional<Hole> holeOfClass(HoleClass kind, std::string_view own, const std::optional<std::string>& seen) {
  if (kind == HoleClass::date) {
    return dateHole(own);
  }
  if (kind == HoleClass::list) {
    return listHole(own, seen);
  }
  const std::array<std::optional<std::string>, 2> known = {seen, std::nullopt};
  for (const auto& other : known) {
    if (Hole hole = classified(valuesOf(own, other), isBinary(own)); hole.kind == kind) {
      return hole;
    }
  }
  const std::size_t longest = std::max(own.size(), seen ? seen->size() : 0);
  const std::size_t least = own.empty() ? 0 : 1;
  Hole hole{.kind = kind, .least = least, .most = std::max(kRoomForKey, 2 * longest)};
  if (kind == HoleClass::text) {
    hole.least = 0;
    hole.most = std::max(kRoomForWords, 4 * longest);
  } else if (kind == HoleClass::anything) {
    hole.least = 0;
    hole.most = 4 * longest + kRoomForAnything;
  }
  return fits(hole, own) ? std::optional(hole) : std::nullopt;
}

}  // namespace tarnwick
