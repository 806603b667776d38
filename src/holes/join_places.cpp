// SPDX-License-Identifier: MIT
#include <algorithm>
#include <set>
#include <string>

#include "base/text.h"
#include "holes/classify.h"
#include "holes/hole_values.h"
#include "holes/widen.h"

namespace tarnwick {
namespace {

constexpr std::size_t kFewBytes = 3;
/// Bytes between two places that may be anything, or words, from which on they tell the two apart.
constexpr std::size_t kTellingBytes = 24;
constexpr std::size_t kTellingBesideBounded = 8;
/// What stands more often in a page tells no place from another.
constexpr std::size_t kMostRepeated = 2;

bool isOneOf(char c, std::string_view characters) { return characters.find(c) != std::string_view::npos; }

bool hasMarkup(std::string_view text) {
  return std::ranges::any_of(text, [](char c) { return isOneOf(c, "<>\"\n\r{}"); });
}

std::size_t timesIn(std::string_view page, std::string_view part, std::size_t most) {
  std::size_t times = 0;
  for (std::size_t at = page.find(part); at != std::string_view::npos && times < most; at = page.find(part, at + 1)) {
    ++times;
  }
  return times;
}

class Joiner {
 public:
  explicit Joiner(Copies& copies) : copies_(copies), binary_(isBinary(copies.first())) {}

  void join() {
    joinReordered();
    for (bool again = true; again;) {
      again = false;
      for (std::size_t i = 0; i + 1 < copies_.places().size();) {
        if (belongTogether(i)) {
          copies_.joinWithNext(i);
          again = true;
        } else {
          ++i;
        }
      }
    }
  }

 private:
  Hole holeOf(std::size_t place) const {
    const Place& it = copies_.places()[place];
    return it.known ? *it.known : classified(copies_.values(it.region), binary_);
  }

  bool belongTogether(std::size_t place) const {
    const std::string_view between = copies_.fixedBefore(place + 1);
    if (between.empty()) {  // a date and the check sum behind it stay two: each ends where it must
      return !binary_ || !copies_.places()[place].known || !copies_.places()[place + 1].known;
    }
    const Hole one = holeOf(place);
    const Hole other = holeOf(place + 1);
    const auto is = [&](HoleClass kind) { return one.kind == kind || other.kind == kind; };
    if (binary_) {
      return false;
    }
    if (is(HoleClass::anything)) {
      const std::size_t telling = isBounded(one) || isBounded(other) ? kTellingBesideBounded : kTellingBytes;
      return between.size() < telling || timesIn(copies_.first(), between, kMostRepeated + 1) > kMostRepeated;
    }
    if (is(HoleClass::text) && !hasMarkup(between)) {
      return between.size() < kTellingBytes;
    }
    if (one.kind == HoleClass::letters && other.kind == HoleClass::letters && !hasMarkup(between)) {
      return between.size() <= kFewBytes;
    }
    const bool areKeys = isKey(one) && isKey(other) && between.size() <= kFewBytes &&
                         std::ranges::all_of(between, [](char c) { return isOneOf(c, "+/=_-"); });
    const bool areHex = one.kind == HoleClass::hex && other.kind == HoleClass::hex;
    const bool areNumbers = one.kind == HoleClass::digits && other.kind == HoleClass::digits;
    return areKeys && !areHex && !areNumbers;
  }

  /// Whether what stands there shows by itself where it ends.
  static bool isBounded(const Hole& hole) {
    return hole.kind == HoleClass::digits || hole.kind == HoleClass::date || hole.kind == HoleClass::hex;
  }

  static bool isKey(const Hole& hole) {
    return hole.kind == HoleClass::base64 || hole.kind == HoleClass::hex || hole.kind == HoleClass::digits ||
           hole.kind == HoleClass::letters;
  }

  // What stands at one place in one copy and at another in another has moved: the whole row of such places is one.
  void joinReordered() {
    auto& places = copies_.places();
    for (std::size_t first = 0; first + 1 < places.size(); ++first) {
      std::size_t last = first;
      std::set<std::string_view> seen = valuesOf(first);
      for (std::size_t next = first + 1; next < places.size() && next <= last + kFurthestMove; ++next) {
        const auto other = valuesOf(next);
        if (std::ranges::any_of(other, [&](std::string_view value) { return seen.contains(value); }) &&
            isNear(last, next)) {
          last = next;
        }
      }
      for (std::size_t joined = first; joined < last; ++joined) {
        copies_.joinWithNext(first);
      }
    }
  }

  static constexpr std::size_t kFurthestMove = 12;
  static constexpr std::size_t kNearBytes = 2048;

  std::set<std::string_view> valuesOf(std::size_t place) const {
    const Place& it = copies_.places()[place];
    std::set<std::string_view> values;
    if (it.known) {
      return values;
    }
    const auto all = copies_.values(it.region);
    // The same value in the same copy at two places is a value that is shown twice.
    for (std::size_t copy = 0; copy < all.size(); ++copy) {
      if (all[copy].size() >= kFewBytes && std::ranges::count(all, all[copy]) == 1) {
        values.insert(all[copy]);
      }
    }
    return isShownTwice(place) ? std::set<std::string_view>{} : values;
  }

  /// Whether another place has in each copy what this one has.
  bool isShownTwice(std::size_t place) const {
    const auto values = copies_.values(copies_.places()[place].region);
    for (std::size_t other = 0; other < copies_.places().size(); ++other) {
      if (other != place && copies_.values(copies_.places()[other].region) == values) {
        return true;
      }
    }
    return false;
  }

  bool isNear(std::size_t one, std::size_t other) const {
    return copies_.places()[other].region.from.front() - copies_.places()[one].region.to.front() < kNearBytes;
  }

  Copies& copies_;
  bool binary_;
};

}  // namespace

void joinNeighbours(Copies& copies) { Joiner(copies).join(); }

}  // namespace tarnwick
