// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// What may stand in a hole.
enum class HoleClass {
  digits,    ///< a number: digits, with separators between them as in 18,204 or 0.25
  hex,       ///< digits and a to f, in either case
  base64,    ///< letters, digits, and + / = - _ as they stand in keys and nonces
  letters,   ///< of any language
  date,      ///< a date, a time or both, in the form of the hole
  list,      ///< one of the choices of the hole
  text,      ///< words: anything on one line but markup and quotation marks
  anything,  ///< any bytes
};

/// The class by its word, as it stands on command lines and in JSON: "digits", "hex", "base64" ...
std::string_view holeWord(HoleClass kind);
/// Nothing for what is no such word.
std::optional<HoleClass> holeClassOf(std::string_view word);

/// A place of a baseline where a page may differ from it: all bytes around it stay exact.
struct Hole {
  std::size_t begin = 0;   ///< in the baseline as `pageText` gives it
  std::size_t length = 0;  ///< of what the baseline itself has there; may be 0
  HoleClass kind = HoleClass::anything;
  /// How long what stands there may be: digits of a number (separators do not count), else bytes. Without a meaning for
  /// `date` and `list`.
  std::size_t least = 0;
  std::size_t most = 0;
  std::vector<std::string> choices{};  ///< of `list`
  std::string form{};                  ///< of `date`, see `date_form.h`
  /// What stood around the hole when it was made, for finding it again in another baseline; at most `kAnchor` bytes
  /// each, less at the ends of the page and towards the next hole.
  std::string before{};
  std::string after{};

  std::size_t end() const { return begin + length; }
  bool operator==(const Hole&) const = default;
};

/// How many bytes around a hole are kept to find it again.
inline constexpr std::size_t kAnchor = 64;

/// Holes in their order in the baseline, none of which overlaps another. Two touch only where what stands in them tells
/// where the first ends.
using Holes = std::vector<Hole>;

/// Gives each hole the bytes that stand around it. REQUIRES: ordered holes within the baseline.
void setAnchors(Holes& holes, std::string_view baseline);

/// Where holes come to lie in another baseline.
struct PlacedHoles {
  Holes placed;
  Holes lost;  ///< those whose anchors are not there any more, or not in their order
};
/// Finds the places of holes again, by their anchors and by what may stand in them.
PlacedHoles placeIn(std::string_view baseline, const Holes& holes);

/// How much of the baseline is compared byte for byte, from 0 to 1; 1 for an empty one.
double watchedShare(std::string_view baseline, const Holes& holes);
/// Less than this is told: so much of the page may vary that hardly anything is watched.
inline constexpr double kLeastWatched = 0.8;

}  // namespace tarnwick
