// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "engine/run_view.h"

namespace tarnwick::testing {

/// A view that writes down what a run shows.
class RecordingView final : public RunView {
 public:
  void setCaption(const std::string& text) override { caption = text; }
  void fillGrid() override { ++gridFills; }
  void showStatus(const std::string& text) override {
    statuses.push_back(text);
    if (onStatus) {
      onStatus(text);
    }
  }
  void indicators(RunState state) override { lamps.push_back(state); }
  void blinkLamps() override { ++blinks; }
  void showClock(const std::string& text) override { clocks.push_back(text); }
  std::int64_t fullProgressWidth() override { return progressWidth; }
  void setProgressWidth(std::int64_t width) override { progress.push_back(width); }
  void brighten(std::int16_t idSite, int amount) override { brightened.emplace_back(idSite, amount); }
  void unbrighten(std::int16_t idSite) override { unbrightened.push_back(idSite); }
  void updateGridRow(std::int16_t idSite, bool passed) override {
    judged.emplace_back(idSite, passed);
    if (onJudged) {
      onJudged(idSite);
    }
  }
  void showResult(const CheckResult& result) override { results.emplace_back(result.idSite, result.passed); }
  void showLostMail(const LostMail& mail) override {
    lostMails.emplace_back(mail.idSite, mail.leftOut);
    whyLost.emplace_back(mail.why);
  }
  void showDropped(std::int16_t idSite, const std::string&) override { dropped.push_back(idSite); }
  void showHeartbeat(const std::string& fault) override { heartbeat = fault; }
  void showOffline(std::optional<LocalTime> since) override { offline = since; }
  void setLastChecked(std::int16_t idSite, const std::string& dateTime) override {
    lastChecked.emplace_back(idSite, dateTime);
  }

  std::string status() const { return statuses.empty() ? "" : statuses.back(); }
  bool showed(const std::string& status) const {
    return std::find(statuses.begin(), statuses.end(), status) != statuses.end();
  }

  std::optional<LocalTime> offline;
  std::string heartbeat;
  std::string caption;
  int gridFills = 0;
  std::vector<std::string> statuses;
  std::vector<RunState> lamps;
  int blinks = 0;
  std::vector<std::string> clocks;
  std::int64_t progressWidth = 1000;
  std::vector<std::int64_t> progress;
  std::vector<std::pair<std::int16_t, int>> brightened;
  std::vector<std::int16_t> unbrightened;
  std::vector<std::pair<std::int16_t, bool>> judged;
  std::vector<std::pair<std::int16_t, bool>> results;
  std::vector<std::int16_t> dropped;
  std::vector<std::pair<std::int16_t, bool>> lostMails;
  std::vector<std::string> whyLost;
  std::vector<std::pair<std::int16_t, std::string>> lastChecked;

  /// Run inside the call that shows a status or a judged row, for tests of what happens in mid-pass.
  std::function<void(const std::string&)> onStatus;
  std::function<void(std::int16_t)> onJudged;
};

}  // namespace tarnwick::testing
