// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/web/coding.h"

namespace tarnwick {

/// The compressions of one answer, taken off one after the other as it arrives. Other than the transfer library's own
/// decoders it knows whether each has come to its end.
class ContentDecoder {
 public:
  /// `codings` are named as in a header, in the order in which they were applied. One that is not known is an error of
  /// the answer's first byte; so are more than five. `largestPage` bounds what lies between two codings, too.
  ContentDecoder(const std::vector<std::string>& codings, std::size_t largestPage);

  /// Hands what the next piece of the answer comes to over to `take`. False when it cannot be decoded, or when `take`
  /// has stopped it; nothing may be decoded after that. Raises std::bad_alloc.
  bool decode(std::string_view piece, const Coding::Taker& take);

  /// Each coding that has got any data has come to its end.
  bool complete() const;

  /// The codings that are known, as a header asks for them.
  static std::string accepted();

 private:
  struct Stage {
    std::unique_ptr<Coding> coding;
    bool begun = false;
    std::size_t made = 0;
  };

  bool decode(std::size_t stage, std::string_view piece, const Coding::Taker& take);

  /// The one that was applied last is the first.
  std::vector<Stage> stages_;
  std::size_t mostBetween_;
};

}  // namespace tarnwick
