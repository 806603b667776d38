// SPDX-License-Identifier: MIT
#include "simulation/shadow.h"

#include <algorithm>
#include <exception>
#include <fstream>
#include <iterator>
#include <utility>
#include <variant>

#include "base/product.h"
#include "simulation/model_list.h"

namespace tarnwick::simulation {
namespace {

std::string dateOf(model::Time now) { return dateTimeText(now); }

std::string requestLine(const std::string& method, const std::string& url, const std::string& user,
                        const std::string& password, const std::string& header, const std::string& body,
                        std::int64_t timeout) {
  return "request " + method + " " + url + " as " + user + " " + password + " with " + header + " " + body +
         " within " + std::to_string(timeout);
}

/// The letters of a Null, which a row table has in its place, answer no challenge. Nobody types them here.
std::string credential(const std::string& cell) { return cell == "NULL" ? "" : cell; }

std::string programLine(const std::vector<std::string>& arguments) {
  std::string line = "program ";
  for (const std::string& argument : arguments) {
    line += "[" + argument + "]";
  }
  return line;
}

std::vector<std::string> reportCells(const model::ReportFigures& figures) {
  std::vector<std::string> cells;
  if (!figures.lines.empty()) {
    cells = {"url", "total", "status"};
  }
  for (const model::ReportLine& line : figures.lines) {
    cells.insert(cells.end(), {line.url, std::to_string(line.total),
                               "<img height=12 width=" + std::to_string(line.barWidth.value_or(0)) +
                                   (line.status ? " src=green.jpg>" : " src=red.jpg>")});
  }
  cells.insert(cells.end(), {"Total Log Entries", std::to_string(figures.entries), "Total Errors",
                             std::to_string(figures.errors), "Total Success", std::to_string(figures.successes)});
  return cells;
}

}  // namespace

Shadow::Shadow(World& world, Process& process, std::function<void(const std::string&)> fail)
    : world_(world), process_(process), fail_(std::move(fail)) {
  model::Surroundings surroundings;
  surroundings.hostName = "watcher.example";
  surroundings.hostAddress = "192.0.2.7";
  surroundings.website = kProductHomePage;
  surroundings.mailTemplate = kMailTemplate;
  surroundings.dateText = dateOf;
  model_ = std::make_unique<model::Model>(surroundings, sitesOf(list()), settingsOf(list()));
  model_->takeEffects();
  asksAfresh_ = settingsOf(list()).newSites == model::NewSites::kAtOnce;
  logBefore_ = lastLogRow(list());
  watch();
}

Shadow::~Shadow() {
  world_.web.onRequest = nullptr;
  world_.web.onAnswer = nullptr;
  world_.mail.onConnect = nullptr;
  world_.mail.onSent = nullptr;
  world_.mail.onEnd = nullptr;
  world_.desktop.onSound = nullptr;
  world_.desktop.onStart = nullptr;
  world_.desktop.onBox = nullptr;
}

void Shadow::watch() {
  world_.web.onRequest = [this](const Request& request) {
    see(requestLine(request.method, request.url, request.userName, request.password, request.headers, request.body,
                    request.timeout.count()));
  };
  world_.web.onAnswer = [this](const std::string& url, const TransferResult& result) { answered(url, result); };
  world_.mail.onConnect = [this](const std::string& server) { see("mail to " + server); };
  world_.mail.onSent = [this](const std::string& command) { mailed(command); };
  world_.mail.onEnd = [this] {
    model_->mailEnded(now());
    moved_ = true;
  };
  world_.desktop.onSound = [this](const std::string& file) { see("sound " + file); };
  world_.desktop.onBox = [this](const std::string&) { see("box"); };
  world_.desktop.onStart = [this](const std::vector<std::string>& arguments) { see(programLine(arguments)); };
  process_.view().onLamp = [this](RunState state) {
    see(state == RunState::start ? "lamp start" : state == RunState::pause ? "lamp pause" : "lamp stop");
  };
  process_.view().onStatus = [this](const std::string& text) { see("status " + text); };
  Program& program = process_.program();
  SimulatedTimers::of(program.run().tmrCheckSites()).before = [this] { second(); };
  SimulatedTimers::of(program.report().tmrReport()).before = [this] { minute(); };
  process_.pump().onPumped = [this] { look(); };
  process_.pump().onWait = [this] { compare(); };
}

// A run that takes on new sites at once asks afresh when others have changed the list, or a file was opened in its
// place, as after a compaction: by what the connection tells.
void Shadow::second() {
  if (asksAfresh_ && model_->countdown() > 1) {
    if (const std::int64_t version = list().changesOfOthers(); std::exchange(listVersion_, version) != version) {
      model_->editorClosed();
    }
  }
  model_->second(now());
}

// What is in the log at this moment counts: it may be of an earlier process.
void Shadow::minute() {
  const auto take = [this] {
    bool reported = false;
    for (const model::Effect& effect : model_->takeEffects()) {
      expect(effect);
      reported = reported || std::holds_alternative<model::ReportWritten>(effect);
    }
    return reported;
  };
  take();
  model_->minute(now());
  if (take()) {
    constexpr std::uint64_t kMostOfADay = 50'000;
    const std::uint64_t last = lastLogRow(list());
    const auto rows = logOf(list(), last - std::min(last, kMostOfADay));
    report_ = reportCells(model::reportFigures(rows, now()));
  }
}

void Shadow::compareReport() {
  std::ifstream file(world_.disk.folder() + "/reports/report.html", std::ios::binary);
  const std::string html(std::istreambuf_iterator<char>(file), {});
  std::vector<std::string> cells;
  const std::string begin = "<td>";
  for (std::size_t at = html.find(begin); at != std::string::npos; at = html.find(begin, at)) {
    at += begin.size();
    cells.push_back(html.substr(at, html.find("</td>", at) - at));
  }
  const auto [written, wanted] = std::ranges::mismatch(cells, report_);
  if (written != cells.end() || wanted != report_.end()) {
    fail_("the report says \"" + (written == cells.end() ? "nothing" : *written) + "\" where the model has \"" +
          (wanted == report_.end() ? "nothing" : *wanted) + "\"");
  }
  report_.clear();
}

void Shadow::answered(const std::string& url, const TransferResult& result) {
  moved_ = true;
  model::Answer answer;
  if (result.fault != TransferFault::none) {
    answer.kind =
        result.fault == TransferFault::shortage ? model::Answer::Kind::kNotMade : model::Answer::Kind::kFailed;
    answer.code = static_cast<std::int32_t>(result.code());
    answer.text = result.cause;
  }
  answer.page = result.page;
  for (const model::Effect& effect : model_->takeEffects()) {
    expect(effect);
  }
  if (!model_->answered(asked_[url], std::move(answer), now())) {
    fail_("the program has a request to " + url + " in flight, and the model has none");
  }
  answered_ = true;
}

// The program looks for slots that have come free as soon as there is an answer; of several at one moment it sees all.
void Shadow::look() {
  if (std::exchange(answered_, false)) {
    model_->sweep(now());
  }
}

void Shadow::mailed(const std::string& command) {
  if (mail_.empty() || mail_.front() != command) {
    fail_("the program mails " + command + "and the model " + (mail_.empty() ? "nothing" : mail_.front()));
    return;
  }
  mail_.pop_front();
}

void Shadow::expect(const model::Effect& effect) {
  if (const auto* lamp = std::get_if<model::LampLit>(&effect)) {
    expected_.push_back(lamp->lamp == model::Lamp::kStart   ? "lamp start"
                        : lamp->lamp == model::Lamp::kPause ? "lamp pause"
                                                            : "lamp stop");
  } else if (const auto* status = std::get_if<model::StatusShown>(&effect)) {
    expected_.push_back("status " + status->text);
  } else if (const auto* request = std::get_if<model::Request>(&effect)) {
    asked_[request->url] = request->idSite;
    expected_.push_back(requestLine(request->method, request->url, credential(request->userName),
                                    credential(request->passWord), request->header, request->body, request->timeout));
  } else if (const auto* mail = std::get_if<model::Mail>(&effect)) {
    const auto commands = model::mailCommands(*mail, kProductHomePage);
    mail_.assign(commands.begin(), commands.end());
    expected_.push_back("mail to " + mail->server);
  } else if (const auto* sound = std::get_if<model::Sound>(&effect)) {
    expected_.push_back("sound " + sound->file);
  } else if (const auto* program = std::get_if<model::Program>(&effect)) {
    expected_.push_back(programLine(program->arguments));
  } else if (std::holds_alternative<model::ErrorBox>(effect)) {
    expected_.push_back("box");
  }
}

void Shadow::compare() {
  look();
  ++comparisons_;
  try {
    compareEffects();
    if (!report_.empty()) {
      compareReport();
    }
    if (list().inTransaction()) {
      fail_("the program waits with a transaction open");
    }
    if (std::exchange(moved_, false)) {
      compareRows();
      compareLog();
    }
  } catch (const std::exception& error) {
    fail_(std::string("the list cannot be compared with the model: ") + error.what());
  }
}

void Shadow::compareEffects() {
  for (const model::Effect& effect : model_->takeEffects()) {
    expect(effect);
  }
  if (expected_ == seen_) {
    expected_.clear();
    seen_.clear();
    return;
  }
  const auto [expected, seen] = std::ranges::mismatch(expected_, seen_);
  fail_("the program does \"" + (seen == seen_.end() ? "nothing" : *seen) + "\" where the model does \"" +
        (expected == expected_.end() ? "nothing" : *expected) + "\"");
}

void Shadow::compareRows() {
  const model::Sites stored = sitesOf(list());
  const model::Sites& rows = model_->rows();
  for (const auto& [id, site] : rows) {
    const auto found = stored.find(id);
    if (found == stored.end()) {
      fail_("the model has a site that the list has not: " + lineOf(site));
      return;
    }
    if (found->second != site) {
      fail_("the list has\n  " + lineOf(found->second) + "\nwhere the model has\n  " + lineOf(site));
      return;
    }
  }
  if (stored.size() != rows.size()) {
    fail_("the list has sites that the model has not");
  }
}

void Shadow::compareLog() {
  const std::vector<model::LogRow> stored = logOf(list(), logBefore_);
  const std::vector<model::LogRow>& log = model_->log();
  for (std::size_t i = 0; i < std::max(stored.size(), log.size() - logSeen_); ++i) {
    const bool listed = i < stored.size();
    const bool modelled = logSeen_ + i < log.size();
    if (!listed || !modelled || !(stored[i] == log[logSeen_ + i])) {
      fail_("the log has\n  " + (listed ? lineOf(stored[i]) : "nothing") + "\nwhere the model has\n  " +
            (modelled ? lineOf(log[logSeen_ + i]) : "nothing"));
      return;
    }
  }
  logSeen_ = log.size();
  logBefore_ = lastLogRow(list());
}

// What a user types is no matter of the model: it is told the outcome, and has to go on alike from there.
void Shadow::edited(bool editor) {
  moved_ = true;
  const model::Sites stored = sitesOf(list());
  const model::Sites before = model_->rows();
  for (const auto& [id, site] : before) {
    if (!stored.contains(id)) {
      model_->deleted(id);
    }
  }
  for (const auto& [id, site] : stored) {
    if (!before.contains(id) && model_->added() != id) {
      fail_("the new site has another number than the model gives");
    }
    const model::Site& known = model_->rows().at(id);
    if (site.baseline != known.baseline) {
      model_->baselineStored(id, site.baseline.value_or(""));
    }
    if (site.success != known.success || site.failure != known.failure) {
      model_->countersCleared(id);
    }
    model_->edited(site);
  }
  logBefore_ = lastLogRow(list());
  if (logBefore_ == 0) {
    model_->logCleared();
    logSeen_ = 0;
  }
  model_->settingsStored(settingsOf(list()));
  if (editor) {
    model_->editorClosed();
  }
}

}  // namespace tarnwick::simulation
