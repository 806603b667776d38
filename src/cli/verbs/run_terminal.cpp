// SPDX-License-Identifier: MIT
#include "cli/verbs/run_terminal.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "base/errors.h"
#include "cli/verbs/delivery_words.h"
#include "engine/cause.h"
#include "store/site_table.h"

namespace tarnwick {
namespace {

// Enough for a step of one for each site that there can be.
constexpr std::int64_t kFullWidth = 1'000'000;

std::string countText(std::size_t up, std::size_t down) {
  return std::to_string(up) + " up, " + std::to_string(down) + " down";
}

/// Nothing for one that the program cannot use, which the pass tells of.
std::optional<std::int16_t> idOf(const std::string& text) {
  try {
    return siteIdFromText(text);
  } catch (const OverflowError&) {
    return std::nullopt;
  }
}

std::string leftOutText(std::size_t mails) {
  return mails == 0 ? "" : "; " + std::to_string(mails) + (mails == 1 ? " mail" : " mails") + " left out";
}

std::string sitesText(std::size_t count) { return std::to_string(count) + (count == 1 ? " site" : " sites"); }

}  // namespace

void RunTerminal::prepare(m& data) {
  data_ = &data;
  watchOutbox();
  const TextTable sites = data.getArraySitesActiveTrue(site_choice::active);
  active_ = sites.lastRow();
  for (std::size_t row = 1; row <= sites.lastRow(); ++row) {
    const std::string& status = sites.at(site_column::status, row);
    const auto id = idOf(sites.at(site_column::idSite, row));
    if (id && status != kNullText) {
      known_[*id] = SqlValue(status).toBool();
    }
  }
}

void RunTerminal::watchOutbox() {
  m& data = *data_;
  // What was given up in earlier runs has been told there.
  outbox_.failed = data.channelsInForce().empty() ? 0 : data.outboxSummary().failed;
  data.delivery().onChanged([this, &data] {
    try {
      showOutbox(data.outboxSummary());
      lookAfterTheTrial();
    } catch (const DataAccessError&) {
      // What keeps the file from being read is told elsewhere.
    }
  });
}

void RunTerminal::begin() {
  begun_ = true;
  begunAt_ = clock_.steadyNow();
  tell("Run started: " + sitesText(active_) + " active in " + visibleText(data_->programFolder()) + ".", "started",
       [&] {
         return JsonValue{{"folder", jsonText(data_->programFolder())}, {"active", active_}};
       });
}

void RunTerminal::end() {
  console_.endLive();
  if (begun_) {
    tell("Run stopped.", "stopped", [] { return JsonValue::object(); });
  }
  if (data_ != nullptr) {
    data_->delivery().onChanged(nullptr);
  }
  data_ = nullptr;
}

void RunTerminal::showOutbox(const OutboxSummary& summary) {
  const OutboxSummary before = std::exchange(outbox_, summary);
  if (summary.failed > before.failed) {
    tell(lossText(summary), "alertsLost", [&] {
      return JsonValue{{"failed", summary.failed}, {"answer", jsonText(summary.failedBy)}};
    });
  }
  if (summary.delayed > 0 && before.delayed == 0) {
    tell(delayText(summary), "alertsWaiting", [&] {
      return JsonValue{{"waiting", summary.delayed}, {"answer", jsonText(summary.delayedBy)}};
    });
  } else if (summary.delayed == 0 && before.delayed > 0 && summary.failed == before.failed) {
    tell("All alerts are delivered again.", "alertsDelivered", [] { return JsonValue::object(); });
  }
}

void RunTerminal::lookAfterTheTrial() {
  const std::string text = trialText(*data_);
  if (text != std::exchange(trial_, text) && !text.empty()) {
    tell(text, "testAlertLost", [&] { return JsonValue{{"cause", jsonText(text)}}; });
  }
}

void RunTerminal::showHeartbeat(const std::string& fault) {
  const bool wasTaken = std::exchange(heartbeat_, fault).empty();
  if (!fault.empty()) {
    tell(heartbeatText(fault), "heartbeat", [&] { return JsonValue{{"taken", false}, {"cause", jsonText(fault)}}; });
  } else if (!wasTaken && state_ != RunState::stop &&
             data_->optionsInForce().valueOf(kAllSites, option_name::heartbeat)) {
    tell("The heartbeat is taken again.", "heartbeat", [] { return JsonValue{{"taken", true}}; });
  }
}

void RunTerminal::showStatus(const std::string& text) {
  status_ = text;
  showLive();
}

void RunTerminal::indicators(RunState state) {
  if (state_ == RunState::start && state != RunState::start) {
    endPass();
  }
  if (state == RunState::start && !begun_) {
    begin();
  }
  state_ = state;
  showLive();
}

void RunTerminal::showClock(const std::string& text) {
  runTime_ = text;
  showLive();
}

std::int64_t RunTerminal::fullProgressWidth() { return kFullWidth; }

void RunTerminal::setProgressWidth(std::int64_t width) {
  progress_ = width;
  showLive();
}

// One that stays the same is told once.
bool RunTerminal::isNewRemark(const CheckResult& result) {
  std::string& told = remarks_[result.idSite];
  const bool isNew = !result.remark.empty() && told != result.remark;
  told = result.remark;
  return isNew;
}

void RunTerminal::showResult(const CheckResult& result) {
  ++(result.passed ? pass_.up : pass_.down);
  const auto before = known_.find(result.idSite);
  const bool recovered = result.passed && before != known_.end() && !before->second;
  known_[result.idSite] = result.passed;
  if (result.passed && !recovered && !style_.verbose && !style_.json && !isNewRemark(result)) {
    return;
  }
  const std::string cause =
      result.passed ? noteOf(result)
                    : causeOf(result, data_->getContentCompare(result.idSite), data_->rulesOf(result.idSite));
  const std::string state = result.passed ? console_.coloured(Console::Colour::green, "up  ")
                                          : console_.coloured(Console::Colour::red, "down");
  tell(state + " " + std::to_string(result.idSite) + " " + visibleText(result.url) + (recovered ? " (was down)" : "") +
           (cause.empty() ? "" : ": " + cause),
       "result", [&] {
         JsonValue json{{"idSite", result.idSite},
                        {"url", jsonText(result.url)},
                        {"status", result.passed},
                        {"errCode", result.errCode},
                        {"errDescription", jsonText(result.errDescription)},
                        {"cause", cause.empty() ? JsonValue() : JsonValue(cause)}};
         if (hasFailureAsBaseline(result)) {
           json["notAPage"] = true;
         }
         return json;
       });
}

// A server that takes no mail would be told of with every failure; that others are left out is told with the first.
void RunTerminal::showLostMail(const LostMail& mail) {
  pass_.leftOutMails += mail.leftOut ? 1U : 0U;
  if (!mail.leftOut || style_.verbose || style_.json) {
    tell("mail " + std::to_string(mail.idSite) + " " + visibleText(mail.url) + ": " + visibleText(mail.why), "lostMail",
         [&] {
           return JsonValue{{"idSite", mail.idSite},
                            {"url", jsonText(mail.url)},
                            {"server", jsonText(mail.server)},
                            {"leftOut", mail.leftOut},
                            {"cause", jsonText(mail.why)}};
         });
  }
}

void RunTerminal::showDropped(std::int16_t idSite, const std::string& url) {
  if (style_.verbose || style_.json) {
    tell("drop " + std::to_string(idSite) + " " + visibleText(url) + ": changed while it was checked", "dropped", [&] {
      return JsonValue{{"idSite", idSite}, {"url", jsonText(url)}};
    });
  }
}

void RunTerminal::endPass() {
  const Count pass = std::exchange(pass_, {});
  const std::size_t count = pass.up + pass.down;
  if (count > 0) {
    tell("Checked " + sitesText(count) + ": " + countText(pass.up, pass.down) + leftOutText(pass.leftOutMails) + ".",
         "pass", [&] {
           JsonValue json{{"up", pass.up}, {"down", pass.down}};
           addUnwatched(json);
           return json;
         });
    forgetWhatIsNotWatched();
    lookAfterTheTrial();
  }
}

// Who watches the watcher by a script is told which sites the run does not check.
void RunTerminal::addUnwatched(JsonValue& json) {
  if (const std::int64_t count = data_->neverChecked().count; count > 0 && !data_->optionsInForce().newSitesAtOnce()) {
    json["neverChecked"] = count;
  }
  const auto runFor = std::chrono::floor<std::chrono::seconds>(clock_.steadyNow() - begunAt_);
  if (const std::int64_t count = data_->overdue(clock_.localNow() - runFor).count; count > 0) {
    json["overdue"] = count;
  }
}

// Sites may be deleted or switched off while the run is on; the live line counts those that it still checks.
void RunTerminal::forgetWhatIsNotWatched() {
  if (!hasLiveLine()) {
    return;
  }
  const TextTable sites = data_->getArraySitesActiveTrue(site_choice::active);
  std::set<std::int16_t> watched;
  for (std::size_t row = 1; row <= sites.lastRow(); ++row) {
    if (const auto id = idOf(sites.at(site_column::idSite, row))) {
      watched.insert(*id);
    }
  }
  std::erase_if(known_, [&watched](const auto& site) { return !watched.contains(site.first); });
}

void RunTerminal::tell(const std::string& text, const char* event, const std::function<JsonValue()>& detailsOf) {
  const std::string now = dateTimeText(clock_.localNow());
  if (style_.json) {
    JsonValue line{{"time", now}, {"event", event}};
    JsonValue details = detailsOf();
    for (JsonValue::Member& detail : std::get<JsonValue::Object>(details.content())) {
      line[detail.first] = std::move(detail.second);
    }
    console_.say(jsonLine(std::move(line)));
  } else {
    console_.say(now + " " + console_.worded(text));
  }
  lookAfterTheOutput();
}

bool RunTerminal::hasLiveLine() const { return !style_.json && console_.canRewrite() && data_ != nullptr; }

void RunTerminal::showLive() {
  if (!hasLiveLine()) {
    return;
  }
  const auto down = static_cast<std::size_t>(
      std::count_if(known_.begin(), known_.end(), [](const auto& site) { return !site.second; }));
  std::string line = runTime_.empty() ? std::string() : console_.worded(runTime_) + "  ";
  line += countText(known_.size() - down, down) + "  ";
  if (state_ == RunState::start) {
    line += std::to_string(progress_ * 100 / kFullWidth) + " %  ";
  }
  console_.live(line + console_.worded(status_));
  lookAfterTheOutput();
}

// Who has gone reads nothing any more. A disk that is full for a moment must not end the watching.
void RunTerminal::lookAfterTheOutput() {
  if (console_.good()) {
    outputFails_ = false;
    return;
  }
  const std::error_code cause = console_.failure();
  if (cause == std::errc::broken_pipe) {
    pump_.close();
    return;
  }
  console_.writeOn();
  hasLostLines_ = true;
  if (!std::exchange(outputFails_, true)) {
    console_.complain("The run goes on, but its lines cannot be written: " + cause.message() + ".");
  }
}

}  // namespace tarnwick
