// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "engine/in_flight.h"
#include "engine/own_network.h"
#include "engine/pass_recording.h"
#include "engine/run_controller.h"
#include "engine/selected_sites.h"
#include "store/site_options.h"
#include "store/text_table.h"

namespace tarnwick {

/// One test pass: fetches every selected site through the pool and has each result judged and recorded. Its life is the
/// time in which the run is `busy`: however it ends, by its last row, by Stop or by an error, the pool is closed and
/// the lamps are put right.
class TestPass {
 public:
  using Debts = PassDebts;

  /// `busy` is true from here until this object ends.
  TestPass(RunController& run, const RunController::Needs& needs, bool& busy, const Debts& debts);
  ~TestPass();
  TestPass(const TestPass&) = delete;
  TestPass& operator=(const TestPass&) = delete;

  /// Tests the sites of a site table; returns early when the run is stopped. Raises, after all others have been tested,
  /// the fault that kept one site from being fetched, or its result from being recorded, while others could be; else
  /// OverflowError when an id does not fit 16 bits or a counter was full.
  void test(TextTable sites);

  /// Tells what time alone has brought to be told of sites, by their options of the alarm. Takes events in.
  void tellWhatTimeHasBrought();

 private:
  /// The row to be sent next, 0 for none at present.
  std::size_t upcoming() { return inFlight_.upcoming(needs_.clock.steadyNow()); }
  bool stopped() const { return !run_.running() || needs_.pump.closing() || wentOffline_; }

  void setUpPool();
  InFlight planned(const InFlightPolicy& policy) const;
  void dispatchAll();
  bool hasWorkFor(const std::vector<std::int16_t>& freeSlots);
  void offerSlots(const std::vector<std::int16_t>& freeSlots);
  void recordRowsWithoutAddress();
  void sendRequest(std::int16_t slot, std::size_t row);
  void awaitAllSlots();
  void drain();
  void sendInto(const std::vector<std::int16_t>& freeSlots);
  void emptySlots(const std::vector<std::int16_t>& slots);
  void emptySlot(std::int16_t slot);
  bool isDoubtful(std::size_t row);
  bool isForeignPage(std::size_t row);
  void settleDoubt();
  void recordDoubtful();
  void leaveAllToBeDone();
  void raiseDeferred() const;
  void takeRow(std::size_t row);
  void showProgress();

  RunController& run_;
  const RunController::Needs& needs_;
  bool& busy_;
  Debts debts_;
  SelectedSites sites_{needs_, TextTable()};
  OptionsInForce options_;
  std::vector<std::int16_t> brightened_;
  PassFaults faults_;
  PassRecording recording_{
      run_,
      needs_,
      debts_,
      {sites_, options_, brightened_, faults_, [this](std::size_t row, std::chrono::seconds after) {
         inFlight_.repeat(row, needs_.clock.steadyNow() + after);
       }}};
  InFlight inFlight_{{}, {}};
  // Failures that may be this machine's own, where that is looked after.
  NetworkDoubt doubt_;
  bool wentOffline_ = false;
  std::int64_t progressStep_ = 0;
  std::int64_t progressWidth_ = -1;
};

}  // namespace tarnwick
