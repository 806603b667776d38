// SPDX-License-Identifier: MIT
#include "platform/web/page_body.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace tarnwick::testing {
namespace {

std::string pageOf(std::size_t length) {
  std::string page(length, '\0');
  for (std::size_t i = 0; i < length; ++i) {
    page[i] = static_cast<char>(i * 31 + i / 4096);
  }
  return page;
}

TEST(PageBodyTest, APageOfAnyLengthComesBackAsItCame) {
  constexpr std::size_t kKept = PageBody::kKeptInMemory;
  for (const std::size_t length : {std::size_t{0}, std::size_t{1}, kKept, kKept + 1, 3 * kKept, 64 * kKept / 4}) {
    const std::string page = pageOf(length);
    PageBody body;
    for (std::size_t from = 0; from < length; from += 16'000) {
      body.append(std::string_view(page).substr(from, 16'000));
    }
    EXPECT_EQ(body.size(), length);
    EXPECT_TRUE(body.take() == page) << length;
    EXPECT_TRUE(body.empty());
    EXPECT_EQ(body.take(), "");
  }
}

TEST(PageBodyTest, ItCanBeHandedOn) {
  const std::string page = pageOf(3 * PageBody::kKeptInMemory);
  PageBody body;
  body.append(page);
  body.append("end");
  PageBody other = std::exchange(body, {});
  EXPECT_TRUE(other.take() == page + "end");
}

}  // namespace
}  // namespace tarnwick::testing
