// SPDX-License-Identifier: MIT
#include "holes/copies.h"

#include <algorithm>

namespace tarnwick {

Copies::Copies(std::span<const std::string> texts) : texts_(texts) {
  for (Region& region : differingRegions(texts)) {
    places_.push_back({std::move(region)});
  }
}

std::vector<std::string_view> Copies::values(const Region& region) const {
  std::vector<std::string_view> values;
  for (std::size_t copy = 0; copy < texts_.size(); ++copy) {
    values.push_back(region.in(texts_, copy));
  }
  return values;
}

std::string_view Copies::fixedBefore(std::size_t place) const {
  const std::size_t begin = place == 0 ? 0 : places_[place - 1].region.to.front();
  const std::size_t end = place < places_.size() ? places_[place].region.from.front() : first().size();
  return first().substr(begin, end - begin);
}

std::optional<std::vector<std::size_t>> Copies::everywhere(std::size_t at, bool isEnd) const {
  // The last place that begins before `at`, or there where its end is asked for.
  const auto next = std::ranges::find_if(places_, [&](const Place& place) {
    return isEnd ? place.region.from.front() >= at : place.region.from.front() > at;
  });
  if (isEnd && next != places_.end() && next->region.to.front() == at && next->region.from.front() == at) {
    return next->region.to;  // nothing stands there in the first copy
  }
  if (next == places_.begin()) {
    return std::vector<std::size_t>(texts_.size(), at);
  }
  const Region& before = (next - 1)->region;
  if (!isEnd && before.from.front() == at) {
    return before.from;
  }
  if (at < before.to.front()) {
    return std::nullopt;
  }
  std::vector<std::size_t> places = before.to;
  for (std::size_t& place : places) {
    place += at - before.to.front();
  }
  return places;
}

std::optional<Region> Copies::regionOf(std::size_t begin, std::size_t end) const {
  auto from = everywhere(begin, false);
  auto to = everywhere(end, true);
  return from && to ? std::optional(Region{std::move(*from), std::move(*to)}) : std::nullopt;
}

void Copies::put(Place place) {
  const Region& region = place.region;
  std::erase_if(places_, [&](const Place& other) {
    return other.region.from.front() >= region.from.front() && other.region.to.front() <= region.to.front();
  });
  const auto next = std::ranges::find_if(
      places_, [&](const Place& other) { return other.region.from.front() >= region.from.front(); });
  places_.insert(next, std::move(place));
}

void Copies::joinWithNext(std::size_t place) {
  places_[place].region.to = places_[place + 1].region.to;
  places_[place].known.reset();
  places_.erase(places_.begin() + static_cast<std::ptrdiff_t>(place) + 1);
}

}  // namespace tarnwick
