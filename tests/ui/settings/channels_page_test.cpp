// SPDX-License-Identifier: MIT
// The ways by which alerts leave, set up as a user does it, on a real list; servers and key ring are played.
#include "ui/settings/channels_page.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <QMenu>
#include <QPlainTextEdit>
#include <QSpinBox>

#include "store/channel_table.h"
#include "ui/settings/channel_menu.h"
#include "ui/settings/control_dialog_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Key;
using ::testing::Pair;

class ChannelsPageTest : public ControlDialogTest {
 protected:
  ControlDialog& openChannels() {
    auto& dialog = openSettings();
    in<QTabWidget>(dialog, "pages").setCurrentIndex(2);
    return dialog;
  }
  static void add(QWidget& dialog, std::string_view kind) {
    in<QAction>(dialog, ("channelAdd_" + std::string(kind)).c_str()).trigger();
  }
  template <typename Thing>
  static Thing& in(QWidget& form, const char* name) {
    auto* thing = form.findChild<Thing*>(QString::fromLatin1(name));
    if (thing == nullptr) {
      throw std::runtime_error(std::string("The form has no ") + name);
    }
    return *thing;
  }
  static std::string cell(QWidget& dialog, int row, int column) {
    return in<QTableView>(dialog, "channelList").model()->index(row, column).data().toString().toStdString();
  }
  static void choose(QWidget& dialog, int row) {
    auto& table = in<QTableView>(dialog, "channelList");
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(table.model()->index(row, 1)).center());
  }
  static std::string answer(QWidget& dialog) {
    return in<QPlainTextEdit>(dialog, "channelAnswer").toPlainText().toStdString();
  }
  static void typeMail(QWidget& dialog) {
    type(dialog, "channelName", "office mail");
    type(dialog, "channel_to", "me@example.org");
    type(dialog, "channel_server", "smtp.example.org");
    type(dialog, "channel_user", "me");
    type(dialog, "channelSecret", "s3cret");
  }
  std::vector<Channel> channels() { return master->program().data().channels(); }
  std::int64_t store(const std::string& name, OptionValues settings = {}) {
    settings.emplace("to", name + "@example.org");
    settings.emplace("server", "smtp.example.org");
    return master->program().data().storeChannel(
        {.name = name, .kind = std::string(channel_kind::mail), .settings = std::move(settings)});
  }
};

TEST_F(ChannelsPageTest, AMailAccountIsSetUpTestedAndStored) {
  auto& dialog = openChannels();
  EXPECT_THAT(label(dialog, "channelMailNow"), HasSubstr("the original exchange, port 25"));
  EXPECT_FALSE(in<QPushButton>(dialog, "channelTest").isEnabled());
  add(dialog, channel_kind::mail);
  EXPECT_EQ(text(dialog, "channelName"), "Mail");
  EXPECT_TRUE(in<QLineEdit>(dialog, "channelName").hasFocus());
  typeMail(dialog);
  EXPECT_EQ(cell(dialog, 0, ChannelList::name), "office mail");
  EXPECT_EQ(label(dialog, "channelSecretKept"), "Kept in a file only you can read");

  machine.mails.answer({.delivered = false, .words = "AUTH: 535 5.7.8 Wrong user or password"});
  press(dialog, "channelTest");
  ASSERT_TRUE(waitUntil([&] {
    return answer(dialog) ==
           "Check the user and the password; some providers want a password made for programs.\n"
           "AUTH: 535 5.7.8 Wrong user or password";
  }));
  EXPECT_THAT(cell(dialog, 0, ChannelList::lastTry), HasSubstr("refused"));
  ASSERT_EQ(machine.mails.sent.size(), 1U);
  EXPECT_EQ(machine.mails.sent.front().server.secret, "s3cret");
  EXPECT_THAT(channels(), IsEmpty());

  press(dialog, "btnOkChannels");
  ASSERT_EQ(channels().size(), 1U);
  EXPECT_EQ(channels().front().name, "office mail");
  EXPECT_TRUE(channels().front().forAll);
  EXPECT_EQ(channels().front().settings,
            (OptionValues{{"to", "me@example.org"}, {"server", "smtp.example.org"}, {"user", "me"}}));
  EXPECT_THAT(machine.secrets.kept, ElementsAre(Pair(Pair(folder.path(), secretName(1)), "s3cret")));
  auto& again = openChannels();
  EXPECT_THAT(label(again, "channelMailNow"), HasSubstr("the channels of the kind mail"));
}

TEST_F(ChannelsPageTest, CancelDropsAll) {
  auto& dialog = openChannels();
  add(dialog, channel_kind::mail);
  typeMail(dialog);
  EXPECT_NE(dialog.unsavedEdits(), QString());
  press(dialog, "btnCancelChannels");
  EXPECT_THAT(channels(), IsEmpty());
  EXPECT_THAT(machine.secrets.kept, IsEmpty());
}

TEST_F(ChannelsPageTest, AFaultOpensThePageAndTheChannel) {
  auto& dialog = openChannels();
  add(dialog, channel_kind::mail);
  typeMail(dialog);
  add(dialog, channel_kind::hook);
  choose(dialog, 0);
  in<QTabWidget>(dialog, "pages").setCurrentIndex(0);
  press(dialog, "Command1");
  EXPECT_TRUE(dialog.isVisible());
  ASSERT_EQ(machine.prompts.shown().size(), 1U);
  EXPECT_THAT(machine.prompts.shown().front().text, HasSubstr("lacks \"address\""));
  EXPECT_EQ(in<QTabWidget>(dialog, "pages").currentIndex(), 2);
  EXPECT_EQ(text(dialog, "channelName"), "Web hook");
  EXPECT_THAT(channels(), IsEmpty());
}

TEST_F(ChannelsPageTest, OkOfAnotherPageStoresTheChannelsToo) {
  auto& dialog = openChannels();
  add(dialog, channel_kind::notice);
  in<QTabWidget>(dialog, "pages").setCurrentIndex(3);
  press(dialog, "btnOkPause");
  ASSERT_EQ(channels().size(), 1U);
  EXPECT_EQ(channels().front().kind, channel_kind::notice);
}

TEST_F(ChannelsPageTest, AChannelIsChangedInItsFields) {
  open();
  store("one", {{"safety", "tls"}, {"port", "2465"}});
  store("two");
  auto& dialog = openChannels();
  EXPECT_EQ(in<QComboBox>(dialog, "channel_safety").currentText(), QStringLiteral("TLS"));
  EXPECT_EQ(in<QSpinBox>(dialog, "channel_port").text(), QStringLiteral("2465"));
  choose(dialog, 1);
  EXPECT_EQ(in<QComboBox>(dialog, "channel_safety").currentText(), QStringLiteral("STARTTLS required"));
  auto& port = in<QSpinBox>(dialog, "channel_port");
  EXPECT_EQ(port.text(), QStringLiteral("587"));
  auto& safety = in<QComboBox>(dialog, "channel_safety");
  safety.setFocus();
  QTest::keyClick(&safety, Qt::Key_End);
  EXPECT_EQ(safety.currentText(), QStringLiteral("none: nothing is encrypted"));
  EXPECT_EQ(port.text(), QStringLiteral("25"));
  tick(dialog, "channelForAll");
  auto& table = in<QTableView>(dialog, "channelList");
  table.setFocus();
  QTest::keyClick(&table, Qt::Key_Up);
  QTest::keyClick(&table, Qt::Key_Space);
  press(dialog, "btnOkChannels");
  ASSERT_EQ(channels().size(), 2U);
  EXPECT_FALSE(channels()[0].on);
  EXPECT_EQ(channels()[0].setting("safety"), "tls");
  EXPECT_TRUE(channels()[1].on);
  EXPECT_FALSE(channels()[1].forAll);
  EXPECT_EQ(channels()[1].setting("safety"), "none");
  EXPECT_EQ(channels()[1].setting("port"), "");
}

TEST_F(ChannelsPageTest, NothingIsWrittenThatWasNotTouched) {
  open();
  store("one", {{"safety", "starttls"}});
  auto& dialog = openChannels();
  EXPECT_EQ(dialog.unsavedEdits(), QString());
  press(dialog, "btnOkChannels");
  EXPECT_EQ(channels().front().setting("safety"), "starttls");
}

TEST_F(ChannelsPageTest, RemoveAsksAndNoIsTheDefault) {
  open();
  const std::int64_t id = store("one");
  machine.secrets.kept[{folder.path(), secretName(id)}] = "s3cret";
  auto& dialog = openChannels();
  machine.prompts.answerConfirm(false);
  press(dialog, "channelRemove");
  ASSERT_EQ(machine.prompts.shown().size(), 1U);
  EXPECT_TRUE(machine.prompts.shown().front().destroys);
  EXPECT_THAT(machine.prompts.shown().front().text, HasSubstr("The Channel one?"));
  machine.prompts.answerConfirm(true);
  press(dialog, "channelRemove");
  EXPECT_EQ(channels().size(), 1U);
  press(dialog, "btnOkChannels");
  EXPECT_THAT(channels(), IsEmpty());
  EXPECT_THAT(machine.secrets.kept, IsEmpty());
}

TEST_F(ChannelsPageTest, TheTestUsesTheKeptSecretOfAStoredChannel) {
  open();
  const std::int64_t id = store("one", {{"user", "me"}});
  machine.secrets.kept[{folder.path(), secretName(id)}] = "kept";
  machine.secrets.inKeyRing = true;
  auto& dialog = openChannels();
  EXPECT_EQ(label(dialog, "channelSecretKept"), "Kept in the desktop's key ring");
  press(dialog, "channelTest");
  ASSERT_TRUE(
      waitUntil([&] { return answer(dialog) == "Sent. Look whether it has arrived.\nThe message: 250 taken"; }));
  EXPECT_EQ(machine.mails.sent.front().server.secret, "kept");
}

TEST_F(ChannelsPageTest, TheFileOfTheAuthoritiesCanBeChosen) {
  auto& dialog = openChannels();
  add(dialog, channel_kind::mail);
  typeMail(dialog);
  machine.prompts.answerFile("/etc/my own/ca.pem");
  press(dialog, "channelBrowse_authorities");
  EXPECT_EQ(text(dialog, "channel_authorities"), "/etc/my own/ca.pem");
  press(dialog, "btnOkChannels");
  ASSERT_EQ(channels().size(), 1U);
  EXPECT_EQ(channels().front().setting(channel_field::authorities), "/etc/my own/ca.pem");
}

TEST_F(ChannelsPageTest, TheFirstPageTellsOfTheChannelsAndLeadsToThem) {
  auto& dialog = openSettings();
  EXPECT_THAT(label(dialog, "mailWay"), HasSubstr("With a log-in"));
  in<QAbstractButton>(dialog, "mailWayChannels").click();
  EXPECT_EQ(in<QTabWidget>(dialog, "pages").currentIndex(), 2);
  EXPECT_TRUE(dialog.findChild<ChannelsPage*>()->isVisible());
  add(dialog, channel_kind::mail);
  typeMail(dialog);
  press(dialog, "btnOkChannels");
  EXPECT_THAT(label(openSettings(), "mailWay"), HasSubstr("is not used"));
}

TEST_F(ChannelsPageTest, TheHeadersOfAWebHookAreLines) {
  auto& dialog = openChannels();
  add(dialog, channel_kind::hook);
  type(dialog, "channel_address", "https://hook.example.org/{secret}");
  auto& headers = in<QPlainTextEdit>(dialog, "channel_headers");
  headers.setFocus();
  QTest::keyClicks(&headers, QStringLiteral("X-One: 1"));
  QTest::keyClick(&headers, Qt::Key_Return);
  QTest::keyClicks(&headers, QStringLiteral("X-Two: 2"));
  press(dialog, "btnOkChannels");
  ASSERT_EQ(channels().size(), 1U);
  EXPECT_EQ(channels().front().setting("headers"), "X-One: 1\nX-Two: 2");
}

TEST_F(ChannelsPageTest, EveryFieldOfEveryKindHasItsControlAndItsNames) {
  auto& dialog = openChannels();
  for (const ChannelKind& kind : channelKinds()) {
    SCOPED_TRACE(kind.name);
    add(dialog, kind.name);
    for (const OptionField& field : kind.fields) {
      SCOPED_TRACE(field.name);
      auto& control = in<QWidget>(dialog, ("channel_" + field.name).c_str());
      EXPECT_EQ(control.accessibleName().toStdString(), field.label);
      EXPECT_THAT(control.accessibleDescription().toStdString(), HasSubstr(field.meaning));
      control.setFocus();
      EXPECT_THAT(label(dialog, "channelHint"), HasSubstr(field.meaning));
    }
  }
}

TEST_F(ChannelsPageTest, TheListTellsWhatTheLastTryCameTo) {
  open();
  store("one");
  store("two");
  m& data = master->program().data();
  machine.mails.answer({.delivered = true, .words = "250"});
  machine.mails.answer({.delivered = false, .words = "550"});
  {
    Transaction whole(data.database());
    data.delivery().add({.made = machine.clock().localNow(), .event = "online"}, std::nullopt);
    whole.commit();
  }
  data.delivery().deliver();
  ASSERT_TRUE(waitUntil([&] { return machine.mails.sent.size() == 2 && !data.delivery().isUnderWay(); }));
  store("three");
  auto& dialog = openChannels();
  EXPECT_THAT(cell(dialog, 0, ChannelList::lastTry), ::testing::StartsWith("ok "));
  EXPECT_THAT(cell(dialog, 1, ChannelList::lastTry), ::testing::StartsWith("refused "));
  EXPECT_EQ(cell(dialog, 2, ChannelList::lastTry), "never");
}

TEST_F(ChannelsPageTest, ASecretThatCannotBeKeptIsTold) {
  machine.secrets.locked = "The key ring is locked. Unlock it.";
  auto& dialog = openChannels();
  add(dialog, channel_kind::mail);
  typeMail(dialog);
  press(dialog, "btnOkChannels");
  EXPECT_TRUE(waitUntil([&] { return !machine.prompts.shown().empty(); }));
  EXPECT_EQ(machine.prompts.shown().front().text, "The key ring is locked. Unlock it.");
}

TEST_F(ChannelsPageTest, AServiceThatAWebHookKnowsIsChosenInTheMenu) {
  std::filesystem::create_directory(folder.path() + "/channels");
  const auto lay = [this](const std::string& name, const std::string& text) {
    std::ofstream(folder.path() + "/channels/" + name) << text;
  };
  lay("bell.txt",
      "label = B & ll\nabout = Rings\naddress = https://bell.example.org/RING\nform = json\n"
      "body = {\"a\": \"{text}\"}\nsecret = The token of the bell\n");
  auto& dialog = openChannels();
  auto& menu = in<ChannelMenu>(dialog, "channelMenu");
  menu.popup({});
  auto& bell = in<QAction>(menu, "channelPreset_bell");
  EXPECT_EQ(bell.text(), QStringLiteral("B && ll"));
  EXPECT_EQ(bell.toolTip(), QStringLiteral("Rings"));
  bell.trigger();
  EXPECT_EQ(text(dialog, "channelName"), "B & ll");
  EXPECT_EQ(text(dialog, "channel_address"), "https://bell.example.org/RING");
  EXPECT_EQ(label(dialog, "channelHint"), "Rings. The password or token: The token of the bell.");
  menu.hide();
  lay("broken.txt", "label\n");
  menu.popup({});
  EXPECT_FALSE(in<QMenu>(menu, "channelHooks").actions().back()->isEnabled()) << "what is wrong with a file is told";
  in<QAction>(menu, "channelPreset_bell").trigger();
  menu.hide();
  press(dialog, "btnOkChannels");
  ASSERT_EQ(channels().size(), 2U);
  EXPECT_EQ(channels()[0].kind, channel_kind::hook);
  EXPECT_EQ(channels()[0].setting("body"), "{\"a\": \"{text}\"}");
  EXPECT_EQ(channels()[1].name, "B & ll 2");
}

TEST_F(ChannelsPageTest, SitesFollowTheNewNameOfAChannelAndAreCountedBeforeItGoes) {
  open();
  store("one");
  m& data = master->program().data();
  data.setOption(data.addSite(), "channels", "ONE, two");
  data.setOption(data.addSite(), "channels", "two");
  auto& dialog = openChannels();
  type(dialog, "channelName", "first");
  press(dialog, "btnOkChannels");
  EXPECT_EQ(data.options(1).at("channels"), "first, two");
  EXPECT_EQ(data.options(2).at("channels"), "two");
  auto& again = openChannels();
  machine.prompts.answerConfirm(false);
  press(again, "channelRemove");
  EXPECT_THAT(machine.prompts.texts().back(), ::testing::EndsWith("\n1 site names it."));
}

TEST_F(ChannelsPageTest, ProofOfLifeStandsBelowTheChannelsAndIsStoredWithThem) {
  open();
  master->program().data().setOption(kAllSites, "testAlert", "6:30");
  auto& dialog = openChannels();
  EXPECT_EQ(dialog.unsavedEdits(), QString());
  EXPECT_TRUE(ticked(dialog, "lifeTestAlert"));
  EXPECT_EQ(text(dialog, "lifeTestAlertValue"), "6:30");
  EXPECT_FALSE(in<QLineEdit>(dialog, "lifeAllIsWellValue").isEnabled());
  tick(dialog, "lifeAllIsWell");
  EXPECT_EQ(text(dialog, "lifeAllIsWellValue"), "8:00");
  tick(dialog, "lifeTestAlert");
  tick(dialog, "lifeHeartbeat");
  EXPECT_TRUE(in<QLineEdit>(dialog, "lifeHeartbeatValue").hasFocus());
  EXPECT_FALSE(in<QLabel>(dialog, "lifeFault").isVisible()) << "nothing is typed yet";
  type(dialog, "lifeHeartbeatValue", "ping.example.org");
  EXPECT_TRUE(in<QLabel>(dialog, "lifeFault").isVisible());
  EXPECT_THAT(label(dialog, "lifeFault"), HasSubstr("heartbeat does not take \"ping.example.org\""));
  in<QTabWidget>(dialog, "pages").setCurrentIndex(0);
  press(dialog, "Command1");
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(in<QTabWidget>(dialog, "pages").currentIndex(), 2);
  EXPECT_TRUE(in<QLineEdit>(dialog, "lifeHeartbeatValue").hasFocus());
  EXPECT_TRUE(master->program().data().options(kAllSites).contains("testAlert")) << "all or nothing";
  type(dialog, "lifeHeartbeatValue", "https://ping.example.org/x");
  EXPECT_FALSE(in<QLabel>(dialog, "lifeFault").isVisible());
  press(dialog, "btnOkChannels");
  EXPECT_EQ(master->program().data().options(kAllSites),
            (OptionValues{{"allIsWell", "8:00"}, {"heartbeat", "https://ping.example.org/x"}}));
}

TEST_F(ChannelsPageTest, TheDefaultsLeaveProofOfLifeToThisPage) {
  auto& dialog = openChannels();
  in<QTabWidget>(dialog, "pages").setCurrentIndex(1);
  EXPECT_NE(dialog.findChild<QWidget*>(QStringLiteral("option_mailLimit")), nullptr);
  for (const char* name : {"option_allIsWell", "option_testAlert", "option_heartbeat"}) {
    EXPECT_EQ(dialog.findChild<QWidget*>(QString::fromLatin1(name)), nullptr) << name;
  }
}

TEST_F(ChannelsPageTest, TheSettingsOpenOnAChannel) {
  open();
  store("one");
  const std::int64_t two = store("two");
  channelSettingsOf(master->program(), *master)(two);
  auto& dialog = opened<ControlDialog>();
  EXPECT_EQ(in<QTabWidget>(dialog, "pages").currentIndex(), 2);
  EXPECT_EQ(text(dialog, "channelName"), "two");
}

}  // namespace
}  // namespace tarnwick::testing
