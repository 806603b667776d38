// SPDX-License-Identifier: MIT
// What the learner makes of the generated pages: a line for each, and all about those whose names hold the argument.
#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>

#include "holes/trial.h"

namespace {

using namespace tarnwick::generated;

void printAll(const Trial& trial, std::size_t defacements) {
  std::printf("%s", describe(trial).c_str());
  if (const auto different = trial.firstDifferent()) {
    const auto page = trial.further(*different).bytes;
    const auto judged = trial.judged(page);
    std::printf("  fetch %zu differs: baseline at %zu, page at %zu\n    had \"%s\"\n    has \"%s\"\n", *different,
                judged.baselineAt, judged.pageAt, trial.baseline().substr(judged.baselineAt, 60).c_str(),
                judged.pageAt < page.size() ? page.substr(judged.pageAt, 60).c_str() : "");
  }
  for (const auto& part : trial.copies().front().parts) {
    std::printf("  varies at %zu: \"%.60s\" as", part.begin,
                trial.copies().front().bytes.substr(part.begin, part.length).c_str());
    std::printf(" %s\n", std::string(tarnwick::holeWord(part.kind)).c_str());
  }
  for (const auto& missed : trial.missedDefacements(defacements)) {
    std::printf("  missed: %s\n", missed.how.c_str());
  }
  for (const auto& missed : trial.missedBreaks()) {
    std::printf("  missed: %s\n", missed.how.c_str());
  }
}

/// The five copies and three later pages, for looking at them.
void write(const Trial& trial, const std::string& folder) {
  int number = 0;
  for (const auto& copy : trial.copies()) {
    std::ofstream(folder + "/copy" + std::to_string(number++), std::ios::binary) << copy.bytes;
  }
  for (const std::size_t n : {0U, 9U, 19U}) {
    std::ofstream(folder + "/later" + std::to_string(n), std::ios::binary) << trial.further(n).bytes;
  }
}

}  // namespace

int main(int argc, char** argv) {
  const std::string wanted = argc > 1 ? argv[1] : "";
  std::size_t learnt = 0;
  std::size_t missed = 0;
  std::printf("%-52s %5s %8s %6s %5s %6s %5s %8s %6s\n", "page", "holes", "bytes", "same", "warn", "missed", "class",
              "watched", "ms");
  for (const auto& generator : allGenerators()) {
    if (generator.name.find(wanted) == std::string::npos) {
      continue;
    }
    const auto begin = std::chrono::steady_clock::now();
    const Trial trial(generator);
    const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - begin);
    const auto defacements = defacementsOf(generator);
    const auto same = trial.sameFetches();
    const auto missedHere = trial.missedDefacements(defacements).size();
    learnt += generator.hope == Hope::learnable && same == generator.furtherFetches ? 1 : 0;
    missed += missedHere;
    std::printf("%-52s %5zu %8zu %6zu %5zu %3zu/%zu %5zu %8.3f %6lld\n", generator.name.c_str(),
                trial.lesson().holes.size(), trial.baseline().size(), same, trial.lesson().warnings.size(), missedHere,
                defacements, generator.hope == Hope::learnable ? trial.missedBreaks().size() : 0,
                tarnwick::watchedShare(trial.baseline(), trial.lesson().holes), static_cast<long long>(took.count()));
    if (!wanted.empty()) {
      printAll(trial, defacements);
    }
    if (argc > 2) {
      write(trial, argv[2]);
    }
  }
  std::printf("%zu learnt, %zu defacements missed\n", learnt, missed);
  return 0;
}
