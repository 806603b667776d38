// SPDX-License-Identifier: MIT
#include "platform/digest.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(Sha256, IsThatOfTheStandardsExamples) {
  EXPECT_EQ(sha256(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
  EXPECT_EQ(sha256("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
  EXPECT_EQ(sha256(std::string(1'000'000, 'a')), "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

TEST(Sha256, TakesAnyBytes) {
  std::string bytes = "a";
  bytes += '\0';
  EXPECT_NE(sha256(bytes), sha256("a"));
}

}  // namespace
}  // namespace tarnwick
