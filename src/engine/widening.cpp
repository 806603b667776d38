// SPDX-License-Identifier: MIT
#include "engine/widening.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <utility>

#include "difference/first_difference.h"
#include "holes/classify.h"
#include "holes/hole_values.h"
#include "holes/hole_words.h"
#include "holes/judge.h"
#include "holes/learn.h"
#include "holes/page_text.h"
#include "holes/regions.h"
#include "page_rules/cut_page.h"
#include "page_rules/page_judge.h"

namespace tarnwick {
namespace {

/// Of a longer one nobody sees at a glance what it looks like.
constexpr std::size_t kLongestLine = 2000;

std::string lookOf(const Hole& hole) {
  return hole.kind == HoleClass::date ? describe(hole) : hole.kind == HoleClass::digits ? "a number" : "a key";
}

CutPage cutBy(std::string_view page, const std::vector<PageRule>& rules) {
  try {
    return cut(page, rules);
  } catch (const std::runtime_error&) {
    return cut(page, {});  // as it is judged
  }
}

/// A place where the two texts differ, or may differ already.
struct Spot {
  Hole hole;
  bool isStored = false;
  std::string_view now{};  ///< what the page has there; of a difference alone
};

/// Spots that overlap or touch; of differences alone it is one.
struct Cluster {
  std::size_t begin = 0;
  std::size_t end = 0;
  std::vector<Spot> spots;

  bool hasStored() const { return std::ranges::any_of(spots, &Spot::isStored); }
  bool isAllStored() const { return std::ranges::all_of(spots, &Spot::isStored); }
};

std::vector<Spot> differencesOf(const std::string& before, const std::string& now, LocalTime when) {
  const std::array<std::string, 2> texts = {before, now};
  const Lesson lesson = learn(texts, when);
  const Judgement judged = judge(before, lesson.holes, now);
  std::vector<Spot> spots;
  for (std::size_t i = 0; judged.same && i < lesson.holes.size(); ++i) {
    const Judgement::Part& part = judged.values[i];
    spots.push_back({lesson.holes[i], false, std::string_view(now).substr(part.begin, part.length)});
  }
  return spots;
}

// The stored ones come first among those that begin at one place.
std::vector<Cluster> clustersOf(std::vector<Spot> spots) {
  std::ranges::stable_sort(spots, {}, [](const Spot& spot) { return spot.hole.begin; });
  std::vector<Cluster> clusters;
  for (Spot& spot : spots) {
    if (clusters.empty() || spot.hole.begin > clusters.back().end || !(spot.isStored || clusters.back().hasStored())) {
      clusters.push_back({spot.hole.begin, spot.hole.end(), {}});
    }
    clusters.back().end = std::max(clusters.back().end, spot.hole.end());
    clusters.back().spots.push_back(std::move(spot));
  }
  return clusters;
}

/// What the page has in place of all of a cluster.
std::string valueOf(const Cluster& cluster, std::string_view before) {
  std::string value;
  std::size_t at = cluster.begin;
  for (const Spot& spot : cluster.spots) {
    if (!spot.isStored) {
      value += before.substr(at, spot.hole.begin - at);
      value += spot.now;
      at = spot.hole.end();
    }
  }
  return value += before.substr(at, cluster.end - at);
}

/// One hole for a stored one and the differences that it is too narrow for.
std::optional<Hole> widened(const Cluster& cluster, std::string_view before) {
  const std::string_view own = before.substr(cluster.begin, cluster.end - cluster.begin);
  const std::string value = valueOf(cluster, before);
  const Hole& first = cluster.spots.front().hole;
  std::vector<Hole> candidates;
  for (const Spot& spot : cluster.spots) {
    if (!spot.isStored) {
      candidates.push_back(spot.hole);
    }
  }
  candidates.push_back(classified(std::array{own, std::string_view(value)}, isBinary(before)));
  for (Hole& hole : candidates) {
    for (const Spot& spot : cluster.spots) {
      if (spot.isStored && spot.hole.kind == hole.kind) {
        hole.least = std::min(hole.least, spot.hole.least);
        hole.most = std::max(hole.most, spot.hole.most);
      }
    }
    if ((looksVolatile(hole) || hole.kind == first.kind) && fits(hole, own) && fits(hole, value)) {
      hole.begin = cluster.begin;
      hole.length = own.size();
      return hole;
    }
  }
  return std::nullopt;
}

std::optional<Hole> proposalFor(const Cluster& cluster, std::string_view before) {
  if (cluster.isAllStored()) {
    return std::nullopt;
  }
  const Hole& first = cluster.spots.front().hole;
  if (!cluster.hasStored()) {
    return looksVolatile(first) ? std::optional(first) : std::nullopt;
  }
  const bool isWideEnough = cluster.spots.front().isStored && first.end() == cluster.end &&
                            std::ranges::count_if(cluster.spots, &Spot::isStored) == 1 &&
                            fits(first, valueOf(cluster, before));
  return isWideEnough ? std::nullopt : widened(cluster, before);
}

/// The hole at its place in the page that was cut; nothing when it lies across a cut.
std::optional<Hole> inPage(const CutPage& page, Hole hole) {
  const std::size_t begin = page.inPage(hole.begin);
  if (hole.length > 0 && page.inPage(hole.end() - 1) + 1 - begin != hole.length) {
    return std::nullopt;
  }
  hole.begin = begin;
  return hole;
}

Learnt judged(const std::string& baseline, const std::string& before, const RuleSet& set, const std::string& page) {
  const PageVerdict verdict = judgePage(baseline, page, set);
  Learnt learnt;
  learnt.watched = watchedShare(before, set.holes);
  learnt.explains = verdict.same;
  learnt.line = verdict.same ? 0 : lineAt(before, verdict.baselineAt).number;
  return learnt;
}

}  // namespace

bool looksVolatile(const Hole& hole) {
  return hole.kind == HoleClass::digits || hole.kind == HoleClass::hex || hole.kind == HoleClass::base64 ||
         hole.kind == HoleClass::date;
}

std::string firstLook(std::string_view baseline, const RuleSet& set, std::string_view page) {
  const std::string before = pageText(baseline);
  const std::string now = pageText(page);
  const PageVerdict verdict = judgePage(before, now, set);
  const std::string_view lineBefore = lineAt(before, verdict.baselineAt).text;
  const std::string_view lineNow = lineAt(now, verdict.pageAt).text;
  if (verdict.same || std::max(lineBefore.size(), lineNow.size()) > kLongestLine) {
    return {};
  }
  const std::array<std::string, 2> lines = {std::string(lineBefore), std::string(lineNow)};
  const Holes holes = learn(lines, LocalTime{}).holes;
  return !holes.empty() && std::ranges::all_of(holes, looksVolatile) && judge(lines[0], holes, lines[1]).same
             ? lookOf(holes.front())
             : std::string();
}

Learnt widenedBy(const std::string& baseline, const RuleSet& set, const std::string& page, LocalTime now) {
  const std::string before = pageText(baseline);
  const Holes stored = holesOf(before, set.holes).placed;
  const CutPage cutBefore = cutBy(before, set.rules);
  const CutPage cutNow = cutBy(pageText(page), set.rules);
  std::vector<Spot> spots;
  for (const Hole& hole : holesLeft(cutBefore, stored)) {
    spots.push_back({hole, true});
  }
  std::ranges::move(differencesOf(cutBefore.text, cutNow.text, now), std::back_inserter(spots));
  Holes proposed;
  for (const Cluster& cluster : clustersOf(std::move(spots))) {
    const auto proposal = proposalFor(cluster, cutBefore.text);
    if (const auto hole = proposal ? inPage(cutBefore, *proposal) : std::nullopt) {
      proposed.push_back(*hole);
    }
  }
  Holes all = united(stored, proposed);
  setAnchors(all, before);
  Learnt learnt = judged(baseline, before, {set.rules, all}, page);
  for (const Hole& hole : all) {
    if (std::ranges::binary_search(proposed, hole.begin, {}, &Hole::begin)) {
      learnt.holes.push_back(hole);
    }
  }
  return learnt;
}

Learnt roughlyWidenedBy(const std::string& baseline, const RuleSet& set, const std::string& page) {
  const std::string before = pageText(baseline);
  return judged(baseline, before, {set.rules, holesOf(before, set.holes).placed}, page);
}

}  // namespace tarnwick
