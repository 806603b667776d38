// SPDX-License-Identifier: MIT
#include "holes/regions.h"

#include <algorithm>

#include "holes/alignment.h"

namespace tarnwick {
namespace {

/// More pieces in common than that are chance, and fewer where they are little of the text.
constexpr std::size_t kMostInCommon = 4000;
constexpr std::size_t kMostOfLittle = 200;
constexpr std::size_t kLittle = 20;  // one byte in so many
/// From here on little is not worth looking for it in all copies.
constexpr std::size_t kLarge = 1'000'000;
/// Of a picture or an archive: fewer equal bytes between two that differ are chance.
constexpr std::size_t kFewestEqualBytes = 3;

/// What the copies so far have in common: where it begins in each of them.
struct Common {
  std::vector<std::size_t> at;
  std::size_t length = 0;
};

std::vector<Common> narrowed(const std::vector<Common>& common, const std::vector<EqualStretch>& stretches) {
  std::vector<Common> both;
  auto stretch = stretches.begin();
  for (const Common& part : common) {
    const std::size_t begin = part.at.front();
    const std::size_t end = begin + part.length;
    while (stretch != stretches.end() && stretch->one + stretch->length <= begin) {
      ++stretch;
    }
    for (auto it = stretch; it != stretches.end() && it->one < end; ++it) {
      const std::size_t from = std::max(begin, it->one);
      const std::size_t to = std::min(end, it->one + it->length);
      Common next{part.at, to - from};
      for (std::size_t& at : next.at) {
        at += from - begin;
      }
      next.at.push_back(it->other + (from - it->one));
      both.push_back(std::move(next));
    }
  }
  return both;
}

// Two that touch in all copies are one.
void join(std::vector<Common>& common) {
  std::vector<Common> joined;
  for (Common& part : common) {
    bool touches = !joined.empty();
    for (std::size_t k = 0; touches && k < part.at.size(); ++k) {
      touches = joined.back().at[k] + joined.back().length == part.at[k];
    }
    if (touches) {
      joined.back().length += part.length;
    } else {
      joined.push_back(std::move(part));
    }
  }
  common = std::move(joined);
}

std::vector<Region> between(const std::vector<Common>& common, std::span<const std::string> copies) {
  std::vector<Region> regions;
  std::vector<std::size_t> last(copies.size(), 0);
  const auto add = [&](const std::vector<std::size_t>& next) {
    if (next != last) {
      regions.push_back({last, next});
    }
  };
  for (const Common& part : common) {
    add(part.at);
    last = part.at;
    for (std::size_t& at : last) {
      at += part.length;
    }
  }
  std::vector<std::size_t> ends;
  for (const std::string& copy : copies) {
    ends.push_back(copy.size());
  }
  add(ends);
  return regions;
}

// Pictures and archives have their fields at the same place.
std::vector<Common> equalPlaces(std::span<const std::string> copies) {
  std::vector<Common> common;
  const std::size_t size = copies.front().size();
  const auto equalAt = [&](std::size_t at) {
    return std::ranges::all_of(copies, [&](const std::string& copy) { return copy[at] == copies.front()[at]; });
  };
  for (std::size_t at = 0; at < size;) {
    std::size_t end = at;
    while (end < size && equalAt(end)) {
      ++end;
    }
    if (end - at >= kFewestEqualBytes || end == size || at == 0) {
      common.push_back({std::vector<std::size_t>(copies.size(), at), end - at});
    }
    at = std::max(end, at + 1);
  }
  std::erase_if(common, [](const Common& part) { return part.length == 0; });
  return common;
}

bool isChance(const std::vector<Common>& common, std::size_t size) {
  std::size_t inCommon = 0;
  for (const Common& part : common) {
    inCommon += part.length;
  }
  return common.size() > kMostInCommon ||
         ((common.size() > kMostOfLittle || size > kLarge) && inCommon * kLittle < size);
}

/// What all copies begin and end with.
std::vector<Common> commonEnds(std::span<const std::string> copies) {
  const std::string_view first = copies.front();
  std::size_t begin = first.size();
  std::size_t shortest = copies.back().size();
  for (const std::string_view copy : copies) {
    begin = std::min(begin, static_cast<std::size_t>(std::ranges::mismatch(first, copy).in1 - first.begin()));
    shortest = std::min(shortest, copy.size());
  }
  std::size_t end = shortest - begin;
  for (const std::string_view copy : copies) {
    const auto isEqual = [&](std::size_t length) { return copy[copy.size() - length] == first[first.size() - length]; };
    std::size_t equal = 0;
    while (equal < end && isEqual(equal + 1)) {
      ++equal;
    }
    end = equal;
  }
  std::vector<Common> common;
  if (begin > 0) {
    common.push_back({std::vector<std::size_t>(copies.size(), 0), begin});
  }
  if (end > 0) {
    std::vector<std::size_t> ends;
    for (const std::string_view copy : copies) {
      ends.push_back(copy.size() - end);
    }
    common.push_back({std::move(ends), end});
  }
  return common;
}

}  // namespace

bool isBinary(std::string_view page) { return page.find('\0') != std::string_view::npos; }

std::vector<Region> differingRegions(std::span<const std::string> copies) {
  const std::string& first = copies.front();
  const bool sameSize =
      std::ranges::all_of(copies, [&](const std::string& copy) { return copy.size() == first.size(); });
  std::vector<Common> common;
  if (sameSize && isBinary(first)) {
    common = equalPlaces(copies);
  } else {
    common.push_back({{0}, first.size()});
    for (const std::string& copy : copies.subspan(1)) {
      common = narrowed(common, alignTexts(first, copy));
      join(common);
      if (isChance(common, first.size())) {
        common = commonEnds(copies);
        break;
      }
    }
  }
  join(common);
  return between(common, copies);
}

std::vector<Region> regionBetweenEnds(std::span<const std::string> copies) {
  return between(commonEnds(copies), copies);
}

}  // namespace tarnwick
