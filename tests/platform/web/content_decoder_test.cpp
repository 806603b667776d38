// SPDX-License-Identifier: MIT
// Compressed answers, taken apart: what they come to, and whether they have come to their end.
#include "platform/web/content_decoder.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "support/http_message.h"

namespace tarnwick::testing {
namespace {

constexpr std::size_t kLargest = 100'000;
const std::string kPage = "a page, a page, a page and its end\n";

std::string fromHex(std::string_view digits) {
  std::string bytes;
  for (; digits.size() >= 2; digits.remove_prefix(2)) {
    bytes += static_cast<char>(std::stoi(std::string(digits.substr(0, 2)), nullptr, 16));
  }
  return bytes;
}

std::string gzipped(const std::string& text) { return compressed(text, HttpCoding::gzip); }

struct Packed {
  std::string coding;
  std::string bytes;
};

const std::string kBare = fromHex("4b5428484c4fd5514844a11512f35214324b8a1552f352b800");
const std::string kZstandard =
    fromHex("28b52ffd0458dd0000a86120706167652c2020616e642069747320656e640a0100930b175925c2cc");

bool isKnown(const std::string& coding) { return ContentDecoder::accepted().find(coding) != std::string::npos; }

/// `kPage` in each coding that is built in.
std::vector<Packed> packedPages() {
  std::vector<Packed> all{
      {"gzip", gzipped(kPage)}, {"X-GZip", gzipped(kPage)}, {"deflate", compressed(kPage, HttpCoding::deflate)}};
  if (isKnown("br")) {
    all.push_back({"br", fromHex("1b220000c46dec7b96fcee1192e84450a90b30fa94b30e71550eea9790fea32701")});
  }
  if (isKnown("zstd")) {
    all.push_back({"zstd", kZstandard});
  }
  return all;
}

struct Decoded {
  bool sound = true;
  bool complete = false;
  std::string page{};

  bool operator==(const Decoded&) const = default;
};

Decoded whole(const std::string& page) { return {.sound = true, .complete = true, .page = page}; }

Decoded decode(const std::vector<std::string>& codings, const std::string& bytes, std::size_t step = 100'000) {
  ContentDecoder decoder(codings, kLargest);
  Decoded decoded;
  for (std::size_t at = 0; decoded.sound && at < bytes.size(); at += step) {
    decoded.sound = decoder.decode(std::string_view(bytes).substr(at, step), [&](std::string_view made) {
      decoded.page += made;
      return true;
    });
  }
  decoded.complete = decoder.complete();
  return decoded;
}

void PrintTo(const Decoded& decoded, std::ostream* out) {
  *out << (decoded.sound ? "sound, " : "damaged, ") << (decoded.complete ? "complete, " : "incomplete, ")
       << decoded.page.substr(0, 100);
}

TEST(ContentDecoderTest, EachCodingIsTakenOffInPiecesOfAnySize) {
  for (const Packed& packed : packedPages()) {
    for (std::size_t step = 1; step <= packed.bytes.size(); ++step) {
      EXPECT_EQ(decode({packed.coding}, packed.bytes, step), whole(kPage)) << packed.coding << " by " << step;
    }
  }
}

TEST(ContentDecoderTest, CutAnywhereItIsIncomplete) {
  for (const Packed& packed : packedPages()) {
    for (std::size_t length = 1; length < packed.bytes.size(); ++length) {
      const Decoded cut = decode({packed.coding}, packed.bytes.substr(0, length));
      EXPECT_TRUE(cut.sound) << packed.coding << " of " << length;
      EXPECT_FALSE(cut.complete) << packed.coding << " of " << length;
    }
    EXPECT_EQ(decode({packed.coding}, ""), whole("")) << packed.coding;
  }
}

TEST(ContentDecoderTest, WhatLiesBehindTheEndIsDamage) {
  for (const Packed& packed : packedPages()) {
    for (const std::size_t step : {std::size_t{1}, std::size_t{1000}}) {
      EXPECT_FALSE(decode({packed.coding}, packed.bytes + "tail", step).sound) << packed.coding;
    }
  }
}

TEST(ContentDecoderTest, DeflateMayHaveNoFrameButAChecksum) {
  for (std::size_t step = 1; step <= kBare.size(); ++step) {
    EXPECT_EQ(decode({"deflate"}, kBare, step), whole(kPage)) << step;
  }
  EXPECT_EQ(decode({"deflate"}, kBare + "1234"), whole(kPage));
  EXPECT_FALSE(decode({"deflate"}, kBare + "12345").sound);
  EXPECT_FALSE(decode({"deflate"}, kBare.substr(0, kBare.size() - 2)).complete);
  EXPECT_FALSE(decode({"deflate"}, "this was never compressed by anyone").sound);
}

TEST(ContentDecoderTest, GzipMayBeOfSeveralMembers) {
  const std::string two = gzipped("one and ") + gzipped("two");
  for (std::size_t step = 1; step <= two.size(); ++step) {
    EXPECT_EQ(decode({"gzip"}, two, step), whole("one and two")) << step;
  }
  const std::string cut = gzipped("one and ") + gzipped("two").substr(0, 1);
  EXPECT_FALSE(decode({"gzip"}, cut).complete);
  EXPECT_FALSE(decode({"gzip"}, gzipped("one") + compressed("two", HttpCoding::deflate)).sound);
}

TEST(ContentDecoderTest, GzipMayBeZlibInTruth) {
  EXPECT_EQ(decode({"gzip"}, compressed(kPage, HttpCoding::deflate)), whole(kPage));
}

TEST(ContentDecoderTest, AWrongChecksumIsDamage) {
  std::string packed = gzipped(kPage);
  packed[packed.size() - 6] = static_cast<char>(~packed[packed.size() - 6]);
  EXPECT_FALSE(decode({"gzip"}, packed).sound);
}

TEST(ContentDecoderTest, ZstandardMayBeOfSeveralFrames) {
  if (!isKnown("zstd")) {
    GTEST_SKIP() << "not built in";
  }
  for (std::size_t step = 1; step <= 2 * kZstandard.size(); ++step) {
    EXPECT_EQ(decode({"zstd"}, kZstandard + kZstandard, step), whole(kPage + kPage)) << step;
  }
  EXPECT_FALSE(decode({"zstd"}, kZstandard + kZstandard.substr(0, 12)).complete);
}

TEST(ContentDecoderTest, NoFrameMayKeepMoreThanTheLargestPage) {
  if (!isKnown("zstd")) {
    GTEST_SKIP() << "not built in";
  }
  EXPECT_EQ(decode({"zstd"}, fromHex("28b52ffd0080010000")), whole(""));  // a window of 64 MiB
  EXPECT_FALSE(decode({"zstd"}, fromHex("28b52ffd0088010000")).sound);    // and of 128 MiB
}

TEST(ContentDecoderTest, UpToFiveAreTakenOffTheLastOneFirst) {
  std::string packed = compressed(kPage, HttpCoding::deflate);
  std::vector<std::string> codings{"deflate"};
  for (; codings.size() <= 5; codings.emplace_back("gzip")) {
    EXPECT_EQ(decode(codings, packed), whole(kPage)) << codings.size();
    packed = gzipped(packed);
  }
  EXPECT_FALSE(decode(codings, packed).sound);
}

TEST(ContentDecoderTest, OneThatIsCutInsideAnotherIsIncomplete) {
  const std::string inner = gzipped(kPage);
  const Decoded cut = decode({"gzip", "gzip"}, gzipped(inner.substr(0, inner.size() - 8)));
  EXPECT_EQ(cut, (Decoded{.sound = true, .complete = false, .page = kPage}));
}

TEST(ContentDecoderTest, IdentityIsNone) {
  EXPECT_EQ(decode({"identity"}, kPage), whole(kPage));
  EXPECT_EQ(decode({"None", "gzip"}, gzipped(kPage)), whole(kPage));
}

TEST(ContentDecoderTest, AnUnknownOneFailsWithTheFirstByte) {
  EXPECT_FALSE(decode({"x-own"}, "x").sound);
  EXPECT_EQ(decode({"x-own"}, ""), whole(""));
}

TEST(ContentDecoderTest, WhoTakesThePageMayStopIt) {
  for (const Packed& packed : packedPages()) {
    ContentDecoder decoder({packed.coding}, kLargest);
    EXPECT_FALSE(decoder.decode(packed.bytes, [](std::string_view) { return false; })) << packed.coding;
  }
}

TEST(ContentDecoderTest, WhatLiesBetweenTwoCodingsIsBounded) {
  std::string blocks;  // of RFC 1951, without any data
  for (std::size_t block = 0; block < kLargest; ++block) {
    blocks += std::string("\0\0\0\xff\xff", 5);
  }
  EXPECT_FALSE(decode({"deflate", "gzip"}, gzipped(blocks)).sound);
  EXPECT_TRUE(decode({"deflate"}, blocks).sound);
}

TEST(ContentDecoderTest, WhatIsKnownIsAskedFor) {
  EXPECT_TRUE(ContentDecoder::accepted().starts_with("deflate, gzip")) << ContentDecoder::accepted();
}

}  // namespace
}  // namespace tarnwick::testing
