// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace tarnwick {

/// Where the bytes of a page stand in it as `pageText` gives it, and the other way round. They are at the same places
/// in all pages but those in UTF-16, whose characters are kept whole.
class PageOffsets {
 public:
  /// `text` is `pageText(page)`, and outlives this object.
  PageOffsets(std::string_view page, std::string_view text);

  /// The place in the text of a place in the page.
  std::size_t inText(std::size_t inPage) const;
  /// The place in the page of a place in the text.
  std::size_t inPage(std::size_t inText) const;

 private:
  struct Place {
    std::size_t page = 0;
    std::size_t text = 0;
  };
  Place after(Place place) const;
  template <typename Member>
  Place placeAt(Member member, std::size_t at) const;

  std::string_view text_;
  std::vector<Place> known_;  ///< every so often one; empty when nothing is moved
};

}  // namespace tarnwick
