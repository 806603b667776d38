// SPDX-License-Identifier: MIT
#include "ui/baseline/hole_draft.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

#include "engine/learnt.h"
#include "holes/hole_values.h"
#include "holes/judge.h"
#include "page_rules/cut_page.h"

namespace tarnwick {
namespace {

constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max() / 2;

/// A page as its rules leave it; whole while one of them cannot be understood.
CutPage cutBy(std::string_view page, const std::vector<PageRule>& rules) {
  try {
    return cut(page, rules);
  } catch (const std::runtime_error&) {
    return cut(page, {});
  }
}

/// Whether what is typed at the edge of a hole becomes a part of it, where it may: another digit of a number does.
bool takesInItsEdges(HoleClass kind) { return kind != HoleClass::text && kind != HoleClass::anything; }

bool stands(const Hole& hole, std::string_view baseline) {
  return hole.end() <= baseline.size() && baseline.substr(0, hole.begin).ends_with(hole.before) &&
         baseline.substr(hole.end()).starts_with(hole.after) && fits(hole, baseline.substr(hole.begin, hole.length));
}

/// What the page has in each of the holes; nothing for those behind the first difference, and for those left out.
std::vector<std::optional<std::string>> seenIn(std::string_view page, std::string_view baseline, const Holes& holes,
                                               const std::vector<PageRule>& rules) {
  std::vector<std::optional<std::string>> seen(holes.size());
  if (page.empty()) {
    return seen;
  }
  const CutPage before = cutBy(baseline, rules);
  const CutPage now = cutBy(page, rules);
  Holes left;
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < holes.size(); ++i) {
    for (const Hole& hole : rules.empty() ? Holes{holes[i]} : holesLeft(before, {holes[i]})) {
      left.push_back(hole);
      places.push_back(i);
    }
  }
  const Judgement judged = judge(before.text, left, now.text);
  for (std::size_t i = 0; i < judged.values.size(); ++i) {
    seen[places[i]] = now.text.substr(judged.values[i].begin, judged.values[i].length);
  }
  return seen;
}

}  // namespace

void HoleDraft::see(std::string latest) {
  latest_ = std::move(latest);
  look();
}

void HoleDraft::start(RuleSet stored, std::string baseline) {
  baseline_ = std::move(baseline);
  latest_.clear();
  rules_ = std::move(stored.rules);
  entries_.clear();
  for (Hole& hole : stored.holes) {
    const bool isLost = !stands(hole, baseline_);
    entries_.push_back({std::move(hole), isLost});
  }
  changed();
}

void HoleDraft::follow(std::string baseline) {
  const std::string before = std::exchange(baseline_, std::move(baseline));
  const std::size_t shorter = std::min(before.size(), baseline_.size());
  std::size_t start = 0;
  while (start < shorter && before[start] == baseline_[start]) {
    ++start;
  }
  std::size_t end = 0;
  while (end < shorter - start && before[before.size() - 1 - end] == baseline_[baseline_.size() - 1 - end]) {
    ++end;
  }
  for (Entry& entry : entries_) {
    Hole& hole = entry.hole;
    if (entry.isLost) {
      continue;
    }
    const std::size_t behind = before.size() - end;
    const bool isOutside = hole.end() <= start || hole.begin >= behind;
    Hole grown = hole;
    grown.length = hole.length + baseline_.size() - before.size();
    if (hole.begin <= start && hole.end() >= behind && (!isOutside || takesInItsEdges(hole.kind)) &&
        fits(grown, own(grown))) {
      hole = std::move(grown);
    } else if (hole.begin >= behind) {
      hole.begin = hole.begin + baseline_.size() - before.size();
    } else if (!isOutside) {
      entry.isLost = true;
    }
  }
  changed();
}

// Looks for the places of the entries from `from` to `to`, between those of their neighbours.
void HoleDraft::placeAgain(std::size_t from, std::size_t to) {
  const std::size_t begin = from == 0 ? 0 : entries_[from - 1].hole.end();
  const std::size_t end = to < entries_.size() ? entries_[to].hole.begin : baseline_.size();
  Holes lost;
  for (std::size_t i = from; i < to; ++i) {
    lost.push_back(entries_[i].hole);
  }
  PlacedHoles found = placeIn(std::string_view(baseline_).substr(begin, end - begin), lost);
  auto next = found.placed.begin();
  auto missing = found.lost.begin();
  for (std::size_t i = from; i < to; ++i) {
    if (missing != found.lost.end() && *missing == entries_[i].hole) {
      ++missing;
    } else {
      entries_[i].hole = *next++;
      entries_[i].isLost = false;
      entries_[i].hole.begin += begin;
    }
  }
}

void HoleDraft::changed() {
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    std::size_t to = i;
    while (to < entries_.size() && entries_[to].isLost) {
      ++to;
    }
    if (to > i) {
      placeAgain(i, to);
      i = to;
    }
  }
  look();
}

void HoleDraft::look() {
  const auto seen = seenIn(latest_, baseline_, placed(), rules_);
  auto next = seen.begin();
  for (Entry& entry : entries_) {
    entry.seen = entry.isLost ? std::nullopt : *next++;
  }
}

Holes HoleDraft::placed() const {
  Holes holes;
  for (const Entry& entry : entries_) {
    if (!entry.isLost) {
      holes.push_back(entry.hole);
    }
  }
  return holes;
}

RuleSet HoleDraft::set() const {
  RuleSet set{rules_, placed()};
  setAnchors(set.holes, baseline_);
  return set;
}

double HoleDraft::watched() const {
  if (rules_.empty() || baseline_.empty()) {
    return watchedShare(baseline_, placed());
  }
  const CutPage left = cutBy(baseline_, rules_);
  std::size_t size = 0;
  for (const ByteRange& range : left.kept) {
    size += range.end - range.begin;
  }
  for (const Hole& hole : holesLeft(left, placed())) {
    size -= hole.length;
  }
  return static_cast<double>(size) / static_cast<double>(baseline_.size());
}

void HoleDraft::setRules(std::vector<PageRule> rules) {
  rules_ = std::move(rules);
  look();
}

void HoleDraft::setHoles(Holes holes) {
  entries_.clear();
  for (Hole& hole : holes) {
    entries_.push_back({std::move(hole)});
  }
  look();
}

void HoleDraft::propose(const Holes& holes) {
  setHoles(united(placed(), holes));
  for (Entry& entry : entries_) {
    entry.isProposed = std::ranges::find(holes, entry.hole.begin, &Hole::begin) != holes.end();
  }
}

std::size_t HoleDraft::add(std::size_t begin, std::size_t end) {
  std::erase_if(entries_, [&](const Entry& entry) {
    const bool touches = !entry.isLost && entry.hole.begin <= end && entry.hole.end() >= begin;
    if (touches) {
      begin = std::min(begin, entry.hole.begin);
      end = std::max(end, entry.hole.end());
    }
    return touches;
  });
  const auto next =
      std::ranges::find_if(entries_, [&](const Entry& entry) { return !entry.isLost && entry.hole.begin >= end; });
  const auto place = static_cast<std::size_t>(next - entries_.begin());
  Entry& entry = *entries_.insert(
      next, {Hole{.begin = begin, .length = end - begin, .kind = HoleClass::anything, .most = kNoLimit}});
  look();
  Hole hole = smallestHole(own(entry.hole), entry.seen);
  hole.begin = begin;
  hole.length = end - begin;
  entry.hole = std::move(hole);
  Holes anchored = placed();
  setAnchors(anchored, baseline_);
  auto fresh = anchored.begin();
  for (Entry& each : entries_) {
    if (!each.isLost) {
      each.hole = std::move(*fresh++);
    }
  }
  look();
  return place;
}

void HoleDraft::remove(std::size_t entry) {
  entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(entry));
  look();
}

std::vector<HoleClass> HoleDraft::classesOf(std::size_t entry) const {
  std::vector<HoleClass> classes;
  for (const HoleClass kind : {HoleClass::digits, HoleClass::hex, HoleClass::base64, HoleClass::letters,
                               HoleClass::date, HoleClass::list, HoleClass::text, HoleClass::anything}) {
    const Hole& hole = entries_[entry].hole;
    if (hole.kind == kind || (!entries_[entry].isLost && holeOfClass(kind, own(hole), std::nullopt))) {
      classes.push_back(kind);
    }
  }
  return classes;
}

bool HoleDraft::setClass(std::size_t entry, HoleClass kind) {
  Entry& changed = entries_[entry];
  if (changed.isLost || changed.hole.kind == kind) {
    return false;
  }
  auto hole = holeOfClass(kind, own(changed.hole), changed.seen);
  if (!hole) {
    return false;
  }
  hole->begin = changed.hole.begin;
  hole->length = changed.hole.length;
  hole->before = changed.hole.before;
  hole->after = changed.hole.after;
  changed.hole = std::move(*hole);
  look();
  return true;
}

bool HoleDraft::setLengths(std::size_t entry, std::size_t least, std::size_t most) {
  Entry& changed = entries_[entry];
  Hole& hole = changed.hole;
  if (changed.isLost || hole.kind == HoleClass::date || hole.kind == HoleClass::list) {
    return false;
  }
  const std::size_t length =
      hole.kind == HoleClass::digits ? numberAt(own(hole), hole.form, nullptr).digits : hole.length;
  hole.least = std::min({least, most, length});
  hole.most = std::max({least, most, length});
  look();
  return true;
}

}  // namespace tarnwick
