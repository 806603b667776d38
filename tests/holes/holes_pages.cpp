// SPDX-License-Identifier: MIT
// What the learner makes of the generated pages: holes_pages [PART-OF-A-NAME [ROUNDS [FOLDER]]] prints a line for each
// page, all about the ones that are named, and of many rounds those in which something is amiss. The folder gets the
// pages.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>

#include "holes/page_text.h"
#include "holes/trial.h"

namespace {

using namespace tarnwick::generated;
using tarnwick::holeWord;

/// Without what would change the terminal.
std::string shown(std::string_view bytes) {
  std::string result(bytes.substr(0, 70));
  for (auto& letter : result) {
    const auto code = static_cast<unsigned char>(letter);
    letter = code < ' ' || code == 0x7F ? '~' : letter;
  }
  return result;
}

std::string_view behind(std::string_view text, std::size_t at) { return text.substr(std::min(at, text.size())); }

void printAll(const Trial& trial, std::size_t defacements) {
  std::printf("%s", describe(trial).c_str());
  if (const auto different = trial.firstDifferent()) {
    const auto page = tarnwick::pageText(trial.further(*different).bytes);
    const auto judged = trial.judged(trial.further(*different).bytes);
    std::printf("  fetch %zu differs: baseline at %zu, page at %zu\n    had \"%s\"\n    has \"%s\"\n", *different,
                judged.baselineAt, judged.pageAt, shown(behind(trial.baseline(), judged.baselineAt)).c_str(),
                shown(behind(page, judged.pageAt)).c_str());
  }
  const auto& first = trial.copies().front();
  for (const auto& part : first.parts) {
    std::printf("  by its making %s at %zu: \"%s\"\n", std::string(holeWord(part.kind)).c_str(), part.begin,
                shown(first.bytes.substr(part.begin, part.length)).c_str());
  }
  for (const auto& missed : trial.missedDefacements(defacements)) {
    std::printf("  missed: %s\n", missed.how.c_str());
  }
  for (const auto& missed : trial.missedBreaks()) {
    std::printf("  missed: %s\n", shown(missed.how).c_str());
  }
}

/// The five copies and some later pages, for looking at them.
void write(const Trial& trial, const std::string& folder) {
  int number = 0;
  for (const auto& copy : trial.copies()) {
    std::ofstream(folder + "/copy" + std::to_string(number++), std::ios::binary) << copy.bytes;
  }
  for (const std::size_t n : {0U, 9U, 19U}) {
    std::ofstream(folder + "/later" + std::to_string(n), std::ios::binary) << trial.further(n).bytes;
  }
}

struct Sums {
  std::size_t learnable = 0;
  std::size_t learnt = 0;
  std::size_t defacements = 0;
  std::size_t missed = 0;
  std::size_t missedBreaks = 0;
};

void tryOut(const Generator& generator, std::size_t round, bool onlyAmiss, bool all, Sums& sums) {
  const auto begin = std::chrono::steady_clock::now();
  const Trial trial(generator, round);
  const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - begin);
  const bool learnable = generator.hope == Hope::learnable;
  const auto defacements = defacementsOf(generator);
  const auto same = trial.sameFetches();
  const auto missed = trial.missedDefacements(defacements).size();
  const auto breaks = learnable ? trial.missedBreaks().size() : 0;
  const bool good = learnable
                        ? same == generator.furtherFetches
                        : !trial.lesson().warnings.empty() || (trial.lesson().holes.empty() && trial.firstDifferent());
  sums.learnable += learnable ? 1 : 0;
  sums.learnt += learnable && good ? 1 : 0;
  sums.defacements += defacements;
  sums.missed += missed;
  sums.missedBreaks += breaks;
  if (onlyAmiss && good && missed == 0 && breaks == 0) {
    return;
  }
  std::printf("%-52s %5zu %5zu %8zu %6zu %5zu %4zu/%zu %5zu %8.3f %6lld\n", generator.name.c_str(), round,
              trial.lesson().holes.size(), trial.baseline().size(), same, trial.lesson().warnings.size(), missed,
              defacements, breaks, tarnwick::watchedShare(trial.baseline(), trial.lesson().holes),
              static_cast<long long>(took.count()));
  if (all) {
    printAll(trial, defacements);
  }
}

}  // namespace

int main(int argc, char** argv) {
  const std::string wanted = argc > 1 ? argv[1] : "";
  const std::size_t rounds = argc > 2 ? std::stoul(argv[2]) : 1;
  std::printf("%-52s %5s %5s %8s %6s %5s %7s %5s %8s %6s\n", "page", "round", "holes", "bytes", "same", "warn",
              "missed", "class", "watched", "ms");
  Sums sums;
  auto generators = allGenerators();
  for (auto& generator : furtherPages()) {
    generators.push_back(std::move(generator));
  }
  for (const auto& generator : generators) {
    if (generator.name.find(wanted) == std::string::npos) {
      continue;
    }
    for (std::size_t round = 0; round < rounds; ++round) {
      tryOut(generator, round, rounds > 1, !wanted.empty(), sums);
    }
    if (argc > 3) {
      write(Trial(generator), argv[3]);
    }
  }
  std::printf("%zu of %zu learnt, %zu of %zu defacements and %zu broken classes missed\n", sums.learnt, sums.learnable,
              sums.missed, sums.defacements, sums.missedBreaks);
  return 0;
}
