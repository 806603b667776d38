// SPDX-License-Identifier: MIT
#pragma once

// An executable model of the monitor: what the sites, the log, the alerts, the lamps and the status line must be after
// any sequence of events. It has no clock, no network and no files: whoever drives it reports what happened and when.
// Where the outside world decides (which answer comes first, when the pool frees a slot), the driver's order decides.

#include <array>
#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace tarnwick::model {

// Local wall time in whole seconds: stamps in the data are local, and due sites are chosen by the local clock.
using Time = std::chrono::local_seconds;
using Text = std::optional<std::string>;  // a text column; no value is a Null
using Flag = std::optional<int>;          // a yes/no column: any number but 0 is yes, a Null is no

constexpr std::size_t kMostInFlight = 5;
constexpr int kHighestCount = 32767;  // counters are 16 bits wide and must not wrap

struct Site {
  int id = 0;
  Text url, method;
  Flag active;
  std::optional<int> interval;  // minutes
  std::optional<Time> lastChecked;
  Flag alertEmail;
  Text email, userName, passWord;
  Flag status;
  std::optional<int> success, failure;
  Text baseline, latestPage;
  std::string postBody;  // the POST variables, already encoded; only a POST carries them
  bool operator==(const Site&) const = default;
};
using Sites = std::map<int, Site>;

enum class NewSites { kAtNextStart, kAtOnce };
enum class Adopt { kAnything, kPagesOnly };

struct Settings {
  Text email, smtp, audio, program, timeout;
  Flag logs, reports, sendMail, playSound, startProgram;
  NewSites newSites = NewSites::kAtNextStart;
  Adopt adopt = Adopt::kAnything;
  int mailLimit = 0;  // seconds for one whole mail exchange; 0 waits without end
};

// What the machine around the monitor says about itself.
struct Surroundings {
  std::string hostName, hostAddress, website;
  Text mailTemplate;                            // no value: missing or unreadable, the mail has an empty body
  std::string (*dateText)(Time now) = nullptr;  // the system's way to write a date and time; none leaves it blank
};

struct Answer {
  enum class Kind { kPage, kFailed, kNotMade };  // not made: this machine could not even send the request
  Kind kind = Kind::kPage;
  std::int32_t code = 0;  // code and text belong to a failure; a page comes with 0 and nothing
  std::string text;
  std::string page;
};

struct LogRow {
  int idSite = 0;
  std::string url;
  bool status = false;
  std::int32_t errCode = 0;
  std::string errDescription, content;
  Time dateStamp;
  bool operator==(const LogRow&) const = default;
};

struct ReportLine {
  std::string url;
  int total = 0;
  bool status = false;
  std::optional<int> barWidth;  // no value: the count is too high for 16 bits, writing the report fails
  bool operator==(const ReportLine&) const = default;
};
struct ReportFigures {
  std::vector<ReportLine> lines;
  int entries = 0, errors = 0, successes = 0;
};

// What the monitor does to the outside world, in the order in which it does it.
enum class Lamp { kStart, kPause, kStop };
struct LampLit {
  Lamp lamp;
};
struct StatusShown {
  std::string text;
};
struct Request {
  int idSite = 0;
  std::string url, method, userName, passWord, header, body;
  int timeout = 0;
  bool operator==(const Request&) const = default;
};
struct Mail {
  std::string server, recipient, sender, subject, body;
};
struct Sound {
  std::string file;
};
struct Program {
  std::string line;
  std::vector<std::string> arguments;  // empty: nothing can be started, and nobody is told
};
struct ReportWritten {
  ReportFigures figures;
};
struct ErrorBox {};
using Effect = std::variant<LampLit, StatusShown, Request, Mail, Sound, Program, ReportWritten, ErrorBox>;

// The facts of one failure, as they are put into the mail and into the command line.
struct Facts {
  std::string date, url, idSite, email, hostName, hostAddress;
};

// Which alerts a failure raises.
struct Switches {
  bool mail = false, sound = false, program = false;
};

// How one answer is judged, before anything is stored.
struct Judgement {
  std::string content, baseline, logged, remark;
  bool adopted = false, up = false;
};

// The pure rules: each depends on its arguments alone.
std::string trimmed(const std::string& text);
bool isYes(Flag flag);
std::string rowText(const Text& value);
int timeoutOf(const Settings& settings);
Request requestFor(const Site& row, const std::string& postBody, int timeout);
std::optional<std::int64_t> secondsLeft(const Site& site, Time now);
bool isDue(const Site& site, Time now, NewSites newSites);
std::vector<int> dueSites(const Sites& sites, Time now, NewSites newSites, const std::set<int>& atOnce = {});
std::vector<int> activeSites(const Sites& sites);
std::int64_t secondsToSoonest(const Sites& sites, Time now, const std::set<int>& atOnce = {});
std::int64_t countdownStep(std::int64_t seconds, std::int64_t toSoonest);
Judgement judge(const std::string& baseline, const std::string& before, const Answer& answer, Adopt adopt);
std::optional<int> counterPlusOne(std::optional<int> counter);
std::string substitute(std::string text, const Facts& facts);
Mail mailFor(const std::string& server, const std::string& sender, Facts facts, const std::string& mailTemplate);
std::vector<std::string> mailCommands(const Mail& mail, const std::string& website);
Program programFor(const std::string& commandTemplate, const Facts& facts);
Switches switchesFor(const Settings& settings, const Site& site);
std::vector<Effect> alertsFor(const Switches& on, const Settings& texts, const Facts& facts, const Text& mailTemplate);
std::optional<int> barWidth(int count);
ReportFigures reportFigures(const std::vector<LogRow>& log, Time now);
std::string countdownText(std::int64_t seconds);
std::string runClockText(std::int64_t seconds);
std::string rowColour(const Site& site);
std::array<std::string, 3> lampColours(Lamp lit);
int newSiteId(const Sites& sites);

class Model {
 public:
  Model(Surroundings surroundings, Sites sites, Settings settings);

  // The user's buttons.
  void start(Time now);
  void stop(Time now);
  void stopAndStart(Time now);  // both before the pass in progress could look

  // The timers: once a second of a run, once a minute, and the sweep of the pool.
  void second(Time now);
  void minute(Time now);
  void sweep(Time now);

  // What comes back from outside. answered() says no for a request that is not in flight: nobody waits for it.
  bool answered(int idSite, Answer answer, Time now);
  void mailEnded(Time now);
  void dataError();  // in the work of the pass itself; without a pass it is only told

  // The editors. A change that another program makes to the data is an edit without a closing editor.
  int added();
  void edited(const Site& typed);
  void deleted(int idSite);
  void editorClosed();
  void clockSet();
  void baselineStored(int idSite, const std::string& text);
  void countersCleared(int idSite);
  void logCleared() { log_.clear(); }
  void settingsStored(Settings settings) { settings_ = std::move(settings); }

  // What must be seen now.
  const Sites& rows() const { return sites_; }
  const std::vector<LogRow>& log() const { return log_; }
  std::vector<Effect> takeEffects() { return std::exchange(effects_, {}); }
  Lamp lamp() const { return lamp_; }
  const std::string& statusLine() const { return statusLine_; }
  const std::string& runClock() const { return runClock_; }
  std::int64_t countdown() const { return secondsToNext_; }
  std::vector<int> due(Time now) const { return dueSites(sites_, now, settings_.newSites, atOnce_); }
  std::vector<int> inFlight() const;
  bool running() const { return running_; }
  bool busy() const { return stage_ != Stage::kIdle; }
  bool mailing() const { return mailing_; }
  std::optional<Time> mailDeadline() const;  // a bounded exchange must have ended by then

 private:
  enum class Stage { kIdle, kDispatch, kAwait, kDrain };
  enum class SlotState { kFree, kExecuting, kFinished };
  struct Slot {
    SlotState state = SlotState::kFree;
    bool done = false;
    Request request;
    Answer answer;
  };
  struct Verdict {
    int idSite = 0;
    bool up = false;
    Switches on;
    Facts facts;
  };

  void light(Lamp lamp);
  void show(const std::string& text);
  void pressStop();
  void beginPass(const std::vector<int>& ids, Time now);
  void endPass();
  void proceed(Time now);
  bool step(Time now);
  bool dispatchStep(Time now);
  void look();
  bool drainStep(Time now);
  void dispatch(Slot& slot);
  void record(Slot& slot, Time now);
  void dropPage(int idSite);
  void store(Site& site, const Answer& answer, const Judgement& judgement, Time now);
  void raiseAlerts(Time now);
  void finishAlerts(Time now);
  void count();
  std::string dateText(Time now) const;

  Surroundings surroundings_;
  Sites sites_;
  Settings settings_;
  std::vector<LogRow> log_;
  std::vector<Effect> effects_;
  std::set<int> atOnce_;  // changed while their request was under way: due whatever their interval says

  bool running_ = false;
  std::int64_t secondsToNext_ = 0;
  Time runStart_;
  std::string statusLine_, runClock_;
  Lamp lamp_ = Lamp::kStop;
  int reportTick_ = 60;

  Stage stage_ = Stage::kIdle;
  std::vector<Site> table_;  // the rows as they were when the pass began
  std::vector<Slot> slots_;
  std::vector<std::size_t> offered_;  // slots found free at the last look, not yet visited
  std::size_t nextRow_ = 0, nextDrained_ = 0;
  std::vector<Slot> waiting_;  // results that are taken out of their slots and not recorded yet
  bool recording_ = false;     // until none of them is left
  int timeout_ = 0;
  Verdict verdict_;
  bool mailing_ = false;
  Time mailStart_;
};

}  // namespace tarnwick::model
