// SPDX-License-Identifier: MIT
// Self check of the model: small cases worked out by hand, one after the other, each with its expected outcome.

#include "model/model_check.h"

namespace tarnwick::model {
namespace {

void checkDue() {
  Site site = siteOf(1);
  site.lastChecked = kNoon + seconds(30);
  check(!isDue(site, kNoon + minutes(9) + seconds(59), NewSites::kAtNextStart), "nine minute changes are not ten");
  check(isDue(site, kNoon + minutes(10), NewSites::kAtNextStart), "ten minute changes after nine and a half minutes");
  check(secondsLeft(site, kNoon + minutes(10)) == 30, "seconds are whole seconds since the check");
  site.lastChecked = kNoon + hours(1);
  check(!isDue(site, kNoon, NewSites::kAtNextStart), "a stamp in the future waits");
  site.lastChecked.reset();
  check(!isDue(site, kNoon, NewSites::kAtNextStart), "never checked: not due before the next start");
  check(isDue(site, kNoon, NewSites::kAtOnce), "never checked: due with the option");
  site.active = 0;
  check(!isDue(site, kNoon, NewSites::kAtOnce), "an inactive site is never due");
  site.active = 7;
  check(isDue(site, kNoon, NewSites::kAtOnce), "any yes counts");
  site.active.reset();
  check(!isDue(site, kNoon, NewSites::kAtOnce), "a Null is no");
}

void checkCountdown() {
  Sites sites = sitesOf(2);
  sites[2].lastChecked = kNoon - minutes(10) - seconds(30);
  check(secondsToSoonest(sites, kNoon) == -30, "overdue is negative");
  sites[2].active = 0;
  check(secondsToSoonest(sites, kNoon) == 600, "inactive sites do not count");
  sites[1].lastChecked.reset();
  check(secondsToSoonest(sites, kNoon) == 0, "never checked reads as 0");
  sites[2].active = 1;
  check(secondsToSoonest(sites, kNoon) == 0, "and sorts before a site that is overdue");
  check(secondsToSoonest({}, kNoon) == 0, "no site reads as 0");
  check(countdownStep(0, 55) == 55 && countdownStep(1, 55) == 0, "only a countdown below zero is reloaded");
  check(countdownText(59) == "00:00:59" && countdownText(3725) == "01:02:05", "two digits each");
  check(countdownText(360000) == "00:00:00", "a hundred hours lose their leading digit");
  check(runClockText(3909) == "Run Time: 001:05:09", "three digits of hours");
}

void checkJudging() {
  const Judgement first = judge("", "", page("a"), Adopt::kAnything);
  check(first.adopted && first.up && first.logged.empty(), "the first page is adopted and up");
  const Judgement letter = judge("Page", "Page", page("page"), Adopt::kAnything);
  check(!letter.up && letter.logged == "page", "a letter's case makes it down, and the page is logged");
  const Judgement failure = judge("", "", failed(12, "gone"), Adopt::kAnything);
  check(failure.up && failure.baseline == "11:gone", "a failure is adopted as well");
  check(!judge("", "", failed(12, "gone"), Adopt::kPagesOnly).up, "unless only pages may be adopted");
  check(!judge("", "123456789", page("1234"), Adopt::kPagesOnly).up, "nor is less than half of the page before");
  check(judge("", "12345678", page("1234"), Adopt::kPagesOnly).up, "half of it is");
  check(judge("", "123456789", page("1234"), Adopt::kAnything).up, "unless anything may be adopted");
  check(judge("11:gone", "11:gone", failed(99, "gone"), Adopt::kAnything).up, "code and text have no say");
  check(!judge(std::string("a\0b", 3), "", page("a"), Adopt::kAnything).up, "bytes behind a NUL count");
  check(counterPlusOne(std::nullopt) == 1 && counterPlusOne(4) == 5, "a Null counter plus one is 1");
  check(!counterPlusOne(32767), "a full counter does not wrap");
}

void checkAlertTexts() {
  const Facts facts{"now", "http://x/~email~", "7", "a b@c.d", "host", "1.2.3.4"};
  check(substitute("~url~|~URL~|~1~", facts) == "http://x/a b@c.d|~URL~|~1~", "in order, exact case, no numbers");
  check(programFor(" p ~4~ \"~4~\" ", facts).arguments == std::vector<std::string>{"p", "a", "b@c.d", "a b@c.d"},
        "an unquoted blank of a value splits");
  const Facts sly{"now", "x\" y", "7", "", "", ""};
  check(programFor("p \"~2~\" ~2~", sly).arguments == std::vector<std::string>{"p", "x\" y", "x\"", "y"},
        "a quote of a value neither closes nor opens");
  check(programFor("   ", facts).arguments.empty(), "only blanks start nothing");
  const Mail mail = mailFor("s", "me@own.org", {"", "u\r\n.\r\n", "", "to@x.y\r\nRCPT TO:<z>", "", ""}, "~url~");
  check(mail.recipient == "to@x.yRCPT TO:<z>" && mail.body == "u.", "no line end enters a mail");
  const auto commands = mailCommands(mail, "http://maker");
  check(commands.size() == 5 && commands[0] == "MAIL FROM:<me@own.org>\r\n" && commands[4] == "QUIT\r\n", "commands");
  check(commands[3] ==
            "Subject:A WEB SITE ERROR HAS OCCURED - message from tarnwick\r\nTO:<to@x.yRCPT TO:<z>>\r\n"
            "Tarnapplication: Tarnwick\r\nWebsite: http://maker\r\n\r\nu.\r\n\r\n.\r\n",
        "the message to the byte");
}

void checkReport() {
  check(barWidth(1) == 6 && barWidth(95) == 100 && barWidth(200) == 100, "bars from 6 to 100");
  check(!barWidth(32763) && barWidth(32762) == 100, "too many rows for the bar");
  const LogRow good{1, "u", true, 0, "", "", kNoon}, bad{1, "u", false, 5, "t", "p", kNoon};
  LogRow yesterday = bad;
  yesterday.dateStamp = kMidnight - seconds(1);
  const ReportFigures figures = reportFigures({good, bad, good, yesterday}, kNoon);
  check(figures.entries == 3 && figures.errors == 1 && figures.successes == 2, "the local day alone counts");
  check(figures.lines == std::vector<ReportLine>{{"u", 1, false, 6}, {"u", 2, true, 7}}, "failures first");
  Settings settings = loudSettings();
  settings.reports = 1;
  Model model = modelOf(0, settings);
  model.minute(kNoon);
  model.start(kNoon);
  int written = 0, at = 0;
  for (int minute = 1; minute <= 120; ++minute) {
    model.takeEffects();
    model.minute(kNoon);
    if (only<ReportWritten>(model.takeEffects()).empty())
      continue;
    ++written;
    at = minute;
    check(model.statusLine() == "Report Done ...", "the report is told");
  }
  check(written == 3 && at == 119, "the first minute of running and then every 59th");
}

void checkRequests() {
  Site site = siteOf(1);
  site.method = "post";
  site.userName.reset();
  const Request post = requestFor(site, "a=b", 60);
  check(post.method == "POST" && post.body == "a=b" && !post.header.empty(), "any case of post is a POST");
  check(post.userName == "NULL", "a Null user name is four letters");
  site.method = "";
  const Request bare = requestFor(site, "a=b", 60);
  check(bare.method == "GET" && bare.body.empty() && bare.header.empty(), "an empty method is a bare GET");
  Settings settings;
  check(timeoutOf(settings) == 60, "a Null time-out is a minute");
  settings.timeout = "-3";
  check(timeoutOf(settings) == 60, "so is a negative one");
  settings.timeout = " 30 ";
  check(timeoutOf(settings) == 30, "a stored time-out holds");
}

void checkPassOrder() {
  Model model = modelOf(7);
  model.start(kNoon);
  check(model.inFlight() == std::vector<int>{1, 2, 3, 4, 5}, "five in flight, by id");
  check(model.lamp() == Lamp::kStart && model.statusLine() == "Testing: http://site5", "the last one sent is shown");
  model.answered(3, page("page"), kNoon);
  model.answered(2, page("page"), kNoon);
  check(model.log().empty(), "nothing is recorded before the sweep");
  model.sweep(kNoon);
  check(model.log().size() == 2 && model.log()[0].idSite == 2, "recorded in the order of the slots");
  for (const int id : {7, 6, 5, 4})
    answerAndSweep(model, id, page("page"), kNoon + seconds(1));
  check(model.log().size() == 2 && model.busy(), "with all sent, results wait for the last answer");
  answerAndSweep(model, 1, page("other"), kNoon + seconds(2));
  check(model.log().size() == 7 && model.log()[2].idSite == 1, "the drain takes the slots in order");
  check(model.log()[3].idSite == 6 && model.log()[4].idSite == 7, "slots two and three hold the late rows");
  check(!model.busy() && model.lamp() == Lamp::kPause, "the pass has ended");
  check(!model.answered(1, page("page"), kNoon), "nobody waits any more");
}

void checkRecording() {
  Settings settings = loudSettings();
  settings.playSound = settings.startProgram = 0;
  Model model = modelOf(1, settings);
  for (int turn = 1; turn <= 3; ++turn) {
    model.start(kNoon);
    answerAndSweep(model, 1, failed(12007, "no host"), kNoon + minutes(turn));
    model.stop(kNoon);
  }
  const Site& site = model.rows().at(1);
  check(site.failure == 3 && !site.success && site.status == 0, "three failures, one each");
  check(site.baseline == "page" && site.latestPage == "11:no host", "the baseline stays, the latest text is kept");
  check(site.lastChecked == kNoon + minutes(3), "the stamp is that of the record");
  check(model.log().back() == LogRow{1, "http://site1", false, 12007, "no host", "11:no host", kNoon + minutes(3)},
        "every column of the log");
  settings.logs.reset();
  model.settingsStored(settings);
  model.start(kNoon);
  answerAndSweep(model, 1, page("page"), kNoon);
  check(model.log().size() == 3 && model.rows().at(1).success == 1, "a Null switch keeps no log");
}

void checkAdoption() {
  Settings settings = loudSettings();
  settings.timeout = "30";
  Model model = modelOf(1, settings);
  model.baselineStored(1, "");
  model.start(kNoon);
  check(only<Request>(model.takeEffects())[0].timeout == 30, "the stored time-out goes with the request");
  answerAndSweep(model, 1, {Answer::Kind::kPage, 404, "Not Found", "first"}, kNoon);
  check(model.rows().at(1).baseline == "first" && model.rows().at(1).success == 1, "the first page is the baseline");
  check(model.log()[0].errCode == 0 && model.log()[0].errDescription.empty(), "a page has no code and no text");
  check(model.log()[0].content.empty() && model.log()[0].status, "nor is it logged when it is good");
  model.edited(siteOf(1, "typed"));
  check(model.rows().at(1).baseline == "first" && model.rows().at(1).success == 1, "the editor leaves results alone");
  for (int s = 1; s <= 3; ++s)
    model.second(kNoon + seconds(s));
  model.stop(kNoon + seconds(3));
  model.start(kNoon + seconds(4));
  check(model.countdown() == 0, "Start forgets the old countdown");
}

void checkAlertOrder() {
  Model model = modelOf(1);
  Site typed = siteOf(1);
  typed.alertEmail = 1;
  typed.email = "you@there.org";
  model.edited(typed);
  model.start(kNoon);
  model.takeEffects();
  answerAndSweep(model, 1, page("other"), kNoon);
  auto effects = model.takeEffects();
  check(only<Mail>(effects).size() == 1 && only<Sound>(effects).empty(), "the mail goes first and holds the rest");
  check(only<Mail>(effects)[0].body == "down: http://site1 at 43200", "the template is filled");
  check(model.mailing() && model.rows().at(1).status == 0 && !model.rows().at(1).failure, "counted after the alerts");
  model.mailEnded(kNoon + seconds(5));
  effects = model.takeEffects();
  check(effects.size() == 3 && std::holds_alternative<Sound>(effects[0]), "then the sound");
  check(std::get<Program>(effects[1]).line == "tell \"http://site1\" 1", "then the program, then the lamp");
  check(model.rows().at(1).failure == 1 && !model.busy(), "and the failure is counted");
  Settings settings = loudSettings();
  settings.program = "~1~";
  model.settingsStored(settings);
  model.start(kNoon);
  model.stop(kNoon);
  model.start(kNoon);
  answerAndSweep(model, 1, page("other"), kNoon);
  model.takeEffects();
  model.mailEnded(kNoon + seconds(5));
  check(only<Program>(model.takeEffects())[0].line == "43205", "the program's date is that of its own moment");
}

void checkStop() {
  Model model = modelOf(6);
  model.start(kNoon);
  model.answered(1, page("page"), kNoon);
  model.stop(kNoon);
  check(model.log().empty() && !model.busy() && model.lamp() == Lamp::kStop, "Stop loses what is not recorded");
  check(model.statusLine() == "Stopped.", "and says so");
  model.second(kNoon);
  check(model.runClock() == "Run Time: 000:00:00", "the clock keeps its last value");
  model.start(kNoon);
  model.stopAndStart(kNoon);
  check(model.busy() && model.inFlight().size() == 5 && model.running(), "unseen, the pass goes on");
}

void checkStopInMail() {
  Model model = modelOf(2);
  for (int id = 1; id <= 2; ++id) {
    Site typed = siteOf(id);
    typed.alertEmail = 1;
    model.edited(typed);
  }
  model.start(kNoon);
  model.answered(1, page("other"), kNoon);
  answerAndSweep(model, 2, page("other"), kNoon);
  model.stop(kNoon);
  check(model.busy() && model.lamp() == Lamp::kStop && !model.mailDeadline(), "the mail is waited for");
  model.mailEnded(kNoon);
  check(!model.busy() && model.rows().at(1).failure == 1 && !model.rows().at(2).failure, "the result in hand alone");
  Settings bounded = loudSettings();
  bounded.mailLimit = 60;
  model.settingsStored(bounded);
  model.start(kNoon);
  model.answered(1, page("other"), kNoon);
  answerAndSweep(model, 2, page("other"), kNoon);
  check(model.mailDeadline() == kNoon + seconds(60), "a bounded mail has a deadline");
  model.stop(kNoon);
  check(!model.busy() && model.rows().at(1).failure == 2 && !model.rows().at(2).failure,
        "and does not outlive the run");
}

void checkEditsInFlight() {
  Model model = modelOf(3);
  model.start(kNoon);
  Site typed = siteOf(1);
  typed.url = "http://moved";
  model.edited(typed);
  model.deleted(2);
  model.second(kNoon + seconds(1));
  check(model.countdown() == 599 && model.statusLine() == "Testing: http://site3", "a tick under a pass shows nothing");
  typed = siteOf(3);
  typed.interval = 60;
  model.edited(typed);
  for (int id = 1; id <= 3; ++id)
    answerAndSweep(model, id, page("page"), kNoon + seconds(1));
  check(model.log().size() == 1 && model.log()[0].idSite == 3, "only the unchanged request is judged");
  check(model.rows().at(1).lastChecked == kNoon && !model.rows().at(1).success, "the changed one is left as it was");
  check(model.due(kNoon + seconds(2)) == std::vector<int>{1}, "but it is due at once");
  model.takeEffects();
  model.second(kNoon + seconds(2));
  const auto requests = only<Request>(model.takeEffects());
  check(requests.size() == 1 && requests[0].url == "http://moved", "and asked at its new address by the next tick");
  answerAndSweep(model, 1, page("page"), kNoon + seconds(3));
  check(model.due(kNoon + seconds(4)).empty(), "once");
}

void checkTicks() {
  Model model = modelOf(1);
  model.start(kNoon);
  answerAndSweep(model, 1, page("page"), kNoon);
  model.second(kNoon + seconds(1));
  check(model.statusLine() == "Time Until Next Check: 00:09:59" && model.countdown() == 599, "asked at the first tick");
  model.second(kNoon + seconds(2));
  check(model.countdown() == 598 && model.runClock() == "Run Time: 000:00:02", "then counted down");
  Site typed = siteOf(1);
  typed.interval = 1;
  model.edited(typed);
  model.second(kNoon + seconds(3));
  check(model.countdown() == 597, "an edit alone is not seen");
  model.editorClosed();
  model.second(kNoon + seconds(4));
  check(model.countdown() == 56, "a closed editor makes the tick ask");
  for (int s = 5; s <= 60; ++s)
    model.second(kNoon + seconds(s));
  check(model.busy() && model.countdown() == 0, "zero begins a pass");
  model.second(kNoon + seconds(61));
  check(model.countdown() == -1 && model.inFlight().size() == 1, "no second pass under the first");
}

void checkEmptyAndErrors() {
  Model empty = modelOf(0);
  empty.start(kNoon);
  check(!empty.busy() && empty.lamp() == Lamp::kPause && empty.statusLine() == "Running.",
        "an empty pass ends at once");
  empty.takeEffects();
  empty.second(kNoon + seconds(1));
  empty.second(kNoon + seconds(2));
  check(only<LampLit>(empty.takeEffects()).size() == 4, "and is attempted at every tick");
  Sites full = sitesOf(2);
  full[1].success = 32767;
  Model model({}, full, loudSettings());
  model.start(kNoon);
  model.answered(1, page("page"), kNoon);
  model.takeEffects();
  answerAndSweep(model, 2, page("page"), kNoon);
  check(only<ErrorBox>(model.takeEffects()).size() == 1 && !model.busy(), "a full counter ends the pass with one box");
  check(model.lamp() == Lamp::kPause && model.running() && !model.rows().at(2).success, "the run goes on");
  check(model.rows().at(1).success == 32767 && model.log().size() == 1, "what was stored before stays");
  model.second(kNoon + minutes(10));
  check(model.busy(), "and the next tick tries again");
  model.answered(1, {Answer::Kind::kNotMade, 0, "", ""}, kNoon + minutes(10));
  answerAndSweep(model, 2, {Answer::Kind::kNotMade, 0, "", ""}, kNoon + minutes(10));
  check(!model.busy() && model.due(kNoon + minutes(10)).size() == 2, "not made: the sites stay due");
  check(model.log().size() == 1 && model.rows().at(2).lastChecked == kNoon, "not made: not recorded");
}

void checkRows() {
  check(newSiteId({}) == 1 && newSiteId(sitesOf(7)) == 8, "ids go up from the highest");
  Model model = modelOf(1);
  const int id = model.added();
  check(id == 2 && model.rows().at(2).url == "http://localhost" && !model.rows().at(2).status, "a fresh site");
  check(rowColour(model.rows().at(2)) == "&hFFFFFF", "never judged is white");
  Site site = siteOf(1);
  site.status = 0;
  check(rowColour(site) == "&h3030C0", "a stored no is red");
  site.active = 0;
  check(rowColour(site) == "&hA0A0A0", "inactive is grey whatever the result");
  check(lampColours(Lamp::kPause) == std::array<std::string, 3>{"&H0000A0", "&H00FFFF", "&H00A000"}, "one is bright");
  model.countersCleared(-1);
  check(model.rows().at(1).success == 0 && model.rows().at(2).failure == 0, "all counters");
}

}  // namespace
}  // namespace tarnwick::model

int main() {
  using namespace tarnwick::model;
  checkDue();
  checkCountdown();
  checkJudging();
  checkAlertTexts();
  checkReport();
  checkRequests();
  checkPassOrder();
  checkRecording();
  checkAdoption();
  checkAlertOrder();
  checkStop();
  checkStopInMail();
  checkEditsInFlight();
  checkTicks();
  checkEmptyAndErrors();
  checkRows();
  checkStorm();
  std::printf("%d checks, %d failures\n", checks, failures);
  return failures == 0 ? 0 : 1;
}
