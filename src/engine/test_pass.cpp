// SPDX-License-Identifier: MIT
#include "engine/test_pass.h"

#include <algorithm>
#include <exception>
#include <new>
#include <stdexcept>
#include <unordered_set>
#include <utility>

#include "alerts/alert_dispatch.h"
#include "base/errors.h"
#include "base/host_of_address.h"
#include "delivery/delivery.h"
#include "engine/channel_alerts.h"
#include "engine/due_sites.h"
#include "engine/result_recording.h"
#include "engine/site_alarms.h"
#include "engine/sites_to_test.h"
#include "engine/uncounted_failures.h"
#include "store/kept_pages.h"
#include "store/room_reserve.h"
#include "store/site_certificates.h"
#include "store/site_table.h"

namespace tarnwick {
namespace {

// How much lighter the row of a site is while its request is under way.
constexpr int kTestingBrightness = 36;

/// How often waiting hosts are looked after where they are to be spared.
constexpr std::chrono::milliseconds kSpacedSweep{50};

/// How many addresses are looked into between two looks at the events: some milliseconds' worth.
constexpr std::size_t kPlannedAtOnce = 4096;

/// A longer one is no notice of somebody who wants to be logged in to.
constexpr std::size_t kLargestForeignPage = std::size_t{1} << 20U;
constexpr std::chrono::seconds kNetworkWakesUp{5};
/// How many sites are told to be unknown between two looks at the events.
constexpr std::size_t kUnknownAtOnce = 1024;

constexpr const char* kNoAddress = "The address of the site is empty.";

InFlight::End endOf(std::int32_t errCode) {
  switch (static_cast<TransferFault>(errCode)) {
    case TransferFault::timeOut:
      return InFlight::End::timedOut;
    case TransferFault::shortage:
      return InFlight::End::shortage;
    default:
      return InFlight::End::answered;
  }
}

}  // namespace

TestPass::TestPass(RunController& run, const RunController::Needs& needs, bool& busy, const Debts& debts)
    : run_(run), needs_(needs), busy_(busy), debts_(debts) {
  needs_.view.indicators(RunState::start);
  needs_.alerts.beginPass();
  needs_.alerts.replaceMail(needs_.delivery.replacesMail());
  needs_.delivery.beginPass();
  busy_ = true;
}

TestPass::~TestPass() {
  needs_.pool.killAllSockets();
  needs_.pool.tmrInet().setEnabled(false);
  needs_.alerts.endPass();
  needs_.delivery.endPass();
  busy_ = false;
  for (const std::int16_t id : brightened_) {
    try {
      needs_.view.unbrighten(id);
    } catch (const std::exception&) {
      // A repaint may read the site's record, and what ended the pass may be that it cannot be read: that is told
      // elsewhere, and the lamps come after.
    }
  }
  try {
    needs_.view.indicators(run_.running() ? RunState::pause : RunState::stop);
  } catch (const std::exception&) {
    // As above: who shows that the pass has ended may read what there is to tell of it.
  }
}

void TestPass::test(TextTable sites) {
  sites_ = SelectedSites(needs_, std::move(sites));
  options_ = needs_.options.optionsInForce();
  needs_.results.forgetSitesWithRules();
  run_.obey(options_);
  run_.beginHistory();
  setUpPool();
  if (sites_.count() == 0) {
    return;
  }
  progressStep_ = needs_.view.fullProgressWidth() / static_cast<std::int64_t>(sites_.count());
  showProgress();
  do {
    dispatchAll();
    awaitAllSlots();
    drain();
    settleDoubt();
    recordDoubtful();
  } while (inFlight_.left() > 0 && !stopped());
  if (!stopped()) {
    raiseDeferred();
  }
}

void TestPass::tellWhatTimeHasBrought() {
  Transaction whole(needs_.standings.database());
  const auto steps = debts_.alarms.timeHasGoneBy();
  const OptionsInForce options = needs_.options.optionsInForce();
  ChannelAlerts channels(needs_, options);
  for (const auto& [id, step] : steps) {
    channels.keep(id, needs_.results.getUrl(id), std::span(step.alerts).subspan(step.owedBefore),
                  outageOf(step.standing, needs_.clock.localNow()));
  }
  whole.commit();
  needs_.delivery.deliver();
  for (const auto& [id, step] : steps) {
    if (stopped()) {
      return;
    }
    recording_.raiseAlarms(id, needs_.results.getUrl(id), step.alerts);
  }
}

// A full counter costs nothing that has to be done again; a result that could not be recorded must not hide behind it.
void TestPass::raiseDeferred() const {
  for (const std::exception_ptr& fault : {faults_.deferred, faults_.unusableId, faults_.fullCounter}) {
    if (fault) {
      std::rethrow_exception(fault);
    }
  }
}

void TestPass::setUpPool() {
  const InFlightPolicy policy = inFlightPolicy(options_);
  needs_.pool.initSockets(sites_.urls(), policy.slots);
  if (policy.spacing > std::chrono::milliseconds(0)) {
    needs_.pool.tmrInet().setInterval(kSpacedSweep);
  }
  needs_.pool.tmrInet().setEnabled(true);
  // Then the sweep also ends the wait.
  recording_.waitForMore(policy.spacing > std::chrono::milliseconds(0));
  inFlight_ = planned(policy);
}

InFlight TestPass::planned(const InFlightPolicy& policy) const {
  std::unordered_set<std::int64_t> slow;
  if (policy.slowLane && sites_.count() > 1) {
    slow = needs_.dueSites.idsThatTookTooLong();
  }
  std::vector<InFlight::Row> rows(sites_.count());
  for (std::size_t row = 1; row <= sites_.count(); ++row) {
    if (!sites_.url(row).empty() && !sites_.unusableId(row)) {
      rows[row - 1] = {hostOfAddress(sites_.url(row)), slow.contains(sites_.idSite(row))};
    }
    if (row % kPlannedAtOnce == 0) {
      needs_.pump.pump();
    }
  }
  return {policy, rows};
}

void TestPass::dispatchAll() {
  while (inFlight_.left() > 0 && !stopped()) {
    needs_.pump.pump();
    settleDoubt();
    recordRowsWithoutAddress();
    const std::vector<std::int16_t> freeSlots = needs_.pool.getAryFreeSockets();
    if (hasWorkFor(freeSlots) || inFlight_.left() == 0 || stopped()) {
      offerSlots(freeSlots);
    } else if (recording_.isDue()) {
      recording_.recordWaiting();
    } else {
      needs_.pump.waitForEvent();
    }
  }
  recording_.recordWaiting();
}

bool TestPass::hasWorkFor(const std::vector<std::int16_t>& freeSlots) {
  return std::ranges::any_of(freeSlots, [&](std::int16_t slot) { return needs_.pool.socketDone(slot); }) ||
         (!freeSlots.empty() && upcoming() > 0);
}

void TestPass::offerSlots(const std::vector<std::int16_t>& freeSlots) {
  if (!hasWorkFor(freeSlots)) {
    return;
  }
  needs_.pump.pump();
  if (stopped()) {
    return;
  }
  emptySlots(freeSlots);
  if (!recording_.mayWait()) {
    recording_.recordWaiting();
  }
  sendInto(freeSlots);
}

// Events have just been taken in.
void TestPass::sendInto(const std::vector<std::int16_t>& freeSlots) {
  for (const std::int16_t slot : freeSlots) {
    if (slot != freeSlots.front() && upcoming() > 0) {
      needs_.pump.pump();
    }
    if (!stopped()) {
      recordRowsWithoutAddress();
    }
    if (stopped() || inFlight_.left() == 0) {
      return;
    }
    if (const std::size_t row = upcoming(); row > 0) {
      try {
        sendRequest(slot, row);
      } catch (const std::bad_alloc&) {
        std::rethrow_exception(outOfMemoryFor(sites_.idSite(row)));
      }
      takeRow(row);
    }
  }
}

// A row without an address needs no slot: it fails on the spot, as a failed request of its own site. One whose id the
// program cannot use is left out, and told when the others have been tested.
void TestPass::recordRowsWithoutAddress() {
  for (std::size_t row = 0; !stopped() && (row = upcoming()) > 0;) {
    if (sites_.unusableId(row)) {
      PassFaults::defer(faults_.unusableId, sites_.unusableId(row));
    } else if (sites_.url(row).empty()) {
      recording_.recordWaiting();
      needs_.view.showStatus("Testing: ");
      recording_.record(
          row, {std::string("11:") + kNoAddress, static_cast<std::int32_t>(TransferFault::badUrl), kNoAddress});
    } else {
      return;
    }
    takeRow(row);
    needs_.pump.pump();
  }
}

void TestPass::sendRequest(std::int16_t slot, std::size_t row) {
  const std::int16_t id = sites_.idSite(row);
  Request request = sites_.requestFor(row);
  request.otherThan = needs_.pool.siteServer(row);
  request.wantsCertificate = looksAtCertificate(options_, id);
  needs_.view.showStatus("Testing: " + sites_.url(row));
  needs_.pool.send(slot, row, std::move(request));
  needs_.view.brighten(id, kTestingBrightness);
  brightened_.push_back(id);
}

void TestPass::awaitAllSlots() {
  while (!stopped() && needs_.pool.getAryFreeSockets().size() < static_cast<std::size_t>(needs_.pool.poolSize())) {
    needs_.pump.waitForEvent();
  }
}

void TestPass::drain() {
  for (std::int16_t slot = 1; slot <= needs_.pool.poolSize() && !stopped(); ++slot) {
    // Five large pages in a row would hold up the window for the time of all of them.
    needs_.pump.pump();
    if (!stopped()) {
      emptySlots({slot});
      recording_.recordWaiting();
    }
  }
}

void TestPass::emptySlots(const std::vector<std::int16_t>& slots) {
  for (const std::int16_t slot : slots) {
    if (needs_.pool.socketDone(slot)) {
      emptySlot(slot);
    }
    if (recording_.hasLargePage()) {
      recording_.recordWaiting();  // one at a time in memory, and events between them
      needs_.pump.pump();
    }
    if (stopped()) {
      return;
    }
  }
}

void TestPass::emptySlot(std::int16_t slot) {
  InetPool& pool = needs_.pool;
  pool.saveSocketData(slot);
  pool.setSocketDone(slot, false);
  const std::size_t row = pool.socketRow(slot);
  const InFlight::End end = endOf(pool.siteErrCode(row));
  inFlight_.ended(row, needs_.clock.steadyNow(), needs_.clock.processorTime(), end);
  if (end == InFlight::End::shortage) {
    // The request was not even made, so nothing is known of the site. It is made when fewer are in flight, or else is
    // due as before.
    if (!inFlight_.putBack(row)) {
      PassFaults::defer(
          faults_.deferred,
          std::make_exception_ptr(std::runtime_error(pool.siteErrDescription(row) + " Site " +
                                                     std::to_string(sites_.idSite(row)) + " is due again.")));
    }
    pool.releaseSiteContent(row);
    sites_.forget(row);
  } else if (!run_.network().isLookedAfter() || !isDoubtful(row)) {
    recording_.add(row);
  }
}

// Whether the failure may be that of this machine's own network: it is kept back then until that is known.
bool TestPass::isDoubtful(std::size_t row) {
  if (isSilence(static_cast<TransferFault>(needs_.pool.siteErrCode(row)))) {
    if (run_.hasJustWoken()) {
      inFlight_.repeat(row, needs_.clock.steadyNow() + kNetworkWakesUp);
    } else {
      doubt_.noAnswer(row, hostOfAddress(sites_.url(row)));
    }
    return true;
  }
  if (isForeignPage(row)) {
    doubt_.foreignPage(row, hostOfAddress(sites_.url(row)), needs_.pool.siteContent(row));
    return true;
  }
  doubt_.answered();
  return false;
}

bool TestPass::isForeignPage(std::size_t row) {
  const InetPool& pool = needs_.pool;
  return pool.siteErrCode(row) == 0 && pool.siteContent(row).size() <= kLargestForeignPage &&
         !needs_.results.wouldPass(sites_.idSite(row), pool.siteContent(row), 0, FirstBaseline::anything);
}

void TestPass::settleDoubt() {
  const std::optional<std::string> page = doubt_.onePage();
  if (stopped() || (!doubt_.isSilent() && !page)) {
    return;
  }
  if (!page && run_.network().isOnline()) {
    recordDoubtful();
    return;
  }
  const std::vector<std::size_t> rows = doubt_.take();
  recording_.recordWaiting();
  leaveAllToBeDone();
  wentOffline_ = true;
  run_.goOffline(page.value_or(""), sites_.requestFor(rows.front()));
}

void TestPass::recordDoubtful() {
  for (const std::size_t row : doubt_.take()) {
    recording_.add(row);
    recording_.recordWaiting();
  }
}

// What is not recorded is done as soon as the network is back, also what is not due by its time, as after Start.
void TestPass::leaveAllToBeDone() {
  std::vector<std::int16_t> unknown;
  const auto store = [&] { needs_.standings.setUnknown(std::exchange(unknown, {}), needs_.clock.localNow()); };
  for (std::size_t row = 1; row <= sites_.count(); ++row) {
    if (!sites_.isRecorded(row) && !sites_.unusableId(row)) {
      debts_.checks.owe(sites_.idSite(row));
      unknown.push_back(sites_.idSite(row));
    }
    if (unknown.size() == kUnknownAtOnce) {
      store();
      needs_.pump.pump();
    }
  }
  store();
}

void TestPass::takeRow(std::size_t row) {
  inFlight_.take(row, needs_.clock.steadyNow());
  if (inFlight_.left() > 0 && !stopped()) {
    showProgress();
  }
}

void TestPass::showProgress() {
  const std::size_t next = sites_.count() - inFlight_.left() + 1;
  const std::int64_t width = static_cast<std::int64_t>(next) * progressStep_;
  // A check that is repeated makes nothing undone.
  if (width > progressWidth_) {
    progressWidth_ = width;
    needs_.view.setProgressWidth(width);
  }
}

}  // namespace tarnwick
