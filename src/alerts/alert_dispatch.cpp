// SPDX-License-Identifier: MIT
#include "alerts/alert_dispatch.h"

#include <chrono>
#include <memory>
#include <string_view>
#include <thread>
#include <vector>

#include "base/command_line.h"
#include "base/errors.h"
#include "base/product.h"
#include "base/text.h"
#include "mail/smtp.h"
#include "store/site_options.h"
#include "store/sql_quote.h"

namespace tarnwick {
namespace {

/// The site id of a test alert.
constexpr const char* kSampleSite = "27";
constexpr const char* kSampleError = "The connection was refused.";

bool isFile(FileSystem& files, const std::string& path) {
  return path.find('\0') == std::string::npos && files.kindOf(path) == FileKind::file;
}

/// A mail without its text is still an alert.
std::string textOr(std::string_view otherwise, TextFiles& files, const std::string& path) {
  try {
    return files.getFile(path);
  } catch (const FileError&) {
    return std::string(otherwise);
  }
}

bool makesSound(AlertKind kind) {
  return kind == AlertKind::down || kind == AlertKind::stillDown || kind == AlertKind::unsteady;
}

}  // namespace

struct AlertDispatch::Site {
  std::string url;
  bool alertEmail = false;
  std::string email;
};

struct AlertDispatch::Mail {
  std::string to;
  std::string_view subject;
  std::string body;
};

AlertDispatch::AlertDispatch(Database& database, SettingsAndLog& settings, TextFiles& files, MailSocket& mail,
                             const Services& services, std::int16_t smtpPort)
    : db_(database), settings_(settings), files_(files), mailSocket_(mail), services_(services), smtpPort_(smtpPort) {}

void AlertDispatch::sendAlerts(std::int16_t idSite) {
  // All of them before the first alert, so that an unreadable settings row does not leave an alert half raised.
  const bool byMail = settings_.getControl("cEmail").toBool() && !mailIsReplaced_;
  const bool bySound = settings_.getControl("cAudio").toBool();
  const bool byProgram = settings_.getControl("cProgram").toBool();
  settings_.getControl("audio");
  const std::string server = settings_.getControl("smtp").toText();
  const std::string from = settings_.getControl("email").toText();
  const Site site = readSite(idSite);
  const AlertFacts facts = factsOf(site.url, std::to_string(idSite), site.email);

  const EventTexts& texts = textsOf(AlertKind::down);
  mailOutcome_ = byMail && site.alertEmail ? sendMail({facts.email, texts.subject, bodyOf(texts, facts)}, server, from)
                                           : MailOutcome{};
  mailOutcome_.otherWay = bySound || byProgram;
  // The mail may have taken long: what follows is read as it stands now.
  if (bySound) {
    playWave(settings_.getControl("audio").toText());
  }
  if (byProgram) {
    shellProgram(fillCommand(settings_.getControl("program").toText(), facts, services_.clock));
  }
}

void AlertDispatch::sendAlerts(std::int16_t idSite, AlertKind kind, const OutageFacts& outage) {
  const bool byMail = settings_.getControl("cEmail").toBool() && !mailIsReplaced_;
  const bool bySound = settings_.getControl("cAudio").toBool() && makesSound(kind);
  const std::string server = settings_.getControl("smtp").toText();
  const std::string from = settings_.getControl("email").toText();
  const Site site = readSite(idSite);
  const EventTexts& texts = textsOf(kind);
  AlertFacts facts = factsOf(site.url, std::to_string(idSite), site.email);
  facts.event = eventOf(kind, outage);

  mailOutcome_ = byMail && site.alertEmail ? sendMail({facts.email, texts.subject, bodyOf(texts, facts)}, server, from)
                                           : MailOutcome{};
  if (bySound) {
    playWave(settings_.getControl("audio").toText());
  }
  const bool byProgram = startFor(facts, kind == AlertKind::down);
  mailOutcome_.otherWay = bySound || byProgram;
}

void AlertDispatch::sendOfflineNotice(LocalTime since) {
  AlertFacts facts = factsOf("", "", settings_.getControl("email").toText());
  facts.event = eventOf("offline", {.since = since, .now = since});
  mailOutcome_ = {};
  mailOutcome_.otherWay = startFor(facts, false);
}

void AlertDispatch::sendOnlineNotice(LocalTime since, LocalTime until) {
  const bool byMail = settings_.getControl("cEmail").toBool() && !mailIsReplaced_;
  const std::string server = settings_.getControl("smtp").toText();
  const std::string from = settings_.getControl("email").toText();
  const EventTexts& texts = textsOfReturn();
  AlertFacts facts = factsOf("", "", from);
  facts.event = eventOf(texts.word, {.since = since, .now = until});
  mailOutcome_ = byMail && !trimmed(from).empty() ? sendMail({from, texts.subject, bodyOf(texts, facts)}, server, from)
                                                  : MailOutcome{};
  mailOutcome_.otherWay = startFor(facts, false);
}

void AlertDispatch::testShellExecuteAlert(const std::string& command) {
  AlertFacts facts = factsOf(kProductHomePage, kSampleSite, settings_.getControl("email").toText());
  const LocalTime now = services_.clock.localNow();
  facts.event = eventOf(textsOf(AlertKind::down).word,
                        {.since = now - std::chrono::minutes(2), .checks = 3, .firstError = kSampleError, .now = now});
  shellProgram(fillCommand(std::string(trimmed(command, " ")), facts, services_.clock));
}

long AlertDispatch::playWave(const std::string& fileName) { return services_.sound.play(fileName); }

void AlertDispatch::wait(long ms) { std::this_thread::sleep_for(std::chrono::milliseconds(ms)); }

AlertDispatch::Site AlertDispatch::readSite(std::int16_t idSite) {
  const auto rows = db_.query("select url,alertEmail,email from sites where idSite = " + sqlQuote(idSite));
  Site site;
  if (!rows->eof()) {
    site = {rows->field("url").toText(), rows->field("alertEmail").toBool(), rows->field("email").toText()};
  }
  // Closed before the mail is sent, which handles events: they write to the database.
  rows->close();
  return site;
}

AlertWays AlertDispatch::waysOf(std::int16_t idSite) {
  const Site site = readSite(idSite);
  const bool byMail = settings_.getControl("cEmail").toBool() && site.alertEmail;
  return {.mailTo = byMail ? site.email : std::string(),
          .sound = settings_.getControl("cAudio").toBool(),
          .program = settings_.getControl("cProgram").toBool()};
}

AlertFacts AlertDispatch::factsOf(const std::string& url, const std::string& idSite, const std::string& email) {
  const TcpSocket& socket = mailSocket_.winsock1();
  return {url, idSite, email, socket.localHostName(), socket.localIP()};
}

std::string AlertDispatch::bodyOf(const EventTexts& texts, const AlertFacts& facts) {
  const std::string path = db_.programFolder() + "/" + std::string(texts.file);
  return fillTemplate(textOr(texts.text, files_, path), facts, services_.clock);
}

MailOutcome AlertDispatch::sendMail(const Mail& mail, const std::string& server, const std::string& from) {
  std::int16_t port = smtpPort_;
  const auto limit = readOptions(db_).valueOf(kAllSites, option_name::mailLimit);
  if (limit && tooSlow_.contains(server)) {
    return {true, true, server,
            "The mail is left out, since the mail server " + server + " has not taken an earlier one in time."};
  }
  // Counted second by second: what falls due while the machine sleeps is one tick, and a server is not silent because
  // nobody listened to it.
  int secondsLeft = limit ? std::stoi(*limit) : 0;
  bool tookTooLong = false;
  const std::unique_ptr<Timer> second = services_.timers.makeTimer([this, &secondsLeft, &tookTooLong] {
    if (--secondsLeft == 0) {
      tookTooLong = true;
      giveUpMail();
    }
  });
  mailSocket_.bounded = limit.has_value();
  if (limit) {
    second->setInterval(std::chrono::seconds(1));
    second->setEnabled(true);
  }
  if (smtp(mailSocket_, services_.pump).sendEmail(server, mail.to, from, std::string(mail.subject), mail.body, port)) {
    return {};
  }
  if (!tookTooLong) {
    return {true, false, server, whyLost(server)};
  }
  if (inPass_) {
    tooSlow_.insert(server);
  }
  return {true, false, server,
          "The mail server " + server + " has not taken the mail within " + *limit +
              (*limit == "1" ? " second" : " seconds") +
              (inPass_ ? "; the other mails of this pass to it are left out." : ".")};
}

std::string AlertDispatch::whyLost(const std::string& server) const {
  if (trimmed(server).empty()) {
    return "No mail server is set, so the mail could not be sent.";
  }
  if (services_.pump.closing() || (mailSocket_.bounded && mailSocket_.givenUp)) {
    return "The mail was given up when the run was stopped.";
  }
  return "The mail server " + server + " could not be reached or refused the mail.";
}

void AlertDispatch::endPass() {
  inPass_ = false;
  tooSlow_.clear();
}

/// Whether it was started.
bool AlertDispatch::startFor(const AlertFacts& facts, bool whateverItNames) {
  const std::string command = settings_.getControl("program").toText();
  if (!settings_.getControl("cProgram").toBool() ||
      (!whateverItNames && command.find(kEventPlaceholder) == std::string::npos)) {
    return false;
  }
  shellProgram(fillCommand(command, facts, services_.clock));
  return true;
}

void AlertDispatch::shellProgram(const std::string& command) {
  const std::string line(trimmed(command, " "));
  std::vector<std::string> arguments = splitCommandLine(line);
  // A path chosen in the settings dialog stands there as it is, and folders with blanks in their names are common.
  if (arguments.size() > 1 && isFile(services_.files, line)) {
    arguments = {line};
  }
  services_.programs.start(arguments);
}

}  // namespace tarnwick
