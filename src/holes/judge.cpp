// SPDX-License-Identifier: MIT
#include "holes/judge.h"

#include <algorithm>
#include <cstring>

#include "holes/hole_values.h"

namespace tarnwick {
namespace {

constexpr std::size_t kNone = std::string_view::npos;
/// How often over a page and its baseline are looked at together before a page counts as made to be ambiguous.
constexpr std::size_t kMostLooks = 8;
constexpr std::size_t kFreeLooks = std::size_t{1} << 16U;

class Judge {
 public:
  Judge(std::string_view baseline, const Holes& holes, std::string_view page)
      : baseline_(baseline),
        holes_(holes),
        page_(page),
        looks_(kMostLooks * (baseline.size() + page.size()) + kFreeLooks) {
    result_.values.resize(holes.size());
  }

  Judgement judged() {
    result_.same = equalBehind(0, 0) && stretches();
    if (!result_.same) {
      result_.values.resize(std::min(holes_.size(), furthestHole_));
      result_.baselineAt = furthest_;
      result_.pageAt = furthestInPage_;
    }
    return std::move(result_);
  }

 private:
  // Holes that may hold anything divide the page into stretches, each of which lies at one place or is not there. The
  // first place that fits is the right one: what comes behind it has the more room.
  bool stretches() {
    std::size_t hole = 0;
    std::size_t at = fixedBefore(0).size();
    if (!along(hole, at)) {
      return false;
    }
    while (hole < holes_.size()) {
      if (!nextStretch(hole, at)) {
        return false;
      }
    }
    return at == page_.size() || differAt(baseline_.size(), at);
  }

  /// From behind the fixed bytes before `hole` to the next hole that may hold anything, or to the end.
  bool along(std::size_t& hole, std::size_t& at) {
    while (hole < holes_.size() && holes_[hole].kind != HoleClass::anything) {
      const std::size_t begin = at;
      const std::string_view behind = fixedBehind(hole);
      const char* next = behind.empty() ? nullptr : behind.data();
      const std::size_t length = findLength(holes_[hole], page_.substr(begin), next,
                                            [&](std::size_t l) { return equalBehind(hole + 1, begin + l); });
      if (length == kNone) {
        return differAt(holes_[hole].begin, begin);
      }
      looks_ -= std::min(looks_, length);
      result_.values[hole] = {begin, length};
      at = begin + length + behind.size();
      ++hole;
    }
    return true;
  }

  bool nextStretch(std::size_t& hole, std::size_t& at) {
    const Hole& open = holes_[hole];
    const std::string_view behind = fixedBehind(hole);
    const std::size_t begin = at;
    if (behind.empty()) {  // nothing but the end follows
      result_.values[hole] = {begin, page_.size() - begin};
      at = page_.size();
      return fits(open, page_.substr(begin)) ? ++hole > 0 : differAt(open.begin, begin);
    }
    const bool isLast = !opensBehind(hole);
    const std::size_t room = page_.size() - begin;
    const std::size_t last = begin + std::min(open.most, room);
    for (std::size_t from = begin + std::min(open.least, room + 1); from <= last; ++from) {
      from = findFixed(behind, from);
      if (from == kNone || from > last) {
        break;
      }
      std::size_t next = hole + 1;
      std::size_t end = from + behind.size();
      if (along(next, end) && (!isLast || end == page_.size() || differAt(baseline_.size(), end))) {
        result_.values[hole] = {begin, from - begin};
        hole = next;
        at = end;
        return true;
      }
    }
    return differAt(open.begin, begin);
  }

  bool opensBehind(std::size_t hole) const {
    return std::any_of(holes_.begin() + static_cast<std::ptrdiff_t>(hole) + 1, holes_.end(),
                       [](const Hole& other) { return other.kind == HoleClass::anything; });
  }

  std::string_view fixedBefore(std::size_t hole) const {
    const std::size_t begin = hole == 0 ? 0 : holes_[hole - 1].end();
    return baseline_.substr(begin, (hole < holes_.size() ? holes_[hole].begin : baseline_.size()) - begin);
  }
  std::string_view fixedBehind(std::size_t hole) const { return fixedBefore(hole + 1); }

  /// Whether the fixed bytes before a hole stand at this place of the page; those before no hole end with the page.
  bool equalBehind(std::size_t hole, std::size_t at) {
    const std::string_view fixed = fixedBefore(hole);
    const std::string_view there = page_.substr(std::min(at, page_.size()), fixed.size());
    if (there.size() == fixed.size() && (fixed.empty() || std::memcmp(there.data(), fixed.data(), fixed.size()) == 0)) {
      looks_ -= std::min(looks_, fixed.size());
      return looks_ > 0;
    }
    const auto equal =
        static_cast<std::size_t>(std::mismatch(there.begin(), there.end(), fixed.begin()).first - there.begin());
    looks_ -= std::min(looks_, equal);
    return differAt((hole == 0 ? 0 : holes_[hole - 1].end()) + equal, at + equal, hole);
  }

  std::size_t findFixed(std::string_view fixed, std::size_t from) {
    while (from + fixed.size() <= page_.size() && looks_ > 0) {
      const auto* found = static_cast<const char*>(
          std::memchr(page_.data() + from, fixed.front(), page_.size() - fixed.size() + 1 - from));
      if (found == nullptr) {
        return kNone;
      }
      const auto at = static_cast<std::size_t>(found - page_.data());
      looks_ -= std::min(looks_, at - from + 1);
      const auto equal =
          static_cast<std::size_t>(std::mismatch(fixed.begin(), fixed.end(), found).first - fixed.begin());
      if (equal == fixed.size()) {
        return at;
      }
      looks_ -= std::min(looks_, equal);
      from = at + 1;
    }
    return kNone;
  }

  /// Remembers the difference that lies furthest in the baseline: that is where the page went wrong. Always false.
  bool differAt(std::size_t baselineAt, std::size_t pageAt, std::size_t hole = kNone) {
    if (baselineAt >= furthest_) {
      furthest_ = baselineAt;
      furthestInPage_ = std::min(pageAt, page_.size());
      furthestHole_ = hole != kNone ? hole : holesBefore(baselineAt);
    }
    return false;
  }
  std::size_t holesBefore(std::size_t baselineAt) const {
    return static_cast<std::size_t>(std::ranges::count_if(
        holes_, [&](const Hole& hole) { return hole.end() <= baselineAt && hole.begin < baselineAt; }));
  }

  std::string_view baseline_;
  const Holes& holes_;
  std::string_view page_;
  std::size_t looks_;
  std::size_t furthest_ = 0;
  std::size_t furthestInPage_ = 0;
  std::size_t furthestHole_ = 0;
  Judgement result_;
};

}  // namespace

Judgement judge(std::string_view baseline, const Holes& holes, std::string_view page) {
  return Judge(baseline, holes, page).judged();
}

}  // namespace tarnwick
