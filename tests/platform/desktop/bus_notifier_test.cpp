// SPDX-License-Identifier: MIT
#include "platform/desktop/bus_notifier.h"

#include <gtest/gtest.h>

#include "notice_service.h"
#include "platform/desktop/desktop_notifier.h"
#include "private_bus.h"

namespace tarnwick::testing {
namespace {

class BusNotifierTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (bus_.address().isEmpty()) {
      GTEST_SKIP() << "dbus-daemon is not installed";
    }
  }

  /// What was said in the end.
  std::string show(Notifier& notifier, const Notice& notice) {
    std::optional<std::string> came;
    notifier.show(
        notice, [this](const std::string& key) { keys_.push_back(key); },
        [&](std::string why) { came = std::move(why); });
    EXPECT_FALSE(came) << "answered from inside the call";
    EXPECT_TRUE(waitUntil([&] { return came.has_value(); }));
    return came.value_or("no answer");
  }

  PrivateBus bus_;
  std::vector<std::string> keys_;
};

TEST_F(BusNotifierTest, NoticesAreShownAsTheTextThatTheyAre) {
  NoticeService service(bus_.address());
  const auto notifier = makeDesktopNotifier();
  ASSERT_TRUE(notifier->isThere());
  const Notice notice{"A <b>site</b>\nis down",
                      "<a href=\"x\">click</a> & so on\r\nline \x1b[31m\xFF ü",
                      {{"show", "Show what changed"}, {"mute", "Mute <i>"}}};
  EXPECT_EQ(show(*notifier, notice), "");
  ASSERT_EQ(service.shown.size(), 1U);
  EXPECT_EQ(service.shown[0].program.toStdString(), "Tarnwick");
  EXPECT_EQ(service.shown[0].title.toStdString(), "A <b>site</b> is down");
  EXPECT_EQ(service.shown[0].text.toStdString(),
            "&lt;a href=&quot;x&quot;&gt;click&lt;/a&gt; &amp; so on\nline \\x1b[31m\\xff ü");
  EXPECT_EQ(service.shown[0].actions.join(QLatin1Char('|')).toStdString(), "show|Show what changed|mute|Mute <i>");
  // One that knows neither markup nor buttons.
  service.abilities = QStringList{QStringLiteral("body")};
  EXPECT_EQ(show(*notifier, notice), "");
  EXPECT_EQ(service.shown[1].text.toStdString(), "<a href=\"x\">click</a> & so on\nline \\x1b[31m\\xff ü");
  EXPECT_TRUE(service.shown[1].actions.isEmpty());
}

TEST_F(BusNotifierTest, AnActionIsToldToWhoeverShowedTheNotice) {
  NoticeService service(bus_.address());
  const auto notifier = makeDesktopNotifier();
  EXPECT_EQ(show(*notifier, {"One", "", {{"mute", "Mute"}}}), "");
  EXPECT_EQ(show(*notifier, {"Two", "", {{"show", "Show"}}}), "");
  Q_EMIT service.ActionInvoked(2, QStringLiteral("show"));
  EXPECT_TRUE(waitUntil([&] { return keys_.size() == 1; }));
  Q_EMIT service.NotificationClosed(2, 2);
  Q_EMIT service.ActionInvoked(2, QStringLiteral("too late"));
  Q_EMIT service.ActionInvoked(77, QStringLiteral("of another program"));
  Q_EMIT service.ActionInvoked(1, QStringLiteral("mute"));
  EXPECT_TRUE(waitUntil([&] { return keys_.size() == 2; }));
  EXPECT_EQ(keys_, (std::vector<std::string>{"show", "mute"}));
}

TEST_F(BusNotifierTest, WhatTheDesktopDoesNotShowIsTold) {
  NoticeService service(bus_.address());
  const auto notifier = makeDesktopNotifier();
  service.refusal = QStringLiteral("too many");
  EXPECT_EQ(show(*notifier, {"One", "", {}}), "The desktop did not show the notice: too many");
}

TEST_F(BusNotifierTest, ADesktopWithoutTheServiceHasNone) {
  const auto notifier = makeDesktopNotifier();
  EXPECT_FALSE(notifier->isThere());
  const std::string none =
      "The desktop has no service that shows notices. Install one, or use a channel of another kind.";
  EXPECT_EQ(show(*notifier, {"One", "", {}}), none);
  {
    const NoticeService service(bus_.address());
    EXPECT_TRUE(notifier->isThere());
  }
  EXPECT_TRUE(waitUntil([&] { return !notifier->isThere(); }));
}

TEST(BusNotifierAlone, WithoutABusThereIsNone) {
  qunsetenv("DBUS_SESSION_BUS_ADDRESS");
  qunsetenv("XDG_RUNTIME_DIR");
  const auto notifier = makeDesktopNotifier();
  EXPECT_FALSE(notifier->isThere());
  std::string why;
  notifier->show({"One", "", {}}, {}, [&](std::string said) { why = std::move(said); });
  EXPECT_TRUE(waitUntil([&] { return !why.empty(); }));
}

TEST(BusNotifierAlone, NoAnswerComesWhenItHasGone) {
  qunsetenv("DBUS_SESSION_BUS_ADDRESS");
  qunsetenv("XDG_RUNTIME_DIR");
  bool answered = false;
  makeDesktopNotifier()->show({"One", "", {}}, {}, [&](const std::string&) { answered = true; });
  pumpFor(std::chrono::milliseconds(20));
  EXPECT_FALSE(answered);
}

}  // namespace
}  // namespace tarnwick::testing
