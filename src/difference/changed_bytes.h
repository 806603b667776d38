// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "difference/numbering.h"
#include "difference/page_difference.h"
#include "difference/sequence_search.h"

namespace tarnwick {

/// Finds what differs within changed lines: which words, and which bytes of them. Works a piece at a time.
class ChangedBytes {
 public:
  /// `unit` is how many bytes a character takes up at least. The pages outlive this object; `before` and `after` are
  /// the changed lines.
  ChangedBytes(std::string_view pageBefore, std::string_view pageAfter, ByteSpan before, ByteSpan after,
               std::size_t unit);

  /// Does a piece, and further ones until it is enough; true when all is done.
  bool step(const Enough& enough);

  /// Puts what was found into `change`. REQUIRES: all is done.
  void takeTo(PageChange& change);

 private:
  struct Side {
    std::string_view page;
    ByteSpan range;  ///< what is to be looked at
    std::size_t next = 0;
    std::vector<std::uint32_t> begins{};  ///< of the words
    SequenceSearch::Numbers numbers{};
    ByteSpans bytes{};
    ByteSpans words{};

    ByteSpan wordsFrom(std::size_t first, std::size_t end) const;
  };
  /// Words of the one side in the place of words of the other.
  struct Run {
    ByteSpan before, after;
  };

  bool searchAll(const Enough& enough);
  void takeFewest();
  void growWords(Side& side) const;
  void trimEqualEnds();
  std::size_t beginOfWord(std::string_view text, std::size_t at) const;
  bool splitWords(Side& side, const Enough& enough);
  void findRuns();
  bool stepRun(const Enough& enough);
  void markWhole(const Run& run);
  void markFound(const Run& run);
  static SequenceSearch::Numbers bytesOf(std::string_view text);

  std::size_t unit_;
  Side before_;
  Side after_;
  Numbering known_;
  /// Over all bytes, where that finds the fewest.
  std::optional<SequenceSearch> all_;
  bool isSearched_ = false;
  bool isSplit_ = false;
  std::optional<SequenceSearch> words_;
  bool hasRuns_ = false;
  std::vector<Run> runs_;
  std::size_t nextRun_ = 0;
  /// Of the run that is being looked at.
  std::optional<SequenceSearch> bytes_;
};

}  // namespace tarnwick
