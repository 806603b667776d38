// SPDX-License-Identifier: MIT
#include "holes/learn.h"

#include <algorithm>

#include "holes/classify.h"
#include "holes/copies.h"
#include "holes/date_form.h"
#include "holes/judge.h"
#include "holes/lesson_warnings.h"
#include "holes/widen.h"

namespace tarnwick {
namespace {

/// More places than that are no places but a page that is always another one.
constexpr std::size_t kMostPlaces = 2000;

constexpr const char* kTooMuchToTellApart =
    "So much of the page changes that its places cannot be told apart: all from the first to the last of them is one.";

Hole holeOf(const Copies& copies, const Place& place, bool binary) {
  Hole hole = place.known ? *place.known : classified(copies.values(place.region), binary);
  hole.begin = place.region.from.front();
  hole.length = place.region.to.front() - hole.begin;
  return hole;
}

Holes holesOf(const Copies& copies) {
  const bool binary = isBinary(copies.first());
  Holes holes;
  for (const Place& place : copies.places()) {
    holes.push_back(holeOf(copies, place, binary));
  }
  return holes;
}

/// The place at which a copy differs though its holes were made of it; nothing when it does not.
std::optional<std::size_t> wrongPlace(const Copies& copies, const Holes& holes) {
  for (const std::string& copy : copies.texts()) {
    if (const Judgement judged = judge(copies.first(), holes, copy); !judged.same) {
      return judged.values.size();
    }
  }
  return std::nullopt;
}

Hole anythingAt(const Copies& copies, const Region& region) {
  Hole hole{.kind = HoleClass::anything};
  for (const std::string_view value : copies.values(region)) {
    hole.most = std::max(hole.most, 4 * value.size() + 4096);
  }
  return hole;
}

/// Two places between which too little stands to tell them apart become one; a last resort, since it always ends.
Holes explaining(Copies& copies) {
  Holes holes = holesOf(copies);
  while (!holes.empty()) {
    const auto wrong = wrongPlace(copies, holes);
    if (!wrong) {
      return holes;
    }
    auto& places = copies.places();
    const std::size_t place = std::min(*wrong > 0 ? *wrong - 1 : 0, places.size() - 1);
    if (Hole widest = anythingAt(copies, places[place].region); places[place].known != widest) {
      places[place].known = std::move(widest);
    } else if (places.size() > 1) {
      const std::size_t first = std::min(place, places.size() - 2);
      copies.joinWithNext(first);
      places[first].known = anythingAt(copies, places[first].region);
    } else {
      return holes;
    }
    holes = holesOf(copies);
  }
  return holes;
}

void makeOne(Copies& copies) {
  auto& places = copies.places();
  places.front().region.to = places.back().region.to;
  places.front().known = anythingAt(copies, places.front().region);
  places.resize(1);
}

}  // namespace

Lesson learn(std::span<const std::string> texts, LocalTime now) {
  const std::chrono::year_month_day today(std::chrono::floor<std::chrono::days>(now));
  Copies copies(texts);
  if (copies.places().size() > kMostPlaces) {
    makeOne(copies);
  } else {
    widenToWhole(copies);
    takeDatesBesideTimes(copies, today);
    joinNeighbours(copies);
    joinLists(copies);
  }
  Lesson lesson;
  lesson.holes = explaining(copies);
  setAnchors(lesson.holes, texts.front());
  lesson.warnings = warningsOf(texts, lesson.holes, now);
  return lesson;
}

Lesson learnRoughly(std::span<const std::string> texts) {
  Copies copies(texts, regionBetweenEnds(texts));
  if (!copies.places().empty()) {
    makeOne(copies);
  }
  Lesson lesson{holesOf(copies), {kTooMuchToTellApart}};
  setAnchors(lesson.holes, texts.front());
  return lesson;
}

}  // namespace tarnwick
