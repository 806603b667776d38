// SPDX-License-Identifier: MIT
// The run: what the buttons, the timers, the answers and the editors do to the state of the monitor.

#include "model/model.h"

#include <algorithm>

namespace tarnwick::model {

// A run never starts by itself.
Model::Model(Surroundings surroundings, Sites sites, Settings settings)
    : surroundings_(std::move(surroundings)), sites_(std::move(sites)), settings_(std::move(settings)) {
  light(Lamp::kStop);
  show("Ready ...");
}

// Every change of a lamp counts, also one that the next change hides at once.
void Model::light(Lamp lamp) {
  lamp_ = lamp;
  effects_.push_back(LampLit{lamp});
}

// The line is repainted at once, so each text is seen in its turn.
void Model::show(const std::string& text) {
  statusLine_ = text;
  effects_.push_back(StatusShown{text});
}

// Each use reads the clock of its own moment.
std::string Model::dateText(Time now) const {
  return surroundings_.dateText == nullptr ? std::string() : surroundings_.dateText(now);
}

// A pass in progress sees at once that the run is over, unless a mail holds it: then it looks when the mail has ended.
// A bounded mail does not outlive the run.
void Model::stop(Time now) {
  pressStop();
  if (mailing_ && settings_.mailLimit > 0) {
    mailEnded(now);
  } else {
    proceed(now);
  }
}

// Nobody has looked in between, so the pass in progress goes on as if nothing had happened.
void Model::stopAndStart(Time now) {
  pressStop();
  start(now);
  proceed(now);
}

// Every active site is tested at once, whatever its last check. The countdown begins afresh, so that the first tick
// asks the data instead of counting on from an earlier run.
void Model::start(Time now) {
  if (running_)
    return;
  show("Running.");
  runStart_ = now;
  runClock_ = runClockText(0);
  running_ = true;
  secondsToNext_ = 0;
  beginPass(activeSites(sites_), now);
}

// The lamps pass through "pause" on their way to "stop".
void Model::pressStop() {
  light(Lamp::kPause);
  running_ = false;
  light(Lamp::kStop);
  show("Stopped.");
}

// The countdown runs on under a pass, but it neither shows itself nor begins a second one there.
void Model::second(Time now) {
  if (!running_)
    return;
  runClock_ = runClockText((now - runStart_).count());
  secondsToNext_ = countdownStep(secondsToNext_, secondsToSoonest(sites_, now, atOnce_));
  if (busy())
    return;
  if (secondsToNext_ <= 0)
    return beginPass(due(now), now);
  show("Time Until Next Check: " + countdownText(secondsToNext_));
}

// The first minute of running makes a report, then every 59th: the counter falls back to 1, not to 0.
void Model::minute(Time now) {
  constexpr int kReportEvery = 60;
  if (!running_ || ++reportTick_ < kReportEvery)
    return;
  reportTick_ = 1;
  if (!isYes(settings_.reports))
    return;
  show("Creating Report ...");
  ReportFigures figures = reportFigures(log_, now);
  const bool writable = std::all_of(figures.lines.begin(), figures.lines.end(),
                                    [](const ReportLine& line) { return line.barWidth.has_value(); });
  if (!writable)
    return effects_.push_back(ErrorBox{});
  effects_.push_back(ReportWritten{std::move(figures)});
  show("Report Done ...");
}

// Slots that have finished become free here, and only here.
void Model::sweep(Time now) {
  for (Slot& slot : slots_) {
    if (slot.state == SlotState::kFinished)
      slot.state = SlotState::kFree;
  }
  proceed(now);
}

// The slot keeps the answer until its turn comes to be recorded.
bool Model::answered(int idSite, Answer answer, Time now) {
  const auto slot = std::find_if(slots_.begin(), slots_.end(), [idSite](const Slot& s) {
    return s.state == SlotState::kExecuting && s.request.idSite == idSite;
  });
  if (slot == slots_.end())
    return false;
  if (answer.kind != Answer::Kind::kFailed) {  // a page, even one that tells of an error, has neither code nor text
    answer.code = 0;
    answer.text.clear();
  }
  slot->answer = std::move(answer);
  slot->state = SlotState::kFinished;
  slot->done = true;
  proceed(now);
  return true;
}

// Whether the mail was delivered makes no difference to anything that follows.
void Model::mailEnded(Time now) {
  if (!mailing_)
    return;
  mailing_ = false;
  finishAlerts(now);
  count();
  proceed(now);
}

// The pass in hand ends with one box; a run goes on and tries again at its next tick.
void Model::dataError() {
  effects_.push_back(ErrorBox{});
  if (busy())
    endPass();
}

// Without a limit a silent mail server is waited for without end.
std::optional<Time> Model::mailDeadline() const {
  if (!mailing_ || settings_.mailLimit <= 0)
    return std::nullopt;
  return mailStart_ + std::chrono::seconds(settings_.mailLimit);
}

// In the order of the slots, which is not that of the ids once a slot has been used again.
std::vector<int> Model::inFlight() const {
  std::vector<int> ids;
  for (const Slot& slot : slots_) {
    if (slot.state == SlotState::kExecuting)
      ids.push_back(slot.request.idSite);
  }
  return ids;
}

// The rows and the time-out are taken once; what is edited later counts from the next pass on.
void Model::beginPass(const std::vector<int>& ids, Time now) {
  if (busy())
    return;
  light(Lamp::kStart);
  table_.clear();
  for (const int id : ids)
    table_.push_back(sites_.at(id));
  slots_.assign(std::min(kMostInFlight, table_.size()), Slot{});
  timeout_ = timeoutOf(settings_);
  nextRow_ = nextDrained_ = 0;
  stage_ = Stage::kDispatch;
  if (table_.empty())
    return endPass();
  proceed(now);
}

// Whatever is still in flight is cut; its results are lost.
void Model::endPass() {
  slots_.clear();
  table_.clear();
  offered_.clear();
  waiting_.clear();
  recording_ = false;
  mailing_ = false;
  stage_ = Stage::kIdle;
  light(running_ ? Lamp::kPause : Lamp::kStop);
}

// Goes on until the pass has to wait for an answer, for the sweep or for a mail.
void Model::proceed(Time now) {
  while (busy() && !mailing_) {
    if (!running_)
      return endPass();
    if (!step(now))
      return;
  }
}

// One step of the pass between two looks at the run; no when there is nothing to do yet.
bool Model::step(Time now) {
  if (stage_ == Stage::kDispatch)
    return dispatchStep(now);
  if (stage_ == Stage::kDrain)
    return drainStep(now);
  const bool allFree =
      std::all_of(slots_.begin(), slots_.end(), [](const Slot& slot) { return slot.state == SlotState::kFree; });
  if (allFree)
    stage_ = Stage::kDrain;
  return allFree;
}

// A look at the free slots takes their results out. One alone is recorded before anything is sent; where several have
// come together the next rows are sent first, and then they are recorded, one after the other. A slot that comes free
// while a mail is under way is only seen at the next look.
bool Model::dispatchStep(Time now) {
  const bool allSent = nextRow_ == table_.size();
  recording_ = recording_ && !waiting_.empty();
  if (offered_.empty() && !recording_ && !allSent) {
    look();
  }
  recording_ = !waiting_.empty() && (recording_ || offered_.empty() || allSent);
  if (recording_) {
    Slot next = std::move(waiting_.front());
    waiting_.erase(waiting_.begin());
    record(next, now);
  } else if (allSent) {
    offered_.clear();
    stage_ = Stage::kAwait;
  } else if (!offered_.empty()) {
    dispatch(slots_[offered_.front()]);
    offered_.erase(offered_.begin());
  } else {
    return false;
  }
  return true;
}

// Nothing to look for among slots that were free and empty before, once something waits to be recorded.
void Model::look() {
  const auto isFree = [](const Slot& slot) { return slot.state == SlotState::kFree; };
  const bool anyDone = std::any_of(slots_.begin(), slots_.end(), [&](const Slot& s) { return isFree(s) && s.done; });
  if (!anyDone && !waiting_.empty()) {
    return;
  }
  for (std::size_t s = 0; s < slots_.size(); ++s) {
    if (!isFree(slots_[s])) {
      continue;
    }
    offered_.push_back(s);
    if (slots_[s].done) {
      waiting_.push_back(slots_[s]);
      slots_[s].done = false;
    }
  }
  recording_ = waiting_.size() == 1;
}

// With every row sent, results wait until the last answer is in and are then recorded in the order of the slots.
bool Model::drainStep(Time now) {
  if (nextDrained_ < slots_.size()) {
    record(slots_[nextDrained_++], now);
  } else {
    endPass();
  }
  return true;
}

// A row goes out as the pass has read it; its POST variables are read at this moment.
void Model::dispatch(Slot& slot) {
  const Site& row = table_[nextRow_++];
  const auto stored = sites_.find(row.id);
  slot = Slot{};
  slot.state = SlotState::kExecuting;
  slot.request = requestFor(row, stored == sites_.end() ? "" : stored->second.postBody, timeout_);
  show("Testing: " + slot.request.url);
  effects_.push_back(slot.request);
}

// Judges and stores one answer, and raises its alerts. A request that never left says nothing about the site.
void Model::record(Slot& slot, Time now) {
  if (!std::exchange(slot.done, false) || slot.answer.kind == Answer::Kind::kNotMade)
    return;
  const auto found = sites_.find(slot.request.idSite);
  const bool asked = found != sites_.end() && isYes(found->second.active) &&
                     requestFor(found->second, found->second.postBody, timeout_) == slot.request;
  if (!asked) {
    return dropPage(slot.request.idSite);
  }
  Site& site = found->second;
  const Judgement judgement =
      judge(site.baseline.value_or(""), site.latestPage.value_or(""), slot.answer, settings_.adopt);
  store(site, slot.answer, judgement, now);
  verdict_ = Verdict{};
  verdict_.idSite = site.id;
  verdict_.up = judgement.up;
  if (!judgement.up)
    raiseAlerts(now);
  if (!mailing_)
    count();
}

// The page answers a question that nobody asks any more: no verdict, no log row, and the site is asked again at once if
// it is watched still.
void Model::dropPage(int idSite) {
  const auto site = sites_.find(idSite);
  if (site == sites_.end() || !isYes(site->second.active))
    return;
  atOnce_.insert(idSite);
  secondsToNext_ = 0;
}

// A failed page is kept whole in the log; of a good one the baseline already tells what it was.
void Model::store(Site& site, const Answer& answer, const Judgement& judgement, Time now) {
  if (judgement.adopted)
    site.baseline = judgement.content;
  site.latestPage = judgement.content;
  if (isYes(settings_.logs)) {
    log_.push_back({site.id, site.url.value_or(""), judgement.up, answer.code,
                    answer.text.empty() ? judgement.remark : answer.text, judgement.logged, now});
  }
  site.lastChecked = now;
  atOnce_.erase(site.id);
  site.status = judgement.up ? 1 : 0;
}

// Every failed check alerts, not only the first one. The switches and the facts are taken before the mail.
void Model::raiseAlerts(Time now) {
  const Site& site = sites_.at(verdict_.idSite);
  verdict_.on = switchesFor(settings_, site);
  verdict_.facts = {dateText(now),           site.url.value_or(""),  std::to_string(site.id),
                    site.email.value_or(""), surroundings_.hostName, surroundings_.hostAddress};
  if (!verdict_.on.mail)
    return finishAlerts(now);
  mailing_ = true;
  mailStart_ = now;
  effects_.push_back(alertsFor(verdict_.on, settings_, verdict_.facts, surroundings_.mailTemplate).front());
}

// What follows the mail takes its texts and the date from the moment when the mail is over.
void Model::finishAlerts(Time now) {
  verdict_.on.mail = false;
  verdict_.facts.date = dateText(now);
  for (Effect& alert : alertsFor(verdict_.on, settings_, verdict_.facts, std::nullopt)) {
    effects_.push_back(std::move(alert));
  }
}

// The counter comes last. A site that was deleted during its mail has none; a full counter is an error of the data.
void Model::count() {
  const auto found = sites_.find(verdict_.idSite);
  if (found == sites_.end())
    return;
  std::optional<int>& counter = verdict_.up ? found->second.success : found->second.failure;
  const auto raised = counterPlusOne(counter);
  if (!raised)
    return dataError();
  counter = raised;
}

// A fresh site is watched every ten minutes; all it lacks is Null until the editor saves it.
int Model::added() {
  Site site;
  site.id = newSiteId(sites_);
  site.url = "http://localhost";
  site.method = "GET";
  site.active = 1;
  site.interval = 10;
  sites_[site.id] = site;
  return site.id;
}

// The editor writes what it shows; baseline, result, counters and the last check stay as they are.
void Model::edited(const Site& typed) {
  const auto found = sites_.find(typed.id);
  if (found == sites_.end())
    return;
  Site& site = found->second;
  Site changed = typed;
  changed.lastChecked = site.lastChecked;
  changed.status = site.status;
  changed.success = site.success;
  changed.failure = site.failure;
  changed.baseline = site.baseline;
  changed.latestPage = site.latestPage;
  site = changed;
}

// The id may be given out again, so nothing of the old site may stick to it.
void Model::deleted(int idSite) {
  sites_.erase(idSite);
  atOnce_.erase(idSite);
}

// The next tick asks afresh, so that what was edited takes effect at once. A pass in progress is left alone.
void Model::editorClosed() { secondsToNext_ = 0; }

// What was counted by another clock says nothing about the sites. One whose stamp lies ahead simply waits.
void Model::clockSet() { secondsToNext_ = 0; }

// An empty text makes the next page the baseline.
void Model::baselineStored(int idSite, const std::string& text) {
  if (sites_.contains(idSite))
    sites_.at(idSite).baseline = text;
}

// A negative id clears the counters of every site.
void Model::countersCleared(int idSite) {
  for (auto& [id, site] : sites_) {
    if (idSite < 0 || id == idSite)
      site.success = site.failure = 0;
  }
}

}  // namespace tarnwick::model
