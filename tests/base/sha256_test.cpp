// SPDX-License-Identifier: MIT
#include "base/sha256.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

// The examples of the standard, and the lengths around a block.
TEST(Sha256, IsThatOfTheStandard) {
  EXPECT_EQ(sha256(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
  EXPECT_EQ(sha256("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
  EXPECT_EQ(sha256("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
            "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
  EXPECT_EQ(sha256(std::string(1'000'000, 'a')), "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

TEST(Sha256, TellsApartWhatDiffersInItsLastByte) {
  for (std::size_t size = 50; size < 140; ++size) {
    EXPECT_NE(sha256(std::string(size, '\0')), sha256(std::string(size + 1, '\0')));
  }
}

}  // namespace
}  // namespace tarnwick
