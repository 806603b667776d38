// SPDX-License-Identifier: MIT
#include "holes/trial.h"

#include <algorithm>
#include <chrono>

#include "holes/page_text.h"

namespace tarnwick::generated {
namespace {

using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

constexpr std::size_t kMostBrokenParts = 12;
/// Of less than that nobody could deface anything but what is beside a part that varies.
constexpr std::size_t kEnoughIsFixed = 200;
constexpr seconds kSpread = hours(24 * 400);
constexpr std::uint64_t kVisitsBetween = 23;

/// Some day and hour of 2026, a little before a minute ends, but no hour: the fetches see the minute change.
LocalTime startOf(const std::string& name) {
  Rng rng("start of " + name);
  const std::chrono::local_days first(std::chrono::year(2026) / 1 / 5);
  return LocalTime(first) + hours(rng.below(300 * 24)) + minutes(rng.below(59)) + seconds(57 + rng.below(3));
}

std::vector<std::string> texts(const std::vector<Made>& copies) {
  std::vector<std::string> result;
  result.reserve(copies.size());
  for (const auto& copy : copies) {
    result.push_back(pageText(copy.bytes));
  }
  return result;
}

bool muchIsFixed(const Generator& generator) {
  Rng rng("fixed");
  std::size_t fixed = 0;
  for (const auto& stretch : fixedStretches(generator.page({.time = startOf(generator.name)}, rng))) {
    fixed += stretch.length;
  }
  return fixed >= kEnoughIsFixed;
}

std::string shortened(std::string text) {
  for (auto& letter : text) {
    if (static_cast<unsigned char>(letter) < ' ') {
      letter = '~';
    }
  }
  return text.size() > 60 ? text.substr(0, 40) + " ... " + text.substr(text.size() - 15) : text;
}

}  // namespace

Trial::Trial(const Generator& generator, std::size_t round)
    : generator_(&generator),
      seed_(generator.name + (round == 0 ? "" : " in round " + std::to_string(round))),
      start_(startOf(seed_)) {
  Rng rng("learning " + seed_);
  Moment moment{.time = start_, .millisecond = rng.between(0, 999)};
  for (; moment.fetch < kLearningFetches; ++moment.fetch) {
    copies_.push_back(generator.page(moment, rng));
    moment.time += seconds(1 + rng.below(3));
    moment.millisecond = rng.between(0, 999);
    moment.visits += 1 + rng.below(2);
  }
  const auto learnt = texts(copies_);
  lesson_ = learn(learnt, moment.time);
  baseline_ = learnt.front();
}

Made Trial::further(std::size_t n) const {
  Rng rng(seed_ + "/" + std::to_string(n));
  const auto step = kSpread / static_cast<int>(generator_->furtherFetches);
  const Moment moment{.time = start_ + minutes(1) + step * static_cast<int>(n) +
                              seconds(rng.below(static_cast<std::size_t>(step.count()))),
                      .millisecond = rng.between(0, 999),
                      .fetch = kLearningFetches + n,
                      .visits = 10 + n * kVisitsBetween + rng.below(kVisitsBetween)};
  return generator_->page(moment, rng);
}

Judgement Trial::judged(std::string_view page) const { return judge(baseline_, lesson_.holes, pageText(page)); }

std::size_t Trial::sameFetches() const {
  std::size_t same = 0;
  for (std::size_t n = 0; n < generator_->furtherFetches; ++n) {
    same += judged(further(n).bytes).same ? 1 : 0;
  }
  return same;
}

std::optional<std::size_t> Trial::firstDifferent() const {
  for (std::size_t n = 0; n < generator_->furtherFetches; ++n) {
    if (!judged(further(n).bytes).same) {
      return n;
    }
  }
  return std::nullopt;
}

std::vector<Defaced> Trial::missedDefacements(std::size_t count) const {
  Rng rng("defacements of " + seed_);
  std::vector<Defaced> missed;
  for (std::size_t n = 0; n < count; ++n) {
    // What was seen while it was learnt is judged the same by any learner, so that there each miss is one.
    const auto page = n % 2 == 0 ? copies_[n / 2 % copies_.size()] : further(n % generator_->furtherFetches);
    auto changed = defaced(page, n, rng);
    if (judged(changed.bytes).same) {
      missed.push_back(std::move(changed));
    }
  }
  return missed;
}

std::vector<Defaced> Trial::missedBreaks() const {
  std::vector<Defaced> missed;
  for (const auto& page : {copies_.back(), further(generator_->furtherFetches / 3)}) {
    for (auto& changed : brokenClasses(page, kMostBrokenParts)) {
      if (judged(changed.bytes).same) {
        missed.push_back(std::move(changed));
      }
    }
  }
  return missed;
}

std::size_t defacementsOf(const Generator& generator) {
  static const auto eligible = [] {
    std::vector<std::string> names;
    for (const auto& each : allGenerators()) {
      if (muchIsFixed(each)) {
        names.push_back(each.name);
      }
    }
    return names;
  }();
  const auto found = std::find(eligible.begin(), eligible.end(), generator.name);
  if (found == eligible.end()) {
    return muchIsFixed(generator) ? kDefacements / eligible.size() : 0;
  }
  const auto place = static_cast<std::size_t>(found - eligible.begin());
  return kDefacements * (place + 1) / eligible.size() - kDefacements * place / eligible.size();
}

std::string describe(const Trial& trial) {
  std::string result;
  for (const auto& hole : trial.lesson().holes) {
    result += "  " + std::string(holeWord(hole.kind)) + " at " + std::to_string(hole.begin) + ", " +
              std::to_string(hole.least) + " to " + std::to_string(hole.most) +
              (hole.form.empty() ? "" : ", form " + hole.form) + ": \"" +
              shortened(trial.baseline().substr(hole.begin, hole.length)) + "\"\n";
    for (const auto& each : hole.choices) {
      result += "    or \"" + shortened(each) + "\"\n";
    }
  }
  for (const auto& warning : trial.lesson().warnings) {
    result += "  warning: " + warning + "\n";
  }
  return result;
}

}  // namespace tarnwick::generated
