// SPDX-License-Identifier: MIT
#include "platform/web/content_decoder.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "base/text.h"

namespace tarnwick {
namespace {

constexpr std::size_t kMostCodings = 5;

struct KnownCoding {
  std::string_view name;
  /// How it is called as well.
  std::string_view alias;
  std::unique_ptr<Coding> (*make)();
};

constexpr std::array kKnownCodings{
    KnownCoding{"deflate", {}, &makeDeflate},
    KnownCoding{"gzip", "x-gzip", &makeGzip},
#ifdef TARNWICK_BROTLI
    KnownCoding{"br", {}, &makeBrotli},
#endif
#ifdef TARNWICK_ZSTANDARD
    KnownCoding{"zstd", {}, &makeZstandard},
#endif
};

class UnknownCoding final : public Coding {
 public:
  bool decode(std::string_view, const Taker&) override { return false; }
  bool ended() const override { return false; }
};

std::unique_ptr<Coding> makeCoding(std::string_view name) {
  const auto known = std::ranges::find_if(kKnownCodings, [&](const KnownCoding& coding) {
    return equalsIgnoringCase(coding.name, name) || equalsIgnoringCase(coding.alias, name);
  });
  return known == kKnownCodings.end() ? std::make_unique<UnknownCoding>() : known->make();
}

bool isNone(std::string_view name) { return equalsIgnoringCase(name, "identity") || equalsIgnoringCase(name, "none"); }

}  // namespace

// What is packed is hardly longer than the page. Without a bound a small answer could be years of work between two
// codings and come to no page at all.
ContentDecoder::ContentDecoder(const std::vector<std::string>& codings, std::size_t largestPage)
    : mostBetween_(2 * largestPage) {
  if (codings.size() > kMostCodings) {
    stages_.push_back({.coding = std::make_unique<UnknownCoding>()});
    return;
  }
  for (std::size_t at = codings.size(); at-- > 0;) {
    if (!isNone(codings[at])) {
      stages_.push_back({.coding = makeCoding(codings[at])});
    }
  }
}

bool ContentDecoder::decode(std::string_view piece, const Coding::Taker& take) {
  return piece.empty() || decode(0, piece, take);
}

bool ContentDecoder::decode(std::size_t stage, std::string_view piece, const Coding::Taker& take) {
  if (stage == stages_.size()) {
    return take(piece);
  }
  Stage& current = stages_[stage];
  current.begun = true;
  return current.coding->decode(piece, [&](std::string_view made) {
    current.made += made.size();
    return (stage + 1 == stages_.size() || current.made <= mostBetween_) && decode(stage + 1, made, take);
  });
}

bool ContentDecoder::complete() const {
  return std::ranges::all_of(stages_, [](const Stage& stage) { return !stage.begun || stage.coding->ended(); });
}

std::string ContentDecoder::accepted() {
  std::string names;
  for (const KnownCoding& coding : kKnownCodings) {
    names.append(names.empty() ? "" : ", ").append(coding.name);
  }
  return names;
}

}  // namespace tarnwick
