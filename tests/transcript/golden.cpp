// SPDX-License-Identifier: MIT
#include "transcript/golden.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <vector>

namespace tarnwick::testing {
namespace {

constexpr std::size_t kLinesBefore = 12;
constexpr std::size_t kLinesFrom = 12;

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

std::string piece(const std::vector<std::string>& lines, std::size_t from, std::size_t to, const char* mark) {
  std::string text;
  for (std::size_t i = from; i < std::min(to, lines.size()); ++i) {
    text += mark + lines[i] + "\n";
  }
  return text.empty() ? std::string(mark) + "(the text ends)\n" : text;
}

void write(const std::string& path, const std::string& text) { std::ofstream(path, std::ios::binary) << text; }

}  // namespace

std::string firstDifference(const std::string& stored, const std::string& actual) {
  if (stored == actual) {
    return {};
  }
  const auto before = linesOf(stored);
  const auto now = linesOf(actual);
  const auto [end, unused] = std::mismatch(before.begin(), before.end(), now.begin(), now.end());
  const auto at = static_cast<std::size_t>(end - before.begin());
  return "They differ from line " + std::to_string(at + 1) + " on:\n" +
         (at == 0 ? "" : piece(before, at - std::min(at, kLinesBefore), at, "  ")) +
         piece(before, at, at + kLinesFrom, "- ") + piece(now, at, at + kLinesFrom, "+ ");
}

void expectAsStored(const std::string& actual, const std::string& stored, const std::string& aside) {
  if (const char* const wanted = std::getenv("TARNWICK_TRANSCRIPT_OUT"); wanted != nullptr && *wanted != '\0') {
    write(wanted, actual);
  }
  std::ifstream file(stored, std::ios::binary);
  const std::string expected{std::istreambuf_iterator<char>(file), {}};
  const std::string difference = firstDifference(expected, actual);
  if (!difference.empty()) {
    write(aside, actual);
    ADD_FAILURE() << "The transcript is not the stored one (-) any more (+). " << difference << "See all of it with\n  "
                  << "diff -u " << stored << " " << aside;
  }
}

}  // namespace tarnwick::testing
