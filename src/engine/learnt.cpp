// SPDX-License-Identifier: MIT
#include "engine/learnt.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <utility>

#include "difference/first_difference.h"
#include "holes/judge.h"
#include "holes/learn.h"
#include "holes/page_text.h"
#include "page_rules/page_judge.h"

namespace tarnwick {
namespace {

bool touches(const Hole& one, const Hole& other) { return one.begin <= other.end() && other.begin <= one.end(); }

std::vector<std::string> textsOf(const std::vector<std::string>& copies) {
  std::vector<std::string> texts;
  texts.reserve(copies.size());
  for (const std::string& copy : copies) {
    texts.push_back(pageText(copy));
  }
  return texts;
}

Learnt placedIn(const std::vector<std::string>& texts, const std::string& baseline, Lesson lesson) {
  const std::string page = baseline.empty() ? texts.front() : pageText(baseline);
  PlacedHoles places = holesOf(page, lesson.holes);
  Learnt learnt{
      .holes = std::move(places.placed), .lost = std::move(places.lost), .warnings = std::move(lesson.warnings)};
  setAnchors(learnt.holes, page);
  learnt.watched = watchedShare(page, learnt.holes);
  for (const std::string& text : texts) {
    if (const Judgement judged = judge(page, learnt.holes, text); !judged.same) {
      learnt.explains = false;
      learnt.line = lineAt(page, judged.baselineAt).number;
      break;
    }
  }
  return learnt;
}

template <typename Number>
bool readNumber(std::string_view text, Number& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size();
}

bool readHole(std::string_view text, Holes& holes) {
  auto hole = holeOfText(text);
  if (hole) {
    holes.push_back(std::move(*hole));
  }
  return hole.has_value();
}

bool readLine(std::string_view line, Learnt& learnt) {
  const std::string_view text = line.substr(std::min<std::size_t>(1, line.size()));
  switch (line.empty() ? '\0' : line.front()) {
    case 'h':
      return readHole(text, learnt.holes);
    case 'l':
      return readHole(text, learnt.lost);
    case 'w':
      learnt.warnings.emplace_back(text);
      return true;
    case 's':
      return readNumber(text, learnt.watched);
    case 'd':
      learnt.explains = false;
      return readNumber(text, learnt.line);
    default:
      return false;
  }
}

}  // namespace

Learnt learntFrom(const std::vector<std::string>& copies, const std::string& baseline, LocalTime now) {
  const std::vector<std::string> texts = textsOf(copies);
  return placedIn(texts, baseline, learn(texts, now));
}

Learnt roughlyLearntFrom(const std::vector<std::string>& copies, const std::string& baseline) {
  const std::vector<std::string> texts = textsOf(copies);
  return placedIn(texts, baseline, learnRoughly(texts));
}

Holes united(const Holes& before, const Holes& learnt) {
  Holes all = learnt;
  for (const Hole& hole : before) {
    if (std::ranges::none_of(learnt, [&](const Hole& other) { return touches(hole, other); })) {
      all.push_back(hole);
    }
  }
  std::ranges::sort(all, {}, &Hole::begin);
  return all;
}

// A line each; neither a hole in a text nor a warning has a line end.
std::string packed(const Learnt& learnt) {
  std::string bytes;
  const auto add = [&](char kind, std::string_view text) { bytes.append(1, kind).append(text).append(1, '\n'); };
  for (const Hole& hole : learnt.holes) {
    add('h', holeText(hole));
  }
  for (const Hole& hole : learnt.lost) {
    add('l', holeText(hole));
  }
  for (const std::string& warning : learnt.warnings) {
    add('w', warning);
  }
  std::array<char, 32> share{};
  add('s', {share.data(), std::to_chars(share.data(), share.data() + share.size(), learnt.watched).ptr});
  if (!learnt.explains) {
    add('d', std::to_string(learnt.line));
  }
  return bytes;
}

std::optional<Learnt> unpackedLearnt(std::string_view bytes) {
  Learnt learnt;
  while (!bytes.empty()) {
    const std::string_view line = bytes.substr(0, bytes.find('\n'));
    if (!readLine(line, learnt)) {
      return std::nullopt;
    }
    bytes.remove_prefix(std::min(bytes.size(), line.size() + 1));
  }
  return learnt;
}

}  // namespace tarnwick
