// SPDX-License-Identifier: MIT
// The desktop's key ring, one that is none of ours.
#include <gtest/gtest.h>

#include "platform/desktop/desktop_key_ring.h"
#include "private_bus.h"

namespace tarnwick::testing {
namespace {

std::pair<std::optional<std::string>, std::string> read(KeyRing& ring, const std::string& key) {
  std::optional<std::pair<std::optional<std::string>, std::string>> came;
  ring.read(key, [&](std::optional<std::string> secret, std::string why) {
    came.emplace(std::move(secret), std::move(why));
  });
  EXPECT_TRUE(waitUntil([&] { return came.has_value(); }));
  return came.value_or(std::pair<std::optional<std::string>, std::string>());
}

TEST(DesktopKeyRing, KeepsWhatItIsGiven) {
  PrivateBus bus;
  const auto ring = makeDesktopKeyRing();
  if (ring == nullptr || bus.address().isEmpty()) {
    GTEST_SKIP() << "built without a way to a key ring, or there is no bus here";
  }
  EXPECT_FALSE(ring->isThere() && qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"));
  if (!bus.startKeyRing()) {
    GTEST_SKIP() << "gnome-keyring is not installed";
  }
  ASSERT_TRUE(waitUntil([&] { return ring->isThere(); }));
  using namespace std::string_literals;
  const std::string secret = "päss\0\xFF wörd"s;
  std::optional<KeyRing::Kept> kept;
  std::string said;
  ring->write("mail 1", secret, [&](KeyRing::Kept how, const std::string& why) {
    kept = how;
    said = why;
  });
  ASSERT_TRUE(waitUntil([&] { return kept.has_value(); }));
  EXPECT_EQ(kept, KeyRing::Kept::yes) << said;
  EXPECT_EQ(read(*ring, "mail 1").first, secret) << read(*ring, "mail 1").second;
  EXPECT_EQ(read(*ring, "mail 2").first, std::nullopt);
  EXPECT_NE(read(*ring, "mail 2").second, "");
  ring->remove("mail 1");
  EXPECT_TRUE(waitUntil([&] { return !read(*ring, "mail 1").first; }));
}

}  // namespace
}  // namespace tarnwick::testing
