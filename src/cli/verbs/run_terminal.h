// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>

#include "cli/terminal/console.h"
#include "cli/terminal/json_output.h"
#include "engine/run_view.h"
#include "platform/clock.h"
#include "platform/event_pump.h"
#include "program/m.h"

namespace tarnwick {

/// A run as a terminal shows it: one live line that counts down, and above it a line for what is worth one. Where the
/// output is no terminal there are only those lines, each with its time.
class RunTerminal final : public SilentView {
 public:
  struct Style {
    bool verbose = false;  ///< a line for every result, not only for failures and recoveries
    bool json = false;     ///< an object a line
  };

  /// `pump` is closed when the reader of the output has gone: a run that nobody can see is none that was asked for.
  RunTerminal(Console& console, const Clock& clock, EventPump& pump, Style style)
      : console_(console), clock_(clock), pump_(pump), style_(style) {}

  /// Reads which sites are down already, so that their recovery is told; later baselines are read there too.
  void prepare(m& data);
  /// Says that the run has ended.
  void end();
  /// Whether lines could not be written, which has been told.
  bool hasLostLines() const { return hasLostLines_; }

  void showStatus(const std::string& text) override;
  void indicators(RunState state) override;
  void showClock(const std::string& text) override;
  std::int64_t fullProgressWidth() override;
  void setProgressWidth(std::int64_t width) override;
  void showResult(const CheckResult& result) override;
  void showLostMail(const LostMail& mail) override;
  void showHeartbeat(const std::string& fault) override;
  void showDropped(std::int16_t idSite, const std::string& url) override;

 private:
  bool isNewRemark(const CheckResult& result);
  struct Count {
    std::size_t up = 0;
    std::size_t down = 0;
    std::size_t leftOutMails = 0;
  };

  void watchOutbox();
  /// Says what of it is worth it: when something has to wait, is given up, or has all arrived after all.
  void showOutbox(const OutboxSummary& summary);
  void begin();
  /// `detailsOf` is asked where the run is told as JSON.
  void tell(const std::string& text, const char* event, const std::function<JsonValue()>& detailsOf);
  void endPass();
  void lookAfterTheTrial();
  void addUnwatched(JsonValue& json);
  void forgetWhatIsNotWatched();
  bool hasLiveLine() const;
  void showLive();
  void lookAfterTheOutput();

  Console& console_;
  const Clock& clock_;
  EventPump& pump_;
  Style style_;
  m* data_ = nullptr;
  /// The sites that the run checks and that have been judged, and whether they were up.
  std::map<std::int16_t, bool> known_;
  std::map<std::int16_t, std::string> remarks_;
  std::size_t active_ = 0;
  bool begun_ = false;
  std::chrono::milliseconds begunAt_{0};
  RunState state_ = RunState::stop;
  Count pass_;
  OutboxSummary outbox_;
  // What was told last.
  std::string trial_;
  std::string heartbeat_;
  std::string status_;
  std::string runTime_;
  std::int64_t progress_ = 0;
  bool outputFails_ = false;
  bool hasLostLines_ = false;
};

}  // namespace tarnwick
