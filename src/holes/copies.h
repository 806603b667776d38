// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "holes/hole.h"
#include "holes/regions.h"

namespace tarnwick {

/// A place that varies among copies, on the way to a hole.
struct Place {
  Region region;
  /// What stands there, where that is known already.
  std::optional<Hole> known{};
};

/// Several copies of a page and where they differ.
class Copies {
 public:
  explicit Copies(std::span<const std::string> texts) : Copies(texts, differingRegions(texts)) {}
  /// The same where it is known already where they differ.
  Copies(std::span<const std::string> texts, std::vector<Region> regions);

  std::span<const std::string> texts() const { return texts_; }
  std::string_view first() const { return texts_.front(); }
  std::vector<Place>& places() { return places_; }
  const std::vector<Place>& places() const { return places_; }

  /// What the copies have there, one each.
  std::vector<std::string_view> values(const Region& region) const;
  /// What stands between a place and the one before it, or the beginning or the end of the page: the same in all
  /// copies.
  std::string_view fixedBefore(std::size_t place) const;

  /// The part of the first copy from `begin` to `end` in each copy; nothing when one of the two ends lies within a
  /// place that varies.
  std::optional<Region> regionOf(std::size_t begin, std::size_t end) const;
  /// Puts a place there, instead of all those that it touches. REQUIRES: a region of `regionOf`.
  void put(Place place);
  /// Puts these places there instead of all that lie within that region. REQUIRES: ordered places within it.
  void replace(const Region& region, std::vector<Place> places);
  /// The places that overlap or touch a part of the first copy.
  std::span<const Place> placesWithin(std::size_t begin, std::size_t end) const;
  /// Makes one place of that one and the one after it.
  void joinWithNext(std::size_t place);

 private:
  std::optional<std::vector<std::size_t>> everywhere(std::size_t at, bool isEnd) const;

  std::span<const std::string> texts_;
  std::vector<Place> places_;
};

}  // namespace tarnwick
