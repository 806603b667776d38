// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>

#include "cli/support/tool_fixture.h"
#include "store/channels.h"

namespace tarnwick::testing {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class ChannelVerb : public ToolFixture {
 protected:
  int addMail(const std::string& name, std::vector<std::string> more = {}) {
    std::vector<std::string> all{"channel", "add", name, "--mail", "me@example.org", "--server", "smtp.example.org"};
    all.insert(all.end(), more.begin(), more.end());
    return run(all);
  }
  /// The next check finds it otherwise than its baseline.
  void watchAPageThatChanges() {
    addPage("/a", "alpha");
    run({"check"});
    server.respond("/a", {.body = "beta"});
  }
  std::string secretOf(std::int64_t id) {
    const auto found = machine.secrets.kept.find({folder.path(), secretName(id)});
    return found == machine.secrets.kept.end() ? "" : found->second;
  }
};

TEST_F(ChannelVerb, AddsOneOfEveryKindAndListsThem) {
  EXPECT_EQ(addMail("office", {"--port", "0465", "--safety", "TLS", "--default", "off"}), exit_status::ok) << err;
  EXPECT_EQ(out, "The channel office is stored.\n");
  EXPECT_EQ(run({"channel", "add", "hook", "--webhook", "https://hook.example.org/", "--header", "A: 1", "--header",
                 "B: 2", "--form", "json", "--body", "{\"a\": \"{text}\"}"}),
            exit_status::ok)
      << err;
  EXPECT_EQ(run({"channel", "add", "desk", "--notice"}), exit_status::ok) << err;
  EXPECT_EQ(run({"channel", "add", "script", "--program", "/bin/tell ~url~", "--bundle", "3"}), exit_status::ok) << err;
  EXPECT_EQ(run({"channel", "add", "bell", "--sound", "/a.wav"}), exit_status::ok) << err;

  const Json json = runJson({"channel", "list", "--json"});
  ASSERT_EQ(json.size(), 5U);
  EXPECT_EQ(json[0], Json::parse(R"({"name": "office", "kind": "mail", "on": true, "forAll": false, "settings":
      {"port": "465", "safety": "tls", "server": "smtp.example.org", "to": "me@example.org"}})"));
  EXPECT_EQ(json[1]["settings"]["headers"], "A: 1\nB: 2");
  EXPECT_EQ(json[3]["settings"], (Json{{"bundle", "3"}, {"command", "/bin/tell ~url~"}}));
  EXPECT_EQ(run({"channel"}), exit_status::ok);
  EXPECT_THAT(out, AllOf(HasSubstr("NAME"), HasSubstr("office"), HasSubstr("https://hook.example.org/")));
}

TEST_F(ChannelVerb, RefusesWhatCannotTell) {
  EXPECT_EQ(run({"channel", "add", "office", "--mail", "me@example.org"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("The channel office lacks \"server\""));
  EXPECT_EQ(run({"channel", "add", "office"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("How is it to tell?"));
  EXPECT_EQ(run({"channel", "add", "office", "--notice", "--sound", "a.wav"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("leave out --notice or --sound"));
  EXPECT_EQ(run({"channel", "add", "--notice"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("A channel needs a name"));
  EXPECT_EQ(run({"channel", "add", "desk", "--notice", "--server", "a"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("has no \"server\""));
  EXPECT_EQ(run({"channel", "add", "my", "desk", "--notice"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("one word too many"));
  ASSERT_EQ(run({"channel", "add", "desk", "--notice"}), exit_status::ok);
  EXPECT_EQ(run({"channel", "add", "DESK", "--notice"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("There is a channel \"DESK\" already."));
  EXPECT_EQ(runJson({"channel", "--json"}).size(), 1U);
}

TEST_F(ChannelVerb, KeepsItsPasswordApartFromTheListAndNeverTakesItFromTheCommandLine) {
  input = "pass word\n";
  EXPECT_EQ(addMail("office", {"--user", "me", "--password-file", "-"}), exit_status::ok) << err;
  EXPECT_EQ(secretOf(1), "pass word");
  EXPECT_EQ(folder.queryText("select count(*) from channels where value like '%pass%'"), "0");
  EXPECT_EQ(addMail("home", {"--user", "me"}), exit_status::ok) << err;
  EXPECT_THAT(err, HasSubstr("The channel home has no password or token yet. Give it: tarnwickctl channel set"));
  EXPECT_EQ(addMail("other", {"--password", "word"}), exit_status::failed);
}

TEST_F(ChannelVerb, AsksForThePasswordWhereSomebodySits) {
  terminal = {.isTerminal = true, .canAsk = true};
  input = "typed\n";
  EXPECT_EQ(addMail("office", {"--user", "me"}), exit_status::ok) << err;
  EXPECT_THAT(err, HasSubstr("Password of the channel office (nothing is shown):"));
  EXPECT_EQ(secretOf(1), "typed");
  input = "another\n";
  EXPECT_EQ(run({"channel", "set", "office"}), exit_status::ok) << err;
  EXPECT_EQ(secretOf(1), "another");
}

TEST_F(ChannelVerb, TellsWhenThePasswordCannotBeKept) {
  machine.secrets.locked = "The key ring is locked. Unlock it.";
  input = "word\n";
  EXPECT_EQ(addMail("office", {"--user", "me", "--password-file", "-"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("is stored, but not its password or token: The key ring is locked."));
}

TEST_F(ChannelVerb, ChangesWhatIsNamed) {
  ASSERT_EQ(addMail("office", {"--port", "25"}), exit_status::ok);
  EXPECT_EQ(run({"channel", "set", "OFFICE", "name=work", "port=", "bundle=4", "default=off"}), exit_status::ok) << err;
  Json json = runJson({"channel", "--json"})[0];
  EXPECT_EQ(json["name"], "work");
  EXPECT_EQ(json["forAll"], false);
  EXPECT_EQ(json["settings"], (Json{{"bundle", "4"}, {"server", "smtp.example.org"}, {"to", "me@example.org"}}));
  EXPECT_EQ(run({"channel", "set", "work", "server="}), exit_status::failed);
  EXPECT_EQ(run({"channel", "set", "work", "colour=red"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("It has: to, from"));
  EXPECT_EQ(run({"channel", "set", "work"}), exit_status::failed);
  EXPECT_EQ(run({"channel", "set", "work", "port"}), exit_status::failed);
  EXPECT_EQ(run({"channel", "off", "work"}), exit_status::ok);
  EXPECT_EQ(runJson({"channel", "--json"})[0]["on"], false);
  EXPECT_EQ(run({"channel", "on", "work"}), exit_status::ok);
  EXPECT_EQ(runJson({"channel", "--json"})[0]["on"], true);
  EXPECT_EQ(run({"channel", "off", "nowhere"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("There is no channel \"nowhere\"."));
}

TEST_F(ChannelVerb, SitesFollowANewNameAndTellWhenTheirChannelGoes) {
  ASSERT_EQ(addMail("office"), exit_status::ok);
  addSite("http://a/");
  addSite("http://b/");
  ASSERT_EQ(run({"option", "1", "channels=Office, phone"}), exit_status::ok) << err;
  ASSERT_EQ(run({"option", "2", "channels=phone"}), exit_status::ok) << err;
  ASSERT_EQ(run({"option", "all", "channels=office"}), exit_status::ok) << err;
  ASSERT_EQ(run({"channel", "set", "office", "name=work"}), exit_status::ok) << err;
  EXPECT_EQ(folder.queryRows("select idSite, value from siteOptions where name = 'channels' order by idSite"),
            "0|work\n1|work, phone\n2|phone\n");
  ASSERT_EQ(run({"channel", "remove", "work"}), exit_status::ok);
  EXPECT_EQ(out, "The channel work is removed.\n");
  EXPECT_THAT(err, HasSubstr("1 site names the channel work still."));
  ASSERT_EQ(addMail("work"), exit_status::ok);
  EXPECT_EQ(runJson({"channel", "remove", "work", "--json"})["sites"], 1);
}

TEST_F(ChannelVerb, ACheckTellsOfATestAlertThatHasNotArrived) {
  ASSERT_EQ(run({"option", "all", "testAlert=8:00"}), exit_status::ok) << err;
  addPage("/a", "alpha");
  EXPECT_EQ(run({"check"}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("The daily messages cannot leave: no channel is on for all sites."));
  ASSERT_EQ(addMail("office"), exit_status::ok);
  EXPECT_EQ(run({"check"}), exit_status::ok);
  EXPECT_EQ(err, "");
  folder.execute(
      "insert into outbox (idChannel, idSite, pass, made, event, state, tries, nextTry, deadline, answer, url, cause, "
      "downSince, downFor, checks, firstError, difference, page, lastTry) values "
      "(1, 0, '2026-11-20 08:00:00', '2026-11-20 08:00:00', 'daily test', 'failed', 30, '2026-11-21 08:00:00', "
      "'2026-11-21 08:00:00', '550 unknown', '', '', '', '', '', '', '', '', '')");
  EXPECT_EQ(run({"check"}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("The daily test alert has not arrived through office: 550 unknown"));
}

TEST_F(ChannelVerb, RemovedItTakesItsPasswordAndItsAlertsAlong) {
  input = "word\n";
  ASSERT_EQ(addMail("office", {"--user", "me", "--password-file", "-"}), exit_status::ok);
  machine.mails.answer({.delivered = false, .words = "421 later"});
  watchAPageThatChanges();
  EXPECT_EQ(run({"check"}), exit_status::down);
  EXPECT_EQ(run({"channel", "remove", "office"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("Remove the channel office with the alerts that wait for it (1)?"));
  EXPECT_EQ(run({"channel", "remove", "office", "--yes"}), exit_status::ok) << err;
  EXPECT_EQ(secretOf(1), "");
  EXPECT_EQ(folder.queryText("select count(*) from outbox"), "0");
}

TEST_F(ChannelVerb, ATestShowsTheServersOwnWords) {
  ASSERT_EQ(addMail("office"), exit_status::ok);
  EXPECT_EQ(run({"channel", "test", "office"}), exit_status::ok) << err;
  EXPECT_EQ(out, "The test message is sent: The message: 250 taken\n");
  machine.mails.answer({.delivered = false, .words = "RCPT TO: 550 5.1.1 User unknown"});
  EXPECT_EQ(run({"channel", "test", "office"}), exit_status::down) << err;
  EXPECT_EQ(out, "The test message is not sent: RCPT TO: 550 5.1.1 User unknown\nCheck the address in To.\n");
  machine.mails.answer({.delivered = false, .words = "no"});
  EXPECT_EQ(run({"channel", "test", "office", "--json"}), exit_status::down);
  EXPECT_EQ(Json::parse(out), (Json{{"sent", false}, {"answer", "no"}}));
}

TEST_F(ChannelVerb, APresetFillsWhatIsNotGiven) {
  std::filesystem::create_directories(folder.file("channels"));
  std::ofstream(folder.file("channels/bell.txt")) << "label = Bell\naddress = https://bell.example.org/\n"
                                                     "headers = Title: {title}\nform = json\nbody = {\"a\": \"b\"}\n";
  EXPECT_EQ(run({"channel", "add", "b", "--webhook", server.url("/in"), "--preset", "BELL", "--body", "{}"}),
            exit_status::ok)
      << err;
  const Json settings = runJson({"channel", "--json"})[0]["settings"];
  EXPECT_EQ(settings,
            (Json{{"address", server.url("/in")}, {"body", "{}"}, {"form", "json"}, {"headers", "Title: {title}"}}));
  server.respond("/in", {.body = "rung"});
  EXPECT_EQ(run({"channel", "test", "b"}), exit_status::ok);
  EXPECT_EQ(out, "The test message is sent: 200 rung\n");
  EXPECT_EQ(run({"channel", "presets"}), exit_status::ok) << err;
  EXPECT_THAT(out, HasSubstr("https://bell.example.org/"));
  EXPECT_EQ(run({"channel", "add", "c", "--webhook", "https://a/", "--preset", "drum"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("There is no preset \"drum\". The presets are: bell."));
  EXPECT_EQ(run({"channel", "add", "c", "--notice", "--preset", "bell"}), exit_status::failed);
}

class OutboxVerb : public ChannelVerb {
 protected:
  OutboxVerb() {
    watchAPageThatChanges();
    addMail("office");
  }
  void refuse(int times) {
    for (; times > 0; --times) {
      machine.mails.answer({.delivered = false, .words = "RCPT TO: 550 User unknown"});
    }
  }
};

TEST_F(OutboxVerb, ACheckDeliversAndSaysWhatWaits) {
  refuse(1);
  EXPECT_EQ(run({"check"}), exit_status::down);
  EXPECT_EQ(machine.mails.sent.size(), 1U);
  EXPECT_THAT(err, HasSubstr("1 alert is waiting: RCPT TO: 550 User unknown\n"));
  const Json json = runJson({"outbox", "--json"});
  ASSERT_EQ(json.size(), 1U);
  EXPECT_EQ(json[0]["state"], "waiting");
  EXPECT_EQ(json[0]["channel"], "office");
  EXPECT_EQ(json[0]["event"], "down");
  EXPECT_EQ(json[0]["tries"], 1);
  EXPECT_EQ(json[0]["answer"], "RCPT TO: 550 User unknown");
  EXPECT_EQ(run({"outbox"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("1 127.0.0.1"));
}

TEST_F(OutboxVerb, ACheckThatDeliversAllSaysNothingOfIt) {
  EXPECT_EQ(run({"check"}), exit_status::down);
  EXPECT_EQ(err, "");
  EXPECT_EQ(runJson({"outbox", "--sent", "--json"}).size(), 1U);
  EXPECT_THAT(runJson({"outbox", "--waiting", "--failed", "--json"}), IsEmpty());
}

TEST_F(OutboxVerb, ACheckOfATerminalWaitsForNoDesktop) {
  machine.notifier.there = false;
  ASSERT_EQ(run({"channel", "add", "desk", "--notice"}), exit_status::ok);
  EXPECT_EQ(run({"check"}), exit_status::down);
  EXPECT_EQ(runJson({"outbox", "--waiting", "--json"}).size(), 1U);
}

TEST_F(OutboxVerb, RetriedItIsTriedAtOnceAndItsOutcomeTold) {
  refuse(2);
  ASSERT_EQ(run({"check"}), exit_status::down);
  EXPECT_EQ(run({"outbox", "retry"}), exit_status::down);
  EXPECT_THAT(err, HasSubstr("Not delivered yet: 1 alert."));
  EXPECT_THAT(out, HasSubstr("550 User unknown"));
  EXPECT_EQ(run({"outbox", "retry", "1"}), exit_status::ok) << err;
  EXPECT_THAT(out, HasSubstr("sent"));
  EXPECT_EQ(machine.mails.sent.size(), 3U);
  EXPECT_EQ(run({"outbox", "retry"}), exit_status::ok);
  EXPECT_EQ(out, "No alert is waiting.\n");
  EXPECT_EQ(run({"outbox", "retry", "1"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("No alert 1 waits or was given up."));
}

TEST_F(OutboxVerb, DropsAfterAQuestionAlone) {
  refuse(1);
  ASSERT_EQ(run({"check"}), exit_status::down);
  EXPECT_EQ(run({"outbox", "drop"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("Drop 1 alert for good?"));
  EXPECT_EQ(run({"outbox", "drop", "--yes"}), exit_status::ok);
  EXPECT_EQ(out, "Dropped: 1 alert.\n");
  EXPECT_EQ(run({"outbox"}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("There is no such alert"));
}

class ChannelExchange : public ChannelVerb {
 protected:
  ChannelExchange() {
    input = "pass word\n";
    addMail("office", {"--user", "me", "--password-file", "-", "--default", "off"});
    run({"channel", "add", "hook", "--webhook", "https://h.example.org/", "--header", "A: \xc3\xa9", "--body", "a\nb"});
    addSite("http://a/");
  }
  void forgetChannels() {
    folder.execute("delete from channels");
    machine.secrets.kept.clear();
  }
};

TEST_F(ChannelExchange, GoesIntoAnExportAndBackWithoutItsPassword) {
  const Json before = runJson({"channel", "--json"});
  ASSERT_EQ(run({"export", "-", "--format", "json"}), exit_status::ok);
  EXPECT_EQ(err, "");
  EXPECT_EQ(out.find("pass word"), std::string::npos);
  const std::string file = out;
  forgetChannels();
  input = file;
  ASSERT_EQ(run({"import", "-", "--format", "json"}), exit_status::ok) << err;
  EXPECT_THAT(out, HasSubstr("The channels are stored: office, hook\n"));
  EXPECT_THAT(err, HasSubstr("The channel office has no password or token yet."));
  EXPECT_EQ(runJson({"channel", "--json"}), before);
  ASSERT_EQ(run({"import", "-", "--format", "json"}), exit_status::ok) << err;
  EXPECT_EQ(out, "0 added, 0 changed, 0 deleted, 1 unchanged.\n");
  EXPECT_EQ(err, "");
}

TEST_F(ChannelExchange, CarriesPasswordsWhenItIsAskedTo) {
  ASSERT_EQ(run({"export", "-", "--format", "json", "--with-secrets"}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("The file holds the passwords and tokens of the channels in clear."));
  EXPECT_THAT(out, HasSubstr(R"("secret":"pass word")"));
  const std::string file = out;
  forgetChannels();
  input = file;
  ASSERT_EQ(run({"import", "-", "--format", "json"}), exit_status::ok) << err;
  EXPECT_EQ(err, "");
  EXPECT_EQ(secretOf(1), "pass word");
}

TEST_F(ChannelExchange, MergesByName) {
  ASSERT_EQ(run({"channel", "add", "desk", "--notice"}), exit_status::ok);
  input = R"({"tarnwick": 1, "channels": [{"name": "OFFICE", "kind": "sound", "settings": {"file": "a.wav"}},
      {"name": "new", "kind": "desktop notice", "on": false}], "sites": []})";
  ASSERT_EQ(run({"import", "-", "--format", "json", "--dry-run"}), exit_status::ok) << err;
  EXPECT_THAT(out, HasSubstr("store the channels: OFFICE, new\n"));
  EXPECT_EQ(runJson({"channel", "--json"}).size(), 3U);
  ASSERT_EQ(run({"import", "-", "--format", "json"}), exit_status::ok) << err;
  const Json json = runJson({"channel", "--json"});
  ASSERT_EQ(json.size(), 4U);
  EXPECT_EQ(json[0]["name"], "OFFICE");
  EXPECT_EQ(json[0]["kind"], "sound");
  EXPECT_EQ(json[3]["on"], false);
}

TEST_F(ChannelExchange, RefusesWhatIsNoChannelAndTakesNothingThen) {
  const auto refusal = [this](const std::string& channels) {
    input = R"({"tarnwick": 1, "sites": [], "channels": )" + channels + "}";
    EXPECT_EQ(run({"import", "-", "--format", "json"}), exit_status::failed);
    return err;
  };
  EXPECT_THAT(refusal(R"([{"name": "a", "kind": "pigeon"}])"), HasSubstr("There is no channel of the kind"));
  EXPECT_THAT(refusal(R"([{"name": "a", "kind": "mail"}])"), HasSubstr("lacks \"to\""));
  EXPECT_THAT(refusal(R"([{"name": "a", "kind": "sound", "settings": 3}])"), HasSubstr("channels is no array of"));
  EXPECT_THAT(refusal(R"([3])"), HasSubstr("channels is no array of"));
  EXPECT_THAT(refusal(R"([{"name": "a", "kind": "desktop notice"}, {"name": "A", "kind": "desktop notice"}])"),
              HasSubstr("is given twice"));
  EXPECT_EQ(runJson({"channel", "--json"}).size(), 2U);
}

TEST_F(ChannelExchange, HasNoPlaceInCsv) {
  ASSERT_EQ(run({"export", "-", "--format", "csv"}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("A CSV file has no place for channels."));
}

}  // namespace
}  // namespace tarnwick::testing
