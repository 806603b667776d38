// SPDX-License-Identifier: MIT
#include "report/report_timer.h"

#include <chrono>
#include <utility>

namespace tarnwick {
namespace {

constexpr std::chrono::milliseconds kReportInterval{60000};

}  // namespace

ReportTimer::ReportTimer(Needs needs, TimerMaker& timers, Guard guard)
    : needs_(std::move(needs)),
      guard_(std::move(guard)),
      tmrReport_(timers.makeTimer([this] {
        // A tick that only counts says nothing about whether reports can be written, so it goes by another name.
        guard_(reportDue() ? "report" : "report minutes", [this] { tmrReport_Timer(); });
      })),
      rest_(timers, needs_.clock, [this](const std::function<void()>& action) { guard_("report", action); }) {}

void ReportTimer::prepare() {
  reportTick_ = 60;
  reportEvery_ = 60;
  tmrReport_->setInterval(kReportInterval);
  tmrReport_->setEnabled(true);
}

bool ReportTimer::reportDue() const { return needs_.running() && reportTick_ + 1 >= reportEvery_; }

void ReportTimer::tmrReport_Timer() {
  if (!needs_.running()) {
    return;
  }
  ++reportTick_;
  if (reportTick_ < reportEvery_) {
    return;
  }
  reportTick_ = 1;
  if (needs_.settings.getControl("cReports").toBool()) {
    needs_.showStatus("Creating Report ...");
    rest_.begin(needs_.report.createReportInParts());
    needs_.showStatus("Report Done ...");
  }
}

}  // namespace tarnwick
