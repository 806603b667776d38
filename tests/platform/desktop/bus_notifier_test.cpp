// SPDX-License-Identifier: MIT
#include "platform/desktop/bus_notifier.h"

#include <gtest/gtest.h>
#include <QProcess>
#include <QTimer>

#include "notice_service.h"
#include "platform/desktop/desktop_notifier.h"
#include "private_bus.h"

namespace tarnwick::testing {
namespace {

/// Another program, for as long as this lives.
class ProgramRun {
 public:
  ProgramRun(const QString& program, const QStringList& words, const QByteArray& display = {}) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), QLatin1Char(':') + QString::fromLatin1(display));
    run_.setProcessEnvironment(environment);
    run_.start(program, words);
  }
  ~ProgramRun() {
    run_.kill();
    run_.waitForFinished();
  }
  ProgramRun(const ProgramRun&) = delete;
  ProgramRun& operator=(const ProgramRun&) = delete;

  bool isThere() const { return run_.state() != QProcess::NotRunning; }
  QByteArray firstLine() const {
    waitUntil([this] { return run_.canReadLine() || !isThere(); });
    return run_.readLine().trimmed();
  }
  QByteArray whole() const {
    waitUntil([this] { return !isThere(); });
    return run_.readAll();
  }

 private:
  mutable QProcess run_;
};

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

TEST_F(BusNotifierTest, AServiceOfADesktopShowsThemAsTextAndTellsWhatIsDone) {
  const ProgramRun display(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1")});
  const ProgramRun service(QStringLiteral("dunst"), {}, display.firstLine());
  if (!display.isThere() || !service.isThere()) {
    GTEST_SKIP() << "Xvfb or dunst is not installed";
  }
  const auto notifier = makeDesktopNotifier();
  QTimer ticks;  // the bus wakes nobody who does not listen to it yet
  ticks.start(20);
  ASSERT_TRUE(waitUntil([&] { return notifier->isThere(); }));
  EXPECT_EQ(show(*notifier, {"A <b>site</b> is down", "<i>no</i> & \"quotes\"", {{"show", "Show what changed"}}}), "");
  const auto tell = [](const char* what) {
    return ProgramRun(QStringLiteral("dunstctl"), {QString::fromLatin1(what)}).whole();
  };
  const auto isShown = [&tell] { return tell("count").simplified().contains("Currently displayed: 1"); };
  ASSERT_TRUE(waitUntil(isShown));
  tell("close");
  QByteArray shown;
  EXPECT_TRUE(waitUntil([&] { return (shown = tell("history")).contains("Tarnwick"); }));
  EXPECT_TRUE(shown.contains("&lt;i&gt;no&lt;/i&gt; &amp;") || shown.contains("<i>no</i> &")) << shown.constData();
  EXPECT_EQ(show(*notifier, {"Down", "", {{"mute", "Mute"}}}), "");
  ASSERT_TRUE(waitUntil(isShown));
  tell("action");
  EXPECT_TRUE(waitUntil([&] { return keys_.size() == 1; }));
  EXPECT_EQ(keys_, std::vector<std::string>{"mute"});
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
