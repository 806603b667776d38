// SPDX-License-Identifier: MIT
#include "machine/alerts_fixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>

#include "base/errors.h"
#include "support/real_mail_server.h"
#include "support/smtp_server.h"
#include "support/system.h"
#include "support/wait_until.h"

namespace tarnwick {
namespace {

using namespace std::string_literals;
using ::testing::ElementsAre;
using testing::HandClock;
using ::testing::IsEmpty;
using testing::ProgramFolder;
using testing::RealMailServer;
using ::testing::SizeIs;
using testing::SmtpServer;
using testing::SmtpStage;
using testing::TestServices;
using testing::waitUntil;

class Alerts : public testing::AlertsFixture {};

TEST_F(Alerts, SendTheFilledTemplateToTheSitesAddress) {
  switchOn(true, false, false);
  writeTemplate("~date~ ~url~ ~idsite~ ~email~ ~1~ ~localhostname~ ~localip~\r\n");
  const std::int16_t id = addSite("http://example.com/page");

  alerts.sendAlerts(id);

  const TcpSocket& socket = mail.winsock1();
  EXPECT_EQ(mailBody(), "2024-05-17 12:00:30 http://example.com/page " + std::to_string(id) + " you@example.com ~1~ " +
                            socket.localHostName() + " " + socket.localIP() + "\r\n");
  EXPECT_EQ(server.received(SmtpStage::mailFrom), "MAIL FROM:<me@example.com>\r\n");
  EXPECT_EQ(server.received(SmtpStage::rcptTo), "RCPT TO:<you@example.com>\r\n");
  EXPECT_TRUE(server.received(SmtpStage::message)
                  .starts_with("Subject:A WEB SITE ERROR HAS OCCURED - message from tarnwick\r\n"));
}

TEST_F(Alerts, SendATemplateWithoutPlaceholdersUnchanged) {
  switchOn(true, false, false);
  const std::string text = "plain ~URL~ text\n\r\n\0\xff end"s;
  writeTemplate(text);
  alerts.sendAlerts(addSite("http://example.com/"));
  EXPECT_EQ(mailBody(), text);
}

TEST_F(Alerts, SendAnEmptyBodyWithoutATemplateAndTheOthersFollow) {
  switchOn(true, true, true);
  alerts.sendAlerts(addSite("http://example.com/"));
  EXPECT_EQ(mailBody(), "");
  EXPECT_EQ(server.commandCount(), 5U);
  EXPECT_THAT(machine.sound.played, SizeIs(1));
  EXPECT_THAT(machine.programs.started, SizeIs(1));
}

TEST_F(Alerts, SendAnEmptyBodyWhenTheTemplateCannotBeRead) {
  switchOn(true, false, true);
  std::filesystem::create_directory(folder.file("email.txt"));
  alerts.sendAlerts(addSite("http://example.com/"));
  EXPECT_EQ(mailBody(), "");
  EXPECT_THAT(machine.programs.started, SizeIs(1));
}

class AlertSwitches : public Alerts, public ::testing::WithParamInterface<int> {};

TEST_P(AlertSwitches, DecideWhichAlertsAreRaised) {
  const bool mailOn = (GetParam() & 1) != 0;
  const bool siteWantsMail = (GetParam() & 2) != 0;
  const bool soundOn = (GetParam() & 4) != 0;
  const bool programOn = (GetParam() & 8) != 0;
  switchOn(mailOn, soundOn, programOn);

  alerts.sendAlerts(addSite("http://example.com/", siteWantsMail));

  EXPECT_EQ(server.connections(), mailOn && siteWantsMail ? 1 : 0);
  EXPECT_THAT(machine.sound.played, SizeIs(soundOn ? 1 : 0));
  EXPECT_THAT(machine.programs.started, SizeIs(programOn ? 1 : 0));
}

INSTANTIATE_TEST_SUITE_P(Every, AlertSwitches, ::testing::Range(0, 16));

TEST_F(Alerts, ANullSwitchIsOff) {
  folder.execute("update control set cemail = Null, caudio = Null, cprogram = Null");
  alerts.sendAlerts(addSite("http://example.com/"));
  EXPECT_EQ(server.connections(), 0);
  EXPECT_THAT(machine.sound.played, IsEmpty());
  EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(Alerts, WithoutASettingsRowNothingIsRaised) {
  const std::int16_t id = addSite("http://example.com/");
  folder.execute("delete from control");
  alerts.sendAlerts(id);
  EXPECT_EQ(server.connections(), 0);
  EXPECT_THAT(machine.sound.played, IsEmpty());
  EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(Alerts, PlayTheSoundAndStartTheProgramOfTheSettings) {
  switchOn(false, true, true);
  settings.setControl("program", "  /bin/alert \"~2~\" ~3~ ~email~ ");
  const std::int16_t id = addSite("http://example.com/a b");
  alerts.sendAlerts(id);
  EXPECT_THAT(machine.sound.played, ElementsAre("/sounds/alarm.wav"));
  EXPECT_THAT(machine.programs.started, ElementsAre(ElementsAre("/bin/alert", "http://example.com/a%20b",
                                                                std::to_string(id), "you@example.com")));
}

TEST_F(Alerts, ForAMissingSiteHaveNoMailAndEmptyTexts) {
  switchOn(true, true, true);
  settings.setControl("program", "/bin/alert \"~url~\" ~idsite~ \"~email~\"");
  alerts.sendAlerts(4711);
  EXPECT_EQ(server.connections(), 0);
  EXPECT_THAT(machine.sound.played, SizeIs(1));
  EXPECT_THAT(machine.programs.started, ElementsAre(ElementsAre("/bin/alert", "", "4711", "")));
}

TEST_F(Alerts, ANullAddressOrUrlOfASiteIsAnEmptyText) {
  switchOn(true, false, true);
  settings.setControl("program", "/bin/alert \"~url~\" \"~email~\"");
  const std::int16_t id = addSite("http://example.com/");
  folder.execute("update sites set url = Null, email = Null");
  alerts.sendAlerts(id);
  EXPECT_EQ(server.received(SmtpStage::rcptTo), "RCPT TO:<>\r\n");
  EXPECT_THAT(machine.programs.started, ElementsAre(ElementsAre("/bin/alert", "", "")));
}

TEST_F(Alerts, ComeInTheOrderMailSoundProgram) {
  /// Notes how much of the mail had been sent when its turn came.
  struct Notes final : SoundPlayer, ProgramStarter {
    explicit Notes(const SmtpServer& mailServer) : watched(mailServer) {}
    long play(const std::string&) override {
      notes.push_back("sound after " + std::to_string(watched.commandCount()));
      return 1;
    }
    bool start(const std::vector<std::string>&) override {
      notes.push_back("program after " + std::to_string(watched.commandCount()));
      return true;
    }
    const SmtpServer& watched;
    std::vector<std::string> notes;
  } turns(server);
  const Services noting = machine.services().with({.sound = &turns, .programs = &turns});
  switchOn(true, true, true);

  AlertDispatch(database, settings, files, mail, noting, server.port16()).sendAlerts(addSite("http://example.com/"));

  EXPECT_THAT(turns.notes, ElementsAre("sound after 5", "program after 5"));
}

TEST_F(Alerts, AFailedMailKeepsNothingFromFollowing) {
  switchOn(true, true, true);
  settings.setControl("smtp", "no such name");
  alerts.sendAlerts(addSite("http://example.com/"));
  EXPECT_THAT(machine.sound.played, SizeIs(1));
  EXPECT_THAT(machine.programs.started, SizeIs(1));
  EXPECT_THAT(machine.prompts.shown(), IsEmpty());
}

TEST_F(Alerts, AFailedSoundOrProgramIsNotReported) {
  switchOn(false, true, true);
  machine.sound.result = 0;
  machine.programs.result = false;
  alerts.sendAlerts(addSite("http://example.com/"));
  EXPECT_THAT(machine.programs.started, SizeIs(1));
  EXPECT_THAT(machine.prompts.shown(), IsEmpty());
}

TEST_F(Alerts, ReadSoundAndProgramAfterTheMail) {
  switchOn(true, true, true);
  server.reply(SmtpStage::rcptTo, "");
  bool changed = false;
  auto timer = machine.timers().makeTimer([&] {
    if (!changed && server.commandCount() == 2) {
      changed = true;
      settings.setControl("audio", "/sounds/other.wav");
      settings.setControl("program", "/bin/other");
      server.say("250 ok\r\n");
    }
  });
  timer->setInterval(std::chrono::milliseconds(10));
  timer->setEnabled(true);
  alerts.sendAlerts(addSite("http://example.com/"));
  EXPECT_THAT(machine.sound.played, ElementsAre("/sounds/other.wav"));
  EXPECT_THAT(machine.programs.started, ElementsAre(ElementsAre("/bin/other")));
}

TEST_F(Alerts, TheDatabaseCanBeWrittenByOthersWhileTheMailIsSent) {
  switchOn(true, false, false);
  server.reply(SmtpStage::greeting, "");
  bool written = false;
  auto timer = machine.timers().makeTimer([&] {
    if (!written && server.connections() == 1) {
      written = true;
      folder.execute("update sites set url = 'http://changed/'");
      server.say("220 ready\r\n");
    }
  });
  timer->setInterval(std::chrono::milliseconds(10));
  timer->setEnabled(true);
  alerts.sendAlerts(addSite("http://example.com/"));
  EXPECT_EQ(folder.queryText("select url from sites"), "http://changed/");
}

TEST_F(Alerts, EndPromptlyWhenTheProgramClosesDuringASilentMail) {
  switchOn(true, false, false);
  server.reply(SmtpStage::data, "");
  std::chrono::steady_clock::time_point closedAt;
  auto timer = machine.timers().makeTimer([&] {
    if (!machine.pump.closing() && server.commandCount() == 3) {
      closedAt = std::chrono::steady_clock::now();
      machine.pump.close();
    }
  });
  timer->setInterval(std::chrono::milliseconds(10));
  timer->setEnabled(true);
  alerts.sendAlerts(addSite("http://example.com/"));
  EXPECT_TRUE(machine.pump.closing());
  EXPECT_LT(std::chrono::steady_clock::now() - closedAt, std::chrono::milliseconds(500));
}

TEST_F(Alerts, AFailedStatementTravels) {
  switchOn(true, true, true);
  folder.execute("drop view sites");
  EXPECT_THROW(alerts.sendAlerts(1), DataAccessError);
  EXPECT_THAT(machine.sound.played, IsEmpty());
}

TEST_F(Alerts, TheTestOfAProgramUsesSampleFacts) {
  alerts.testShellExecuteAlert("  /bin/alert ~1~ ~url~ ~2~ ~idsite~ ~3~ ~email~ ~4~ ~5~ ~6~ ~localip~  ");
  const std::string page = "https://www.tarnwick.example/";
  const TcpSocket& socket = mail.winsock1();
  EXPECT_THAT(machine.programs.started,
              ElementsAre(ElementsAre("/bin/alert", "2024-05-17", "12:00:30", page, page, "27", "27", "me@example.com",
                                      "me@example.com", socket.localHostName(), socket.localIP(), socket.localIP())));
}

TEST_F(Alerts, TheTestOfAProgramDoesNotDependOnTheSwitches) {
  alerts.testShellExecuteAlert("/bin/alert");
  EXPECT_THAT(machine.programs.started, ElementsAre(ElementsAre("/bin/alert")));
  EXPECT_EQ(server.connections(), 0);
}

TEST_F(Alerts, ACommandOfBlanksStartsNothingAndIsNotReported) {
  AlertDispatch real(database, settings, files, mail, withRealPrograms());
  EXPECT_NO_THROW(real.testShellExecuteAlert("    "));
  EXPECT_NO_THROW(real.testShellExecuteAlert(""));
  switchOn(false, false, true);
  settings.setControl("program", "   ");
  EXPECT_NO_THROW(real.sendAlerts(addSite("http://example.com/")));
  EXPECT_THAT(machine.prompts.shown(), IsEmpty());
}

TEST_F(Alerts, PlayWaveReturnsWhatTheDeviceSays) {
  EXPECT_EQ(alerts.playWave("a.wav"), 1);
  machine.sound.result = 0;
  EXPECT_EQ(alerts.playWave("b.wav"), 0);
  EXPECT_THAT(machine.sound.played, ElementsAre("a.wav", "b.wav"));
}

TEST_F(Alerts, WaitSuspendsWithoutHandlingEvents) {
  bool ticked = false;
  auto timer = machine.timers().makeTimer([&] { ticked = true; });
  timer->setInterval(std::chrono::milliseconds(1));
  timer->setEnabled(true);
  const auto before = std::chrono::steady_clock::now();
  AlertDispatch::wait(50);
  EXPECT_GE(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(50));
  EXPECT_FALSE(ticked);
  AlertDispatch::wait(-1);
}

/// A program of the test's own, which writes its arguments to the file "arguments", each in brackets.
class StartedPrograms : public Alerts {
 protected:
  void SetUp() override { SKIP_ON_WINDOWS("The programs of these cases are scripts of a shell."); }

  std::string writeProgram(const std::string& name = "alert.sh") {
    const std::string path = folder.file(name);
    const std::string result = folder.file("arguments");
    std::ofstream(path) << "#!/bin/sh\n{ printf '%s' \"$#\"; printf '[%s]' \"$@\"; } > '" << result << ".part'\n"
                        << "mv '" << result << ".part' '" << result << "'\n";
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    return path;
  }

  /// The number of the arguments and each of them, once the program has run.
  std::string arguments() {
    const std::string result = folder.file("arguments");
    // A file that appears is no event of the loop: something has to wake it for a look.
    auto looks = machine.timers().makeTimer([] {});
    looks->setInterval(std::chrono::milliseconds(10));
    looks->setEnabled(true);
    EXPECT_TRUE(waitUntil([&] { return std::filesystem::exists(result); })) << "The program was not started.";
    std::string text = files.getFile(result);
    std::filesystem::remove(result);
    return text;
  }

  static std::string asFetched(std::string url) {
    for (const auto& [character, encoded] : {std::pair(' ', "%20"), std::pair('\n', "%0A")}) {
      for (std::size_t at = 0; (at = url.find(character, at)) != std::string::npos;) {
        url.replace(at, 1, encoded);
      }
    }
    return url;
  }

  std::string alertFor(const std::string& url, const std::string& program) {
    switchOn(false, false, true);
    settings.setControl("program", program);
    real.sendAlerts(addSite(url));
    return arguments();
  }

  AlertDispatch real{database, settings, files, mail, withRealPrograms()};
};

TEST_F(StartedPrograms, GetTheFactsAsArguments) {
  EXPECT_EQ(alertFor("http://example.com/", writeProgram() + " --url \"~url~\" ~idsite~"),
            "3[--url][http://example.com/][1]");
}

TEST_F(StartedPrograms, GetAUrlAsItIsWhateverItHolds) {
  const std::string trap = folder.file("trap");
  const std::string url = "http://x/\" ; touch " + trap + " ; $(touch " + trap + ") `touch " + trap + "` && touch " +
                          trap + " | touch " + trap + " > " + trap + " %PATH% $HOME 'q' \\ * ? \n touch " + trap;
  EXPECT_EQ(alertFor(url, writeProgram() + " \"~url~\" end"), "2[" + asFetched(url) + "][end]");
  // Its blanks split nothing outside quotation marks either.
  EXPECT_EQ(alertFor("http://x/ ; touch " + trap, writeProgram() + " ~2~"),
            "1[" + asFetched("http://x/ ; touch " + trap) + "]");
  EXPECT_FALSE(std::filesystem::exists(trap));
}

TEST_F(StartedPrograms, MayLieInAFolderWithBlanks) {
  std::filesystem::create_directory(folder.file("my tools"));
  const std::string path = writeProgram("my tools/alert.sh");
  EXPECT_EQ(alertFor("http://x/", "\"" + path + "\" ~url~"), "1[http://x/]");
  // As the settings dialog's file chooser leaves it.
  EXPECT_EQ(alertFor("http://x/", path).front(), '0');
}

TEST_F(StartedPrograms, ThatAreMissingAreNotReported) {
  switchOn(false, false, true);
  settings.setControl("program", folder.file("missing") + " ~url~");
  EXPECT_NO_THROW(real.sendAlerts(addSite("http://x/")));
  EXPECT_THAT(machine.prompts.shown(), IsEmpty());
}

TEST_F(Alerts, AreDeliveredByAMailServerThatIsNotOurs) {
  const RealMailServer realServer;
  if (!realServer.available()) {
    GTEST_SKIP() << "aiosmtpd is not installed";
  }
  switchOn(true, false, false);
  writeTemplate("Site ~idsite~ failed at ~date~:\r\n~url~\r\n");
  const std::int16_t id = addSite("http://example.com/?q=1&r='2'");

  AlertDispatch(database, settings, files, mail, machine.services(), realServer.port16()).sendAlerts(id);

  EXPECT_EQ(realServer.envelope(), "me@example.com\nyou@example.com\n");
  EXPECT_EQ(realServer.content(),
            "Subject:A WEB SITE ERROR HAS OCCURED - message from tarnwick\r\nTO:<you@example.com>\r\n"
            "Tarnapplication: Tarnwick\r\nWebsite: https://www.tarnwick.example/\r\n\r\n"
            "Site 1 failed at 2024-05-17 12:00:30:\r\nhttp://example.com/?q=1&r='2'\r\n\r\n\r\n");
}

}  // namespace
}  // namespace tarnwick
