// SPDX-License-Identifier: MIT
#include "holes/copies.h"

#include <algorithm>
#include <iterator>

namespace tarnwick {

Copies::Copies(std::span<const std::string> texts, std::vector<Region> regions) : texts_(texts) {
  for (Region& region : regions) {
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
  // The first place behind `at`, or the one there where an end is asked for: its own begin is no end before it.
  const auto next =
      isEnd ? std::ranges::lower_bound(places_, at, {}, [](const Place& place) { return place.region.from.front(); })
            : std::ranges::upper_bound(places_, at, {}, [](const Place& place) { return place.region.from.front(); });
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

std::span<const Place> Copies::placesWithin(std::size_t begin, std::size_t end) const {
  const auto first =
      std::ranges::lower_bound(places_, begin, {}, [](const Place& place) { return place.region.to.front(); });
  const auto last = std::ranges::upper_bound(first, places_.end(), end, {},
                                             [](const Place& place) { return place.region.from.front(); });
  return {first, last};
}

void Copies::replace(const Region& region, std::vector<Place> places) {
  const auto first = std::ranges::lower_bound(places_, region.from.front(), {},
                                              [](const Place& place) { return place.region.from.front(); });
  const auto last = std::find_if(first, places_.end(),
                                 [&](const Place& place) { return place.region.to.front() > region.to.front(); });
  const auto next = places_.erase(first, last);
  places_.insert(next, std::make_move_iterator(places.begin()), std::make_move_iterator(places.end()));
}

void Copies::put(Place place) {
  const Region region = place.region;
  std::vector<Place> one;
  one.push_back(std::move(place));
  replace(region, std::move(one));
}

void Copies::joinWithNext(std::size_t place) {
  places_[place].region.to = places_[place + 1].region.to;
  places_[place].known.reset();
  places_.erase(places_.begin() + static_cast<std::ptrdiff_t>(place) + 1);
}

}  // namespace tarnwick
