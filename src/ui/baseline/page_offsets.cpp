// SPDX-License-Identifier: MIT
#include "ui/baseline/page_offsets.h"

#include <algorithm>
#include <functional>

namespace tarnwick {
namespace {

// So far apart that they take no room, and so near that the way from one of them is short.
constexpr std::size_t kKnownEvery = 4096;

std::size_t lengthAt(std::string_view text, std::size_t at) {
  const auto first = static_cast<unsigned char>(text[at]);
  const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  return std::min(length, text.size() - at);
}

}  // namespace

PageOffsets::PageOffsets(std::string_view page, std::string_view text) : text_(text) {
  if (text == page) {
    return;
  }
  // The first byte of the text tells the order of the page's bytes, and stands for none of them.
  known_.push_back({0, 1});
  for (Place place{0, 1}; place.text < text_.size(); place = after(place)) {
    if (place.text >= known_.back().text + kKnownEvery) {
      known_.push_back(place);
    }
  }
}

PageOffsets::Place PageOffsets::after(Place place) const {
  const std::size_t length = lengthAt(text_, place.text);
  return {place.page + (length == 4 ? 4U : 2U), place.text + length};
}

// The last place that is not behind `at`.
template <typename Member>
PageOffsets::Place PageOffsets::placeAt(Member member, std::size_t at) const {
  const auto next = std::ranges::upper_bound(known_, at, std::less{}, member);
  Place place = next == known_.begin() ? known_.front() : *std::prev(next);
  while (place.text < text_.size() && after(place).*member <= at) {
    place = after(place);
  }
  return place;
}

std::size_t PageOffsets::inText(std::size_t inPage) const {
  return known_.empty() ? inPage : placeAt(&Place::page, inPage).text;
}

std::size_t PageOffsets::inPage(std::size_t inText) const {
  return known_.empty() ? inText : placeAt(&Place::text, inText).page;
}

}  // namespace tarnwick
