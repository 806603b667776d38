// SPDX-License-Identifier: MIT
#include "difference/change_groups.h"

#include <algorithm>
#include <map>
#include <utility>

#include "base/text.h"

namespace tarnwick {
namespace {

/// Further back nobody looks for the word before.
constexpr std::size_t kFarthestWord = 40;

bool isBlank(char byte) { return kWhiteSpace.find(byte) != std::string_view::npos; }

/// Where the word before `at` begins, on the same line; `at` where there is none.
std::size_t beginOfWordBefore(std::string_view page, std::size_t at) {
  const std::size_t farthest = at - std::min(at, kFarthestWord);
  std::size_t begin = at;
  while (begin > farthest && (page[begin - 1] == ' ' || page[begin - 1] == '\t')) {
    --begin;
  }
  std::size_t word = begin;
  while (word > farthest && !isBlank(page[word - 1]) && page[word - 1] != '>') {
    --word;
  }
  return word == begin || (word == farthest && word > 0) ? at : word;
}

/// The words of a page that have changed, each with the one before it.
std::vector<std::string> phrasesIn(std::string_view page, const ByteSpans& words) {
  std::vector<std::string> phrases;
  std::size_t last = 0;
  for (const ByteSpan& range : words) {
    const std::size_t begin = std::max(last, beginOfWordBefore(page, range.begin));
    phrases.emplace_back(trimmed(page.substr(begin, range.end - begin)));
    last = range.end;
  }
  return phrases;
}

}  // namespace

ChangePhrases phrasesOf(std::string_view before, std::string_view after, const PageDifference& difference) {
  ChangePhrases phrases;
  for (const PageChange& change : difference.changes) {
    const std::vector<std::string> removed = phrasesIn(before, change.removedWords);
    const std::vector<std::string> added = phrasesIn(after, change.addedWords);
    const bool isPaired = removed.size() == added.size();
    for (std::size_t i = 0; i < removed.size(); ++i) {
      phrases.push_back({removed[i], isPaired ? added[i] : std::string()});
    }
    for (std::size_t i = 0; i < added.size() && !isPaired; ++i) {
      phrases.push_back({"", added[i]});
    }
  }
  ChangePhrases once;
  for (ChangePhrase& phrase : phrases) {
    if (std::ranges::find(once, phrase) == once.end()) {
      once.push_back(std::move(phrase));
    }
  }
  return once;
}

std::vector<ChangeGroup> groupsOf(const std::vector<ChangePhrases>& pages) {
  std::map<ChangePhrases, std::vector<std::size_t>> alike;
  for (std::size_t page = 0; page < pages.size(); ++page) {
    if (!pages[page].empty()) {
      alike[pages[page]].push_back(page);
    }
  }
  std::vector<ChangeGroup> groups;
  groups.reserve(alike.size());
  for (auto& [phrases, members] : alike) {
    groups.push_back({phrases, std::move(members)});
  }
  std::ranges::sort(groups, [](const ChangeGroup& one, const ChangeGroup& other) {
    return one.pages.size() != other.pages.size() ? one.pages.size() > other.pages.size()
                                                  : one.pages.front() < other.pages.front();
  });
  return groups;
}

}  // namespace tarnwick
