// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "engine/run_view.h"
#include "store/text_table.h"
#include "transcript/transcript.h"

namespace tarnwick::testing {

/// A view that writes down what it is shown, with the rows that a window would read for it.
class RecordedView final : public RunView {
 public:
  explicit RecordedView(Transcript& transcript) : transcript_(transcript) {}

  void setCaption(const std::string& caption) override { transcript_.add("view", "caption: " + caption); }
  void fillGrid() override {
    transcript_.add("view", "the list is filled");
    showRows(rowsOf(0));
  }

  void showStatus(const std::string& text) override {
    if (text.starts_with("Time Until Next Check: ")) {
      transcript_.addTick("view", "status: " + text);
    } else {
      transcript_.add("view", "status: " + text);
    }
  }
  void indicators(RunState state) override {
    transcript_.add("view", std::string("lamp: ") + (state == RunState::start   ? "start"
                                                     : state == RunState::pause ? "pause"
                                                                                : "stop"));
  }
  void blinkLamps() override { transcript_.addTick("view", "the lamp blinks"); }
  void showClock(const std::string& text) override { transcript_.addTick("view", "clock: " + text); }

  std::int64_t fullProgressWidth() override { return 1000; }
  void setProgressWidth(std::int64_t width) override { transcript_.add("view", "progress: " + std::to_string(width)); }

  void brighten(std::int16_t idSite, int amount) override {
    transcript_.add("view", "row of site " + std::to_string(idSite) + ": brighter by " + std::to_string(amount));
  }
  void unbrighten(std::int16_t idSite) override {
    transcript_.add("view", "row of site " + std::to_string(idSite) + ": as before");
  }
  void updateGridRow(std::int16_t idSite, bool passed) override {
    transcript_.add("view", "row of site " + std::to_string(idSite) + (passed ? ": passed" : ": failed"));
    showRows(rowsOf(idSite));
    if (onJudged) {
      onJudged(idSite);
    }
  }
  void showResult(const CheckResult& result) override {
    transcript_.add("view", "result of site " + std::to_string(result.idSite) + ", " + std::string(result.url) +
                                (result.passed ? ": passed, " : ": failed, ") + std::to_string(result.errCode) + " " +
                                std::string(result.errDescription));
    transcript_.add("page", result.page);
  }
  void setLastChecked(std::int16_t idSite, const std::string& dateTime) override {
    transcript_.add("view", "row of site " + std::to_string(idSite) + ": last checked " + dateTime);
  }

  /// The rows of the list: all of them for 0, else those of the site.
  std::function<TextTable(std::int16_t)> rowsOf;
  /// Called inside the call that shows a judged row.
  std::function<void(std::int16_t)> onJudged;

 private:
  void showRows(const TextTable& rows) {
    for (std::size_t row = 1; row <= rows.lastRow(); ++row) {
      std::string cells;
      for (std::size_t column = 1; column <= rows.lastColumn(); ++column) {
        cells += (column == 1 ? "" : " | ") + rows.at(column, row);
      }
      transcript_.add("view row", cells);
    }
  }

  Transcript& transcript_;
};

}  // namespace tarnwick::testing
