// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/clock.h"

namespace tarnwick {

/// The states of a run, as the lamps show them.
enum class RunState {
  start,  ///< a test pass is in progress
  pause,  ///< running, idle between passes
  stop,   ///< stopped
};

/// How the test of one site came out. The texts last for the call that hands them over.
struct CheckResult {
  std::int16_t idSite = 0;
  std::string_view url{};
  bool passed = false;
  std::int32_t errCode = 0;           ///< of a failed transfer; 0 when a page came
  std::string_view errDescription{};  ///< the cause of a failed transfer in words; empty when a page came
  std::string_view page{};            ///< the page; of a failed transfer "11:" and the cause
  std::string_view remark{};          ///< what must be told beside the verdict, in words; empty for most
};

/// The mail of an alert that no server has taken. The texts last for the call that hands them over.
struct LostMail {
  std::int16_t idSite = 0;
  std::string_view url{};
  std::string_view server{};
  std::string_view why{};  ///< a sentence
  /// Not even tried, since the server has not taken an earlier mail of this pass in time, which was told then.
  bool leftOut = false;
};

/// What a run shows while it goes on. The main window implements it; so can a terminal, or a test.
/// All texts are UTF-8. Unless stated otherwise a call is cheap and does not pump events.
class RunView {
 public:
  virtual ~RunView() = default;

  /// The window's caption: the product's name.
  virtual void setCaption(const std::string& caption) = 0;
  /// Fills the site grid afresh from the database.
  virtual void fillGrid() = 0;

  /// Shows `text` on the status line at once.
  virtual void showStatus(const std::string& text) = 0;
  /// Lights the lamp of `state`.
  virtual void indicators(RunState state) = 0;
  /// Called every 500 ms while a run is on: the lit lamp's two bars change places.
  virtual void blinkLamps() = 0;
  /// Shows the run clock, a text like "Run Time: 001:05:09".
  virtual void showClock(const std::string& text) = 0;

  /// The width that the progress bar has when full (the width of the grid), in units of the view's own choice.
  virtual std::int64_t fullProgressWidth() = 0;
  /// Sets the progress bar's width, from 0 to `fullProgressWidth()`, and shows it at once.
  virtual void setProgressWidth(std::int64_t width) = 0;

  /// Shifts the colour of a site's row by `amount` for each of red, green and blue: its request has been sent.
  virtual void brighten(std::int16_t idSite, int amount) = 0;
  /// Paints a site's row in the colour of its stored status again: its request was cut.
  virtual void unbrighten(std::int16_t idSite) = 0;
  /// Paints a site's row for the result of its test and rewrites its counters and time from the site's record.
  virtual void updateGridRow(std::int16_t idSite, bool passed) = 0;
  /// Tells a result in full, after it has been recorded. A view that has a grid needs none of it.
  virtual void showResult(const CheckResult&) {}
  /// Tells that the page of a site was dropped, neither judged nor recorded: the site was changed, switched off or
  /// deleted after its request had been chosen. One that is still active is due at once. `url` is the address that was
  /// asked. A view that shows the list anyhow needs none of it.
  virtual void showDropped(std::int16_t /*idSite*/, const std::string& /*url*/) {}
  /// Tells that the mail of a site's alert was lost; its result follows.
  virtual void showLostMail(const LostMail&) {}
  /// Tells since when this machine has had no way to the net, as far as that is looked after; nothing as soon as it has
  /// one again. Nothing is counted as down meanwhile.
  virtual void showOffline(std::optional<LocalTime> /*since*/) {}
  /// Tells why the heartbeat is not taken; empty as soon as it is again, and when none is wanted any more.
  virtual void showHeartbeat(const std::string& /*fault*/) {}
  /// Writes a site's "Time Of Last Test" cell.
  virtual void setLastChecked(std::int16_t idSite, const std::string& dateTime) = 0;
};

/// A view that shows nothing: the whole program without a window.
class SilentView : public RunView {
 public:
  void setCaption(const std::string&) override {}
  void fillGrid() override {}
  void showStatus(const std::string&) override {}
  void indicators(RunState) override {}
  void blinkLamps() override {}
  void showClock(const std::string&) override {}
  std::int64_t fullProgressWidth() override { return 0; }
  void setProgressWidth(std::int64_t) override {}
  void brighten(std::int16_t, int) override {}
  void unbrighten(std::int16_t) override {}
  void updateGridRow(std::int16_t, bool) override {}
  void setLastChecked(std::int16_t, const std::string&) override {}
};

}  // namespace tarnwick
