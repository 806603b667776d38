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
#include "engine/due_sites.h"
#include "engine/result_recording.h"
#include "engine/sites_to_test.h"
#include "engine/uncounted_failures.h"
#include "store/kept_pages.h"
#include "store/room_reserve.h"
#include "store/site_table.h"

namespace tarnwick {
namespace {

// How much lighter the row of a site is while its request is under way.
constexpr int kTestingBrightness = 36;

/// How often waiting hosts are looked after where they are to be spared.
constexpr std::chrono::milliseconds kSpacedSweep{50};

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
  busy_ = true;
}

TestPass::~TestPass() {
  needs_.pool.killAllSockets();
  needs_.pool.tmrInet().setEnabled(false);
  needs_.alerts.endPass();
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
  } while (inFlight_.left() > 0 && !stopped());
  if (!stopped()) {
    raiseDeferred();
  }
}

// A full counter costs nothing that has to be done again; a result that could not be recorded must not hide behind it.
void TestPass::raiseDeferred() const {
  for (const std::exception_ptr& fault : {deferred_, unusableId_, fullCounter_}) {
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
  inFlight_ = planned(policy);
}

InFlight TestPass::planned(const InFlightPolicy& policy) const {
  std::unordered_set<std::int64_t> slow;
  if (policy.slowLane) {
    slow = needs_.dueSites.idsThatTookTooLong();
  }
  std::vector<InFlight::Row> rows(sites_.count());
  for (std::size_t row = 1; row <= sites_.count(); ++row) {
    if (!sites_.url(row).empty() && !sites_.unusableId(row)) {
      rows[row - 1] = {hostOfAddress(sites_.url(row)), slow.contains(sites_.idSite(row))};
    }
  }
  return {policy, rows};
}

void TestPass::dispatchAll() {
  while (inFlight_.left() > 0 && !stopped()) {
    needs_.pump.pump();
    recordRowsWithoutAddress();
    const std::vector<std::int16_t> freeSlots = needs_.pool.getAryFreeSockets();
    if (!hasWorkFor(freeSlots) && inFlight_.left() > 0 && !stopped()) {
      needs_.pump.waitForEvent();
    }
    offerSlots(freeSlots);
  }
}

bool TestPass::hasWorkFor(const std::vector<std::int16_t>& freeSlots) {
  return std::ranges::any_of(freeSlots, [&](std::int16_t slot) { return needs_.pool.socketDone(slot); }) ||
         (!freeSlots.empty() && upcoming() > 0);
}

void TestPass::offerSlots(const std::vector<std::int16_t>& freeSlots) {
  for (const std::int16_t slot : freeSlots) {
    if (!hasWorkFor({slot})) {
      continue;
    }
    needs_.pump.pump();
    if (stopped()) {
      return;
    }
    finishSlot(slot);
    recordRowsWithoutAddress();
    if (stopped() || inFlight_.left() == 0) {
      return;
    }
    if (const std::size_t row = upcoming(); row > 0) {
      try {
        sendRequest(slot, row);
      } catch (const std::bad_alloc&) {
        std::rethrow_exception(outOfMemory(row));
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
      deferFault(unusableId_, sites_.unusableId(row));
    } else if (sites_.url(row).empty()) {
      needs_.view.showStatus("Testing: ");
      record(row, {std::string("11:") + kNoAddress, static_cast<std::int32_t>(TransferFault::badUrl), kNoAddress});
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
      finishSlot(slot);
    }
  }
}

void TestPass::finishSlot(std::int16_t slot) {
  InetPool& pool = needs_.pool;
  if (!pool.socketDone(slot)) {
    return;
  }
  pool.saveSocketData(slot);
  const std::size_t row = pool.socketRow(slot);
  const InFlight::End end = endOf(pool.siteErrCode(row));
  inFlight_.ended(row, needs_.clock.steadyNow(), needs_.clock.processorTime(), end);
  if (end == InFlight::End::shortage) {
    // The request was not even made, so nothing is known of the site. It is made when fewer are in flight, or else is
    // due as before.
    if (!inFlight_.putBack(row)) {
      deferFault(deferred_,
                 std::make_exception_ptr(std::runtime_error(pool.siteErrDescription(row) + " Site " +
                                                            std::to_string(sites_.idSite(row)) + " is due again.")));
    }
  } else {
    record(row, {pool.siteContent(row), pool.siteErrCode(row), pool.siteErrDescription(row)});
  }
  pool.releaseSiteContent(row);
  sites_.forget(row);
  pool.setSocketDone(slot, false);
}

void TestPass::record(std::size_t row, const Fetched& fetched) {
  try {
    if (const std::optional<Stored> stored = store(row, fetched)) {
      const std::int16_t id = sites_.idSite(row);
      debts_.checks.settle(id);
      if (!stored->passed) {
        // The alerts of a failure wait for the network, so they cannot be part of the transaction. The site is down
        // from here on, whatever becomes of them; and nothing is written before them that could fail and leave them
        // out.
        alertAndCount(row, stored->counted);
      }
      std::erase(brightened_, id);
      needs_.view.showResult(
          {id, sites_.url(row), stored->passed, fetched.errCode, fetched.errDescription, fetched.content});
    }
  } catch (const DataAccessError& error) {
    deferUnlessGeneral(error.forWantOfMemory() ? outOfMemory(row) : std::current_exception());
  } catch (const std::bad_alloc&) {
    deferUnlessGeneral(outOfMemory(row));
  }
}

// By its number alone: with an address in it every site would have a fault, and a box, of its own.
std::exception_ptr TestPass::outOfMemory(std::size_t row) const {
  return std::make_exception_ptr(std::runtime_error("There is not enough memory for the check of site " +
                                                    std::to_string(sites_.idSite(row)) + ". End other programs."));
}

// Whether the site has passed, once that is recorded; nothing for a page that was dropped. A full disk has no room for
// a page, but often for the result; and where it has none for that, a site that is down is told all the same.
std::optional<TestPass::Stored> TestPass::store(std::size_t row, const Fetched& fetched) {
  const auto wantsRoom = [this](const DataAccessError& error) {
    needs_.keptPages.forgetLogSize();
    return error.forWantOfRoom();
  };
  const KeptPage kept = !logLimit() || needs_.keptPages.hasRoomForPages() ? KeptPage::whole : KeptPage::none;
  try {
    return storeResult(row, fetched, kept, false);
  } catch (const DataAccessError& error) {
    if (!wantsRoom(error)) {
      throw;
    }
  }
  shortenLog();
  try {
    return storeResult(row, fetched, KeptPage::none, true);
  } catch (const DataAccessError& error) {
    if (wantsRoom(error)) {
      alertUnrecorded(row, fetched);
    }
    throw;
  }
}

// A log beyond its bound is shortened also where the disk is too full to do so with a result.
void TestPass::shortenLog() {
  if (const auto most = logLimit()) {
    try {
      needs_.reserve.runFreeing([&] { needs_.keptPages.keepLogWithinByPieces(*most); });
    } catch (const DataAccessError&) {
      needs_.keptPages.forgetLogSize();
    }
  }
}

std::optional<std::uint64_t> TestPass::logLimit() const {
  const auto limit = options_.valueOf(kAllSites, option_name::logLimit);
  return limit ? std::optional<std::uint64_t>(std::stoull(*limit) << 20U) : std::nullopt;
}

// A page too large for what is left of the memory must not keep the other sites from being watched, as long as theirs
// can be recorded; and a full disk none at all, since an alert needs no room. REQUIRES: called from a handler of an
// exception.
void TestPass::deferUnlessGeneral(const std::exception_ptr& fault) {
  try {
    needs_.results.proveRecording();
  } catch (const DataAccessError& error) {
    if (!error.forWantOfRoom()) {
      std::rethrow_exception(fault);
    }
  } catch (const std::exception&) {
    std::rethrow_exception(fault);
  }
  deferFault(deferred_, fault);
}

void TestPass::deferFault(std::exception_ptr& first, const std::exception_ptr& fault) { first = first ? first : fault; }

std::optional<TestPass::Stored> TestPass::storeResult(std::size_t row, const Fetched& fetched, KeptPage kept,
                                                      bool isTooFull) {
  const std::int16_t id = sites_.idSite(row);
  Transaction whole = writeTurn().take();
  if (const SelectedSites::Standing standing = sites_.standingOf(row);
      standing != SelectedSites::Standing::asSelected) {
    dropPage(row, standing);
    return std::nullopt;
  }
  const auto& [content, errCode, errDescription] = fetched;
  const bool passed = needs_.results.testSite(id, content, errCode, errDescription, firstBaselineOf(id), kept);
  needs_.results.setStatus(id, passed);
  if (const auto most = logLimit(); most && !passed && !isTooFull) {
    needs_.keptPages.keepLogWithin(*most);
  }
  // A failure is counted after its alerts; on a disk that may be full by then, with its result.
  const bool counts = passed || !needs_.keptPages.hasRoomForPages();
  if (counts) {
    count(id, passed);
  }
  whole.commit();
  return Stored{passed, counts};
}

// The site stays due, and is recorded once there is room; until then it is told again at its own interval.
void TestPass::alertUnrecorded(std::size_t row, const Fetched& fetched) {
  const std::int16_t id = sites_.idSite(row);
  if (sites_.standingOf(row) != SelectedSites::Standing::asSelected) {
    return;
  }
  debts_.checks.checkedUnrecorded(id, needs_.clock.steadyNow());
  if (!needs_.results.wouldPass(id, fetched.content, fetched.errCode, firstBaselineOf(id))) {
    needs_.alerts.sendAlerts(id);
    tellLostMail(row);
  }
}

void TestPass::tellLostMail(std::size_t row) {
  if (const MailOutcome& mail = needs_.alerts.mailOutcome(); mail.lost) {
    needs_.view.showLostMail({sites_.idSite(row), sites_.url(row), mail.server, mail.why, mail.leftOut});
  }
}

// The alerts take events in: meanwhile the site may be edited, switched off or deleted, the database be locked or taken
// away. The failure is recorded, so it is counted all the same, now or later, unless its site is gone.
void TestPass::alertAndCount(std::size_t row, bool counted) {
  const std::int16_t id = sites_.idSite(row);
  UncountedFailures::Pending failure(debts_.failures, id);
  if (counted) {
    failure.counted();
  }
  needs_.alerts.sendAlerts(id);
  tellLostMail(row);
  if (!sites_.hasAddressAsSelected(row) && !needs_.dueSites.wasChecked(id)) {
    failure.counted();
    return;
  }
  if (!counted) {
    try {
      Transaction whole = writeTurn().take();
      needs_.results.updateStatusCounter(id, false);
      whole.commit();
    } catch (const FullCounter&) {
      deferFault(fullCounter_, std::current_exception());
    }
  }
  failure.counted();
  needs_.view.updateGridRow(id, false);
}

FirstBaseline TestPass::firstBaselineOf(std::int16_t id) const {
  return options_.valueOf(id, option_name::adopt) == option_value::pagesOnly ? FirstBaseline::pagesOnly
                                                                             : FirstBaseline::anything;
}

// A full counter is no reason to forget the check itself, or the sites behind this one.
void TestPass::count(std::int16_t id, bool passed) {
  try {
    run_.countResult(id, passed);
  } catch (const FullCounter&) {
    deferFault(fullCounter_, std::current_exception());
  }
}

void TestPass::dropPage(std::size_t row, SelectedSites::Standing standing) {
  if (standing == SelectedSites::Standing::changed) {
    debts_.checks.owe(sites_.idSite(row));
  }
  needs_.view.showDropped(sites_.idSite(row), sites_.url(row));
}

WriteTurn TestPass::writeTurn() {
  return {needs_, run_.guard(), [this] { return stopped(); }};
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
  if (width != progressWidth_) {
    progressWidth_ = width;
    needs_.view.setProgressWidth(width);
  }
}

}  // namespace tarnwick
