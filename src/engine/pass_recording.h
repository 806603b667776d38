// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "engine/alarm_rule.h"
#include "engine/known_page.h"
#include "engine/result_recording.h"
#include "engine/run_controller.h"
#include "engine/selected_sites.h"
#include "engine/write_turn.h"
#include "store/site_options.h"

namespace tarnwick {

class HistoryRecording;
class SiteAlarms;
class SitesToTest;
class UncountedFailures;

/// What a pass leaves to those that follow.
struct PassDebts {
  SitesToTest& checks;
  UncountedFailures& failures;
  SiteAlarms& alarms;
  HistoryRecording& history;
};

/// The first faults of a pass that concern one site alone, told when the others have been tested.
struct PassFaults {
  std::exception_ptr deferred;  ///< one that left its check to be done again
  std::exception_ptr unusableId;
  std::exception_ptr fullCounter;

  static void defer(std::exception_ptr& first, const std::exception_ptr& fault) { first = first ? first : fault; }
};

/// By its number alone: with an address in it every site would have a fault, and a box, of its own.
std::exception_ptr outOfMemoryFor(std::int16_t idSite);

/// Records what the requests of a pass came to, raises the alerts of failures and shows the results, each in the order
/// in which the requests ended. Faults of single sites are deferred, others raised.
class PassRecording {
 public:
  /// What the recording shares with its pass.
  struct Shared {
    SelectedSites& sites;
    const OptionsInForce& options;
    std::vector<std::int16_t>& brightened;
    PassFaults& faults;
    /// Has a row's check made once more, so long from now.
    std::function<void(std::size_t row, std::chrono::seconds after)> repeat;
  };
  /// What a row's request came to.
  struct Fetched {
    const std::string& content;
    std::int32_t errCode;
    const std::string& errDescription;
  };

  PassRecording(RunController& run, const RunController::Needs& needs, const PassDebts& debts, const Shared& shared)
      : run_(run),
        needs_(needs),
        debts_(debts),
        sites_(shared.sites),
        options_(shared.options),
        brightened_(shared.brightened),
        faults_(shared.faults),
        repeat_(shared.repeat),
        known_(needs.standings.database()) {}

  /// Lets even a single result wait a moment for others. REQUIRES: events that come more often than that.
  void waitForMore(bool waits) { waitsForMore_ = waits; }

  /// Takes a row whose request has ended; it is not recorded yet.
  void add(std::size_t row);
  bool hasLargePage() const { return hasLargePage_; }
  /// Whether the rows that wait may do so while further requests are sent.
  bool mayWait() const;
  /// Whether some wait that should be recorded before anything is waited for.
  bool isDue() const;
  /// Records the rows that wait, as many as possible in one transaction: each costs a write to the disk itself. Stop
  /// drops whole results.
  void recordWaiting();

  /// Records one result at once.
  void record(std::size_t row, const Fetched& fetched);

  /// Tells alerts of a site that is down, or not, by its options of the alarm.
  void raiseAlarms(std::int16_t id, const std::string& url, const std::vector<AlertKind>& alerts);

 private:
  /// What was recorded.
  struct Stored {
    bool passed;
    bool counted;
    /// What must be told beside the verdict; empty for most.
    std::string remark{};
    /// What somebody has acknowledged is still there.
    bool silent = false;
    /// Nothing where the site follows the original rule.
    std::optional<AlarmStep> alarm{};
  };

  bool stopped() const { return !run_.running() || needs_.pump.closing(); }
  bool isFresh() const;
  Fetched fetchedBy(std::size_t row) const;
  std::size_t recordTogether(std::span<const std::size_t> rows);
  void guarded(std::size_t row, const std::function<void()>& action);
  void tell(std::size_t row, const Fetched& fetched, const Stored& stored);
  std::unique_ptr<StoredText> storeAhead(std::size_t row, const Fetched& fetched);
  KeptPage keptPage() const;
  std::optional<Stored> store(std::size_t row, const Fetched& fetched);
  /// What is left out where the disk is too full.
  enum class Room { plenty, noLog, noHistory };
  std::optional<Stored> storeResult(std::size_t row, const Fetched& fetched, KeptPage kept, Room room = Room::plenty);
  void takeIntoHistory(std::size_t row, const Fetched& fetched, bool passed);
  void keepForChannels(std::size_t row, const Fetched& fetched, const Stored& stored);
  CheckResult resultOf(std::size_t row, const Fetched& fetched, const Stored& stored) const;
  void shortenLog();
  std::optional<std::uint64_t> logLimit() const;
  void alertUnrecorded(std::size_t row, const Fetched& fetched);
  void tellLostMail(std::int16_t id, const std::string& url);
  void deferUnlessGeneral(const std::exception_ptr& fault);
  FirstBaseline firstBaselineOf(std::size_t row) const;
  void count(std::int16_t id, bool passed);
  void dropPage(std::size_t row, SelectedSites::Standing standing);
  void alert(std::size_t row, const Stored& stored);
  void alertAndCount(std::size_t row, const Stored& stored);
  WriteTurn writeTurn();

  RunController& run_;
  const RunController::Needs& needs_;
  PassDebts debts_;
  SelectedSites& sites_;
  const OptionsInForce& options_;
  std::vector<std::int16_t>& brightened_;
  PassFaults& faults_;
  std::function<void(std::size_t row, std::chrono::seconds after)> repeat_;
  KnownPages known_;
  // The rows whose requests have ended and are to be recorded, in that order.
  std::vector<std::size_t> waiting_;
  std::chrono::milliseconds waitingSince_{};
  bool waitsForMore_ = false;
  bool hasLargePage_ = false;
};

}  // namespace tarnwick
