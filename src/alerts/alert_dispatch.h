// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <set>
#include <string>

#include "alerts/alert_facts.h"
#include "alerts/event_texts.h"
#include "mail/mail_socket.h"
#include "platform/services.h"
#include "store/database.h"
#include "store/settings_and_log.h"
#include "store/text_files.h"

namespace tarnwick {

/// What became of the mail of an alert, and whether it was the only way.
struct MailOutcome {
  bool lost = false;     ///< there was to be one, and no server has taken it
  bool leftOut = false;  ///< it was not even tried, since an earlier one of the same pass has lasted too long
  std::string server{};
  std::string why{};      ///< for people, when it is lost: a sentence
  bool otherWay = false;  ///< it was told by a sound or a started program as well
};

/// The original ways by which a site's alerts leave, as the settings have them.
struct AlertWays {
  std::string mailTo{};  ///< empty for no mail; where a channel takes its place, none is sent
  bool sound = false;
  bool program = false;

  bool operator==(const AlertWays&) const = default;
};

/// The alerts of a failed site: a mail, a sound, a started program, in this order, as far as the settings switch them
/// on. Settings, site and template are read afresh for each. What goes wrong with one alert is not reported and does
/// not keep the next from following; only a failed statement raises DataAccessError.
class AlertDispatch {
 public:
  /// `smtpPort` is where the mail server of the settings listens.
  AlertDispatch(Database& database, SettingsAndLog& settings, TextFiles& files, MailSocket& mail,
                const Services& services, std::int16_t smtpPort = 25);

  /// Raises the alerts for a site that has just failed its check and returns when its mail has been handed over;
  /// events are handled meanwhile. For a site that no longer exists there is no mail, and the program gets empty texts.
  ///
  /// The mail goes to the address of the site, when the site wants mails, and its text is the file `email.txt` of the
  /// program folder (nothing when that cannot be read) with its placeholders filled in.
  void sendAlerts(std::int16_t idSite);

  /// Tells what has been decided about a site, in the same way: `down` as the other one does, the further kinds with
  /// subjects and texts of their own (`EventTexts`). In all of them, and in the program's command line, the
  /// placeholders of the event are filled in.
  ///
  /// There is no sound for good news and for warnings. A program is started for anything but `down` only if its command
  /// line names `~event~`: one that restarts a server must not do so because it is up again.
  void sendAlerts(std::int16_t idSite, AlertKind kind, const OutageFacts& outage);

  /// Tells that this machine has no way to the net any more: by the program alone, if its command line names
  /// `~event~`, since no mail could leave.
  void sendOfflineNotice(LocalTime since);
  /// Tells that it has one again: by the program likewise, and by a mail to the address of the settings.
  void sendOnlineNotice(LocalTime since, LocalTime until);

  /// Ends the wait for a mail server of the alert in progress, if the option `mailLimit` bounds it: who stops a run
  /// does not want to wait for it.
  void giveUpMail() { mailSocket_.givenUp = true; }

  /// Whether mails leave another way: then none is sent here.
  void replaceMail(bool replaced) { mailIsReplaced_ = replaced; }

  /// Which ways there are for the site.
  AlertWays waysOf(std::int16_t idSite);

  /// What became of the mail of the latest alert; nothing is lost when it was to send none.
  const MailOutcome& mailOutcome() const { return mailOutcome_; }

  /// Between these two a mail server that has not taken a mail within `mailLimit` is not asked again: in a pass of many
  /// failures each would wait as long as the first one.
  void beginPass() { inPass_ = true; }
  void endPass();

  /// Fills sample facts into `command` and starts it as the program alert would.
  void testShellExecuteAlert(const std::string& command);

  /// Starts to play a .wav file and returns at once: 1 when it plays, 0 when it cannot.
  long playWave(const std::string& fileName);

  /// Vocabulary: no front end calls it.
  /// Suspends the whole program for `ms` milliseconds; no events are handled meanwhile. Nothing for 0 or less.
  static void wait(long ms);

 private:
  struct Site;
  struct Mail;

  Site readSite(std::int16_t idSite);
  AlertFacts factsOf(const std::string& url, const std::string& idSite, const std::string& email);
  MailOutcome sendMail(const Mail& mail, const std::string& server, const std::string& from);
  std::string bodyOf(const EventTexts& texts, const AlertFacts& facts);
  bool startFor(const AlertFacts& facts, bool whateverItNames);
  std::string whyLost(const std::string& server) const;
  void shellProgram(const std::string& command);

  Database& db_;
  SettingsAndLog& settings_;
  TextFiles& files_;
  MailSocket& mailSocket_;
  Services services_;
  std::int16_t smtpPort_;
  MailOutcome mailOutcome_;
  bool inPass_ = false;
  bool mailIsReplaced_ = false;
  std::set<std::string> tooSlow_;  // mail servers
};

}  // namespace tarnwick
