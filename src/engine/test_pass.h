// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <exception>
#include <optional>
#include <string>
#include <vector>

#include "engine/in_flight.h"
#include "engine/result_recording.h"
#include "engine/run_controller.h"
#include "engine/selected_sites.h"
#include "engine/write_turn.h"
#include "store/site_options.h"
#include "store/text_table.h"

namespace tarnwick {

class SitesToTest;
class UncountedFailures;

/// One test pass: fetches every selected site through the pool and has each result judged and recorded. Its life is the
/// time in which the run is `busy`: however it ends, by its last row, by Stop or by an error, the pool is closed and
/// the lamps are put right.
class TestPass {
 public:
  /// What a pass leaves to those that follow.
  struct Debts {
    SitesToTest& checks;
    UncountedFailures& failures;
  };

  /// `busy` is true from here until this object ends.
  TestPass(RunController& run, const RunController::Needs& needs, bool& busy, const Debts& debts);
  ~TestPass();
  TestPass(const TestPass&) = delete;
  TestPass& operator=(const TestPass&) = delete;

  /// Tests the sites of a site table; returns early when the run is stopped. Raises, after all others have been tested,
  /// the fault that kept one site from being fetched, or its result from being recorded, while others could be; else
  /// OverflowError when an id does not fit 16 bits or a counter was full.
  void test(TextTable sites);

 private:
  /// The row to be sent next, 0 for none at present.
  std::size_t upcoming() { return inFlight_.upcoming(needs_.clock.steadyNow()); }
  bool stopped() const { return !run_.running() || needs_.pump.closing(); }

  void setUpPool();
  InFlight planned(const InFlightPolicy& policy) const;
  void dispatchAll();
  bool hasWorkFor(const std::vector<std::int16_t>& freeSlots);
  void offerSlots(const std::vector<std::int16_t>& freeSlots);
  void recordRowsWithoutAddress();
  void sendRequest(std::int16_t slot, std::size_t row);
  void awaitAllSlots();
  void drain();
  void finishSlot(std::int16_t slot);
  /// What a row's request came to.
  struct Fetched {
    const std::string& content;
    std::int32_t errCode;
    const std::string& errDescription;
  };

  void record(std::size_t row, const Fetched& fetched);
  /// What was recorded.
  struct Stored {
    bool passed;
    bool counted;
  };
  std::optional<Stored> store(std::size_t row, const Fetched& fetched);
  std::optional<Stored> storeResult(std::size_t row, const Fetched& fetched, KeptPage kept, bool isTooFull);
  void shortenLog();
  std::optional<std::uint64_t> logLimit() const;
  void alertUnrecorded(std::size_t row, const Fetched& fetched);
  void tellLostMail(std::size_t row);
  void deferUnlessGeneral(const std::exception_ptr& fault);
  std::exception_ptr outOfMemory(std::size_t row) const;
  FirstBaseline firstBaselineOf(std::int16_t id) const;
  void count(std::int16_t id, bool passed);
  static void deferFault(std::exception_ptr& first, const std::exception_ptr& fault);
  void raiseDeferred() const;
  void dropPage(std::size_t row, SelectedSites::Standing standing);
  void alertAndCount(std::size_t row, bool counted);
  WriteTurn writeTurn();
  void takeRow(std::size_t row);
  void showProgress();

  RunController& run_;
  const RunController::Needs& needs_;
  bool& busy_;
  Debts debts_;
  SelectedSites sites_{needs_, TextTable()};
  OptionsInForce options_;
  std::vector<std::int16_t> brightened_;
  // The first faults that concern one site alone, told when the others have been tested: one that left its check to be
  // done again, and one that did not.
  std::exception_ptr deferred_;
  std::exception_ptr unusableId_;
  std::exception_ptr fullCounter_;
  InFlight inFlight_{{}, {}};
  std::int64_t progressStep_ = 0;
  std::int64_t progressWidth_ = -1;
};

}  // namespace tarnwick
