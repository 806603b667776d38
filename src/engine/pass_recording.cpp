// SPDX-License-Identifier: MIT
#include "engine/pass_recording.h"

#include <algorithm>
#include <array>
#include <new>
#include <stdexcept>
#include <utility>

#include "alerts/alert_dispatch.h"
#include "base/errors.h"
#include "delivery/delivery.h"
#include "engine/channel_alerts.h"
#include "engine/due_sites.h"
#include "engine/history_recording.h"
#include "engine/site_alarms.h"
#include "engine/sites_to_test.h"
#include "engine/uncounted_failures.h"
#include "store/kept_pages.h"
#include "store/room_reserve.h"

namespace tarnwick {
namespace {

/// More, or results that have waited longer, would hold up what is shown, and the window while they are written.
constexpr std::size_t kMostTogether = 16;
constexpr std::chrono::milliseconds kLongestWait{50};
/// A longer page is recorded by itself.
constexpr std::size_t kLargePage = std::size_t{1} << 20U;

}  // namespace

void PassRecording::add(std::size_t row) {
  if (waiting_.empty()) {
    waitingSince_ = needs_.clock.steadyNow();
  }
  waiting_.push_back(row);
  hasLargePage_ = hasLargePage_ || fetchedBy(row).content.size() > kLargePage;
}

bool PassRecording::isFresh() const { return needs_.clock.steadyNow() - waitingSince_ < kLongestWait; }

// Where several have answered at once the servers are as fast as the disk: they are given work first, and what comes
// meanwhile is recorded together.
bool PassRecording::mayWait() const {
  return (waitsForMore_ || waiting_.size() > 1) && waiting_.size() < kMostTogether && !hasLargePage_ && isFresh();
}

bool PassRecording::isDue() const { return !waiting_.empty() && !(waitsForMore_ && mayWait()); }

// As many results as possible in one transaction: each costs a write to the disk itself. Stop drops whole results.
void PassRecording::recordWaiting() {
  const std::vector<std::size_t> waiting = std::exchange(waiting_, {});
  hasLargePage_ = false;
  for (std::span<const std::size_t> rows(waiting); !rows.empty() && !stopped();) {
    std::size_t recorded = recordTogether(rows);
    if (recorded == 0) {
      record(rows.front(), fetchedBy(rows.front()));
      recorded = 1;
    }
    for (const std::size_t row : rows.first(recorded)) {
      needs_.pool.releaseSiteContent(row);
      sites_.forget(row);
    }
    rows = rows.subspan(recorded);
  }
}

PassRecording::Fetched PassRecording::fetchedBy(std::size_t row) const {
  const InetPool& pool = needs_.pool;
  return {pool.siteContent(row), pool.siteErrCode(row), pool.siteErrDescription(row)};
}

// How many of the first rows are recorded now; none where they are better taken one by one. What has to be told of a
// failure takes events in, and may find the sites behind it changed, so a failure is the last of its transaction.
std::size_t PassRecording::recordTogether(std::span<const std::size_t> rows) {
  if (rows.size() < 2) {
    return 0;
  }
  std::vector<Stored> stored;
  try {
    Transaction whole = writeTurn().take();
    for (const std::size_t row : rows) {
      const Fetched fetched = fetchedBy(row);
      if (fetched.content.size() > kLargePage || sites_.standingOf(row) != SelectedSites::Standing::asSelected) {
        break;
      }
      stored.push_back(*storeResult(row, fetched, keptPage()));
      if (!stored.back().passed) {
        break;
      }
    }
    whole.commit();
    needs_.keptPages.logSizeKept();
  } catch (const std::exception&) {
    // One of them; all are taken back, and each that can be recorded is, alone.
    return 0;
  }
  for (std::size_t i = 0; i < stored.size(); ++i) {
    guarded(rows[i], [&] { tell(rows[i], fetchedBy(rows[i]), stored[i]); });
  }
  return stored.size();
}

void PassRecording::record(std::size_t row, const Fetched& fetched) {
  guarded(row, [&] {
    const std::unique_ptr<StoredText> ahead = storeAhead(row, fetched);
    if (const std::optional<Stored> stored = store(row, fetched)) {
      tell(row, fetched, *stored);
    }
    if (ahead) {
      // Whoever looks at the site meanwhile needs the room for its pages.
      needs_.pool.releaseSiteContent(row);
      ahead->settle([this] { needs_.pump.pump(); });
    }
  });
}

void PassRecording::guarded(std::size_t row, const std::function<void()>& action) {
  try {
    action();
  } catch (const DataAccessError& error) {
    deferUnlessGeneral(error.forWantOfMemory() ? outOfMemoryFor(sites_.idSite(row)) : std::current_exception());
  } catch (const std::bad_alloc&) {
    deferUnlessGeneral(outOfMemoryFor(sites_.idSite(row)));
  }
}

void PassRecording::tell(std::size_t row, const Fetched& fetched, const Stored& stored) {
  const std::int16_t id = sites_.idSite(row);
  debts_.checks.settle(id);
  sites_.setRecorded(row);
  if (!stored.passed || (stored.alarm && !stored.alarm->alerts.empty())) {
    needs_.delivery.deliver();
  }
  if (!stored.passed) {
    // The alerts of a failure wait for the network, so they cannot be part of the transaction. The site is down from
    // here on, whatever becomes of them; and nothing is written before them that could fail and leave them out.
    alertAndCount(row, stored);
  } else if (stored.alarm) {
    alert(row, stored);
  }
  if (stored.alarm && stored.alarm->repeatAfter) {
    repeat_(row, *stored.alarm->repeatAfter);
  }
  std::erase(brightened_, id);
  needs_.view.showResult(resultOf(row, fetched, stored));
}

// By its number alone: with an address in it every site would have a fault, and a box, of its own.
std::exception_ptr outOfMemoryFor(std::int16_t idSite) {
  return std::make_exception_ptr(std::runtime_error("There is not enough memory for the check of site " +
                                                    std::to_string(idSite) + ". End other programs."));
}

// Whether the site has passed, once that is recorded; nothing for a page that was dropped. A full disk has no room for
// a page, but often for the result; and where it has none for that, a site that is down is told all the same.
std::optional<PassRecording::Stored> PassRecording::store(std::size_t row, const Fetched& fetched) {
  try {
    return storeResult(row, fetched, keptPage());
  } catch (const DataAccessError& error) {
    if (!error.forWantOfRoom()) {
      throw;
    }
  }
  shortenLog();
  try {
    return storeResult(row, fetched, KeptPage::none, Room::noLog);
  } catch (const DataAccessError& error) {
    if (!error.forWantOfRoom()) {
      throw;
    }
  }
  try {
    return storeResult(row, fetched, KeptPage::none, Room::noHistory);
  } catch (const DataAccessError& error) {
    if (error.forWantOfRoom()) {
      alertUnrecorded(row, fetched);
    }
    throw;
  }
}

// A long page takes its time, in which the window is to go on.
std::unique_ptr<StoredText> PassRecording::storeAhead(std::size_t row, const Fetched& fetched) {
  try {
    return fetched.content.size() > kLargePage && keptPage() == KeptPage::whole
               ? needs_.results.storeAhead(sites_.idSite(row), fetched.content, [this] { needs_.pump.pump(); })
               : nullptr;
  } catch (const DataAccessError&) {
    return nullptr;  // whatever it is, recording it meets it, too
  }
}

KeptPage PassRecording::keptPage() const {
  return !logLimit() || needs_.keptPages.hasRoomForPages() ? KeptPage::whole : KeptPage::none;
}

// A log beyond its bound is shortened also where the disk is too full to do so with a result.
void PassRecording::shortenLog() {
  if (const auto most = logLimit()) {
    try {
      needs_.reserve.runFreeing([&] { needs_.keptPages.keepLogWithinByPieces(*most); });
    } catch (const DataAccessError&) {
      // Whether there is room now shows when the result is stored.
    }
  }
}

std::optional<std::uint64_t> PassRecording::logLimit() const {
  const auto limit = options_.valueOf(kAllSites, option_name::logLimit);
  return limit ? std::optional<std::uint64_t>(std::stoull(*limit) << 20U) : std::nullopt;
}

// A page too large for what is left of the memory must not keep the other sites from being watched, as long as theirs
// can be recorded; and a full disk none at all, since an alert needs no room. REQUIRES: called from a handler of an
// exception.
void PassRecording::deferUnlessGeneral(const std::exception_ptr& fault) {
  try {
    needs_.results.proveRecording();
  } catch (const DataAccessError& error) {
    if (!error.forWantOfRoom()) {
      std::rethrow_exception(fault);
    }
  } catch (const std::exception&) {
    std::rethrow_exception(fault);
  }
  PassFaults::defer(faults_.deferred, fault);
}

std::optional<PassRecording::Stored> PassRecording::storeResult(std::size_t row, const Fetched& fetched, KeptPage kept,
                                                                Room room) {
  const std::int16_t id = sites_.idSite(row);
  Transaction whole = writeTurn().take();
  needs_.keptPages.forgetLogSize();
  if (const SelectedSites::Standing standing = sites_.standingOf(row);
      standing != SelectedSites::Standing::asSelected) {
    dropPage(row, standing);
    return std::nullopt;
  }
  const auto& [content, errCode, errDescription] = fetched;
  const bool passed = needs_.results.testSite(id, content, errCode, errDescription, firstBaselineOf(row), kept);
  needs_.results.setStatus(id, passed);
  if (const auto most = logLimit(); most && !passed && room == Room::plenty) {
    needs_.keptPages.keepLogWithin(*most);
  }
  // A failure is counted after its alerts; on a disk that may be full by then, with its result.
  const bool counts = passed || !needs_.keptPages.hasRoomForPages();
  if (counts) {
    count(id, passed);
  }
  const KnownStep known = known_.take(id, passed, content);
  Stored stored{passed, counts, needs_.results.remark(), known == KnownStep::silent};
  if (debts_.alarms.decidesAbout(id)) {
    CheckOutcome outcome{passed, errCode != 0 ? errDescription : kPageDiffers, needs_.pool.siteTook(row), stored.silent,
                         known == KnownStep::other};
    outcome.news = debts_.alarms.newsOfCertificate(id, needs_.pool.siteCertificate(row), outcome);
    stored.alarm = debts_.alarms.take(id, outcome);
  }
  if (room != Room::noHistory && debts_.history.takesChecks()) {
    takeIntoHistory(row, fetched, passed);
  }
  keepForChannels(row, fetched, stored);
  whole.commit();
  needs_.keptPages.logSizeKept();
  return stored;
}

void PassRecording::takeIntoHistory(std::size_t row, const Fetched& fetched, bool passed) {
  const bool isAnswered = fetched.errCode == 0;
  const std::chrono::milliseconds took = needs_.pool.siteTook(row);
  SiteHistory::Entry entry;
  entry.interval = sites_.interval(row);
  entry.check.up = passed;
  entry.timings = needs_.pool.siteTimings(row);
  entry.timings.whole = took;
  if (isAnswered) {
    entry.check.took = took;
  }
  if (!passed) {
    entry.check.cause = isAnswered ? kPageDiffers : fetched.errDescription;
  }
  debts_.history.take(sites_.idSite(row), entry);
}

// With the result, so that neither is there without the other.
void PassRecording::keepForChannels(std::size_t row, const Fetched& fetched, const Stored& stored) {
  static constexpr std::array kDown{AlertKind::down};
  ChannelAlerts channels(needs_, options_);
  if (stored.alarm) {
    const auto decided = std::span(stored.alarm->alerts).subspan(stored.alarm->owedBefore);
    OutageFacts outage = outageOf(stored.alarm->standing, needs_.clock.localNow());
    if (std::ranges::any_of(decided, &isOfCertificate)) {
      outage.certificate = debts_.alarms.certificateOf(sites_.idSite(row));
    }
    channels.keep(resultOf(row, fetched, stored), decided, outage);
  } else if (!stored.passed && !stored.silent) {
    channels.keep(resultOf(row, fetched, stored), kDown, {.now = needs_.clock.localNow()});
  }
}

CheckResult PassRecording::resultOf(std::size_t row, const Fetched& fetched, const Stored& stored) const {
  return {sites_.idSite(row),     sites_.url(row), stored.passed, fetched.errCode,
          fetched.errDescription, fetched.content, stored.remark};
}

// The site stays due, and is recorded once there is room; until then it is told again at its own interval.
void PassRecording::alertUnrecorded(std::size_t row, const Fetched& fetched) {
  const std::int16_t id = sites_.idSite(row);
  if (sites_.standingOf(row) != SelectedSites::Standing::asSelected) {
    return;
  }
  debts_.checks.checkedUnrecorded(id, needs_.clock.steadyNow());
  if (!needs_.results.wouldPass(id, fetched.content, fetched.errCode, firstBaselineOf(row)) &&
      known_.look(id, false, fetched.content) != KnownStep::silent) {
    ChannelAlerts(needs_, options_).tellUnkept(resultOf(row, fetched, {.passed = false, .counted = false}));
    needs_.alerts.sendAlerts(id);
    tellLostMail(id, sites_.url(row));
  }
}

void PassRecording::tellLostMail(std::int16_t id, const std::string& url) {
  if (const MailOutcome& mail = needs_.alerts.mailOutcome(); mail.lost) {
    needs_.view.showLostMail({id, url, mail.server, mail.why, mail.leftOut});
  }
}

void PassRecording::alert(std::size_t row, const Stored& stored) {
  const std::int16_t id = sites_.idSite(row);
  if (stored.alarm) {
    raiseAlarms(id, sites_.url(row), stored.alarm->alerts);
  } else if (!stored.silent) {
    needs_.alerts.sendAlerts(id);
    tellLostMail(id, sites_.url(row));
  }
}

// Owed from the moment in which they were decided, so that none is lost with the program; and known to be told as soon
// as possible, so that none is told twice.
void PassRecording::raiseAlarms(std::int16_t id, const std::string& url, const std::vector<AlertKind>& alerts) {
  bool told = true;
  for (const AlertKind kind : alerts) {
    told = debts_.alarms.raise(id, kind) && told;
    tellLostMail(id, url);
  }
  if (alerts.empty() || !told) {
    return;
  }
  try {
    Transaction whole = writeTurn().take();
    debts_.alarms.settle(id);
    whole.commit();
  } catch (const std::exception&) {
    debts_.alarms.forgive(id);
    throw;
  }
}

// The alerts take events in: meanwhile the site may be edited, switched off or deleted, the database be locked or taken
// away. The failure is recorded, so it is counted all the same, now or later, unless its site is gone.
void PassRecording::alertAndCount(std::size_t row, const Stored& stored) {
  const std::int16_t id = sites_.idSite(row);
  UncountedFailures::Pending failure(debts_.failures, id);
  if (stored.counted) {
    failure.counted();
  }
  alert(row, stored);
  if (fetchedBy(row).content.size() > kLargePage) {
    // The next write takes the page's log into the database: not in one go with recording it.
    needs_.pump.pump();
  }
  if (!sites_.hasAddressAsSelected(row) && !needs_.dueSites.wasChecked(id)) {
    failure.counted();
    return;
  }
  if (!stored.counted) {
    try {
      Transaction whole = writeTurn().take();
      needs_.results.updateStatusCounter(id, false);
      whole.commit();
    } catch (const FullCounter&) {
      PassFaults::defer(faults_.fullCounter, std::current_exception());
    }
  }
  failure.counted();
  needs_.view.updateGridRow(id, false);
}

FirstBaseline PassRecording::firstBaselineOf(std::size_t row) const {
  if (options_.valueOf(sites_.idSite(row), option_name::adopt) != option_value::pagesOnly) {
    return FirstBaseline::anything;
  }
  constexpr int kFirstError = 400;  // RFC 9110, section 15.5
  return needs_.pool.siteStatus(row) >= kFirstError ? FirstBaseline::nothing : FirstBaseline::pagesOnly;
}

// A full counter is no reason to forget the check itself, or the sites behind this one.
void PassRecording::count(std::int16_t id, bool passed) {
  try {
    run_.countResult(id, passed);
  } catch (const FullCounter&) {
    PassFaults::defer(faults_.fullCounter, std::current_exception());
  }
}

void PassRecording::dropPage(std::size_t row, SelectedSites::Standing standing) {
  if (standing == SelectedSites::Standing::changed) {
    debts_.checks.owe(sites_.idSite(row));
  }
  needs_.view.showDropped(sites_.idSite(row), sites_.url(row));
}

WriteTurn PassRecording::writeTurn() {
  return {needs_, run_.guard(), [this] { return stopped(); }};
}

}  // namespace tarnwick
