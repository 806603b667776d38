// SPDX-License-Identifier: MIT
#include "platform/web/curl_event_loop.h"

#include <algorithm>
#include <climits>
#include <new>
#include <stdexcept>
#include <utility>
#include <vector>
#include <QMetaObject>

#include "platform/web/curl_callback.h"

namespace tarnwick {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// Often enough to notice that the program was busy elsewhere, seldom enough to cost nothing.
constexpr milliseconds kBeat{100};
/// What a loop that has enough to do may be late by.
constexpr milliseconds kUsualLateness{50};

/// libcurl reads the bounds anew whenever it looks at the time, also in the middle of a transfer.
void boundWaitsInside(CURL* easy, milliseconds allowed) {
  constexpr milliseconds kLongest{INT_MAX};
  // It divides the time for connecting among the addresses of a host.
  curl_easy_setopt(easy, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(std::min(allowed, kLongest).count()));
  // For where it waits inside itself and reads what an FTP server drips. Elsewhere the event loop's own end comes
  // first.
  curl_easy_setopt(easy, CURLOPT_TIMEOUT_MS, static_cast<long>(std::min(allowed + 2 * kBeat, kLongest).count()));
}

void initializeCurl() {
  static const CURLcode result = curl_global_init(CURL_GLOBAL_DEFAULT);
  if (result != CURLE_OK) {
    throw std::runtime_error(std::string("The transfer library cannot be used: ") + curl_easy_strerror(result) + ".");
  }
}

/// The event loop below is a C library's, too: what is raised in a handler of its ends here. What it was about ends
/// with its transfer, at the latest by the time-out.
template <typename Action>
bool withstands(Action action) noexcept {
  try {
    action();
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

/// A shortage passes: what nobody else would make up for is tried once more.
template <typename Action>
bool withstandsTwice(Action action) noexcept {
  return withstands(action) || withstands(action);
}

}  // namespace

CurlEventLoop::CurlEventLoop() {
  initializeCurl();
  multi_ = curl_multi_init();
  if (multi_ == nullptr) {
    throw std::bad_alloc();
  }
  curl_multi_setopt(multi_, CURLMOPT_SOCKETFUNCTION, (kGuarded<CurlEventLoop, &CurlEventLoop::socketChanged, 3, 0>));
  curl_multi_setopt(multi_, CURLMOPT_SOCKETDATA, this);
  curl_multi_setopt(multi_, CURLMOPT_TIMERFUNCTION, (kGuarded<CurlEventLoop, &CurlEventLoop::timerChanged, 2, 0>));
  curl_multi_setopt(multi_, CURLMOPT_TIMERDATA, this);
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&timer_, &QTimer::timeout, &context_,
                   [this] { withstands([this] { act(CURL_SOCKET_TIMEOUT, 0); }); });
  beat_.setSingleShot(true);
  beat_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&beat_, &QTimer::timeout, &context_, [this] { beat(); });
}

CurlEventLoop::~CurlEventLoop() {
  for (const auto& [easy, transfer] : transfers_) {
    curl_multi_remove_handle(multi_, easy);
  }
  curl_multi_cleanup(multi_);
}

bool CurlEventLoop::start(CURL* easy, milliseconds timeout, std::function<void(CURLcode)> done,
                          std::function<void()> connected) {
  // What the program has done before is not for this transfer.
  extendDeadlines();
  boundWaitsInside(easy, timeout);
  enteredAt_ = steady_clock::now();
  const TransferClock clock(enteredAt_, timeout);
  transfers_.insert_or_assign(easy, Transfer{std::move(done), std::move(connected), clock});
  if (curl_multi_add_handle(multi_, easy) != CURLM_OK) {
    transfers_.erase(easy);
    return false;
  }
  if (!beat_.isActive() || enteredAt_ > beatDue_ || clock.deadline() < beatDue_) {
    armBeat(enteredAt_);
  }
  return true;
}

void CurlEventLoop::stop(CURL* easy) {
  if (transfers_.erase(easy) > 0) {
    enteredAt_ = steady_clock::now();
    curl_multi_remove_handle(multi_, easy);
  }
}

void CurlEventLoop::post(std::list<Event> events) noexcept {
  events_.splice(events_.end(), events);
  wake();
}

milliseconds CurlEventLoop::timeInside() const {
  return std::chrono::duration_cast<milliseconds>(steady_clock::now() - enteredAt_);
}

int CurlEventLoop::socketChanged(CURL*, curl_socket_t socket, int what, void* self, void*) {
  static_cast<CurlEventLoop*>(self)->watch(socket, what);
  return 0;
}

// libcurl would give up all transfers for good. None is waited for whose sockets nobody may be watching, and nothing is
// known of its server.
void CurlEventLoop::ranOutOfMemory() noexcept {
  for (auto& [easy, transfer] : transfers_) {
    transfer.starved = true;
  }
}

int CurlEventLoop::timerChanged(CURLM*, long milliseconds, void* self) {
  QTimer& timer = static_cast<CurlEventLoop*>(self)->timer_;
  if (milliseconds < 0) {
    timer.stop();
  } else {
    timer.start(std::chrono::milliseconds(milliseconds));
  }
  return 0;
}

void CurlEventLoop::watch(curl_socket_t socket, int what) {
  if (what == CURL_POLL_REMOVE) {
    unwatch(socket);
    return;
  }
  const auto found = watches_.find(socket);
  Watch& watch = (found != watches_.end() ? found : watches_.emplace(socket, Watch{}))->second;
  setWatching(watch.reading, (what & CURL_POLL_IN) != 0, socket, QSocketNotifier::Read);
  setWatching(watch.writing, (what & CURL_POLL_OUT) != 0, socket, QSocketNotifier::Write);
}

void CurlEventLoop::setWatching(std::unique_ptr<QSocketNotifier>& notifier, bool wanted, curl_socket_t socket,
                                QSocketNotifier::Type type) {
  if (!notifier) {
    if (!wanted) {
      return;
    }
    notifier = std::make_unique<QSocketNotifier>(static_cast<qintptr>(socket), type);
    const int events = type == QSocketNotifier::Read ? CURL_CSELECT_IN : CURL_CSELECT_OUT;
    QObject::connect(notifier.get(), &QSocketNotifier::activated, &context_,
                     [this, socket, events] { withstands([&] { act(socket, events); }); });
  }
  notifier->setEnabled(wanted);
}

void CurlEventLoop::unwatch(curl_socket_t socket) {
  const auto found = watches_.find(socket);
  if (found == watches_.end()) {
    return;
  }
  for (auto* notifier : {&found->second.reading, &found->second.writing}) {
    if (*notifier) {
      (*notifier)->setEnabled(false);
    }
  }
  retired_.insert(watches_.extract(found));
  wake();
}

void CurlEventLoop::act(curl_socket_t socket, int events) {
  extendDeadlines();
  enteredAt_ = steady_clock::now();
  int running = 0;
  curl_multi_socket_action(multi_, socket, events, &running);
  // libcurl tells a time-out only when it changes. One that fired a moment too early must be set again by us.
  long next = -1;
  if (!timer_.isActive() && curl_multi_timeout(multi_, &next) == CURLM_OK && next >= 0) {
    timer_.start(milliseconds(std::max(next, 1L)));
  }
  collectEnded();
}

void CurlEventLoop::collectEnded() {
  int left = 0;
  while (const CURLMsg* message = curl_multi_info_read(multi_, &left)) {
    if (message->msg != CURLMSG_DONE || staysConnected(*message)) {
      continue;
    }
    // The message is gone once its handle is taken out.
    endWith(message->easy_handle, message->data.result);
  }
  while (endNext(&Transfer::starved, kStarved)) {
  }
}

bool CurlEventLoop::staysConnected(const CURLMsg& message) {
  const auto found = transfers_.find(message.easy_handle);
  if (found == transfers_.end() || !found->second.connected || message.data.result != CURLE_OK) {
    return false;
  }
  found->second.connected();
  return true;
}

bool CurlEventLoop::endNext(bool Transfer::*marked, CURLcode result) {
  const auto found = std::ranges::find_if(transfers_, [&](const auto& entry) { return entry.second.*marked; });
  if (found == transfers_.end()) {
    return false;
  }
  endWith(found->first, result);
  return true;
}

void CurlEventLoop::endWith(CURL* easy, CURLcode result) {
  enteredAt_ = steady_clock::now();
  curl_multi_remove_handle(multi_, easy);
  auto transfer = transfers_.extract(easy);
  if (!transfer.empty()) {
    transfer.mapped().done(result);
  }
}

void CurlEventLoop::beat() {
  const auto now = steady_clock::now();
  withstands([this] { extendDeadlines(); });
  withstands([this] { pollConnecting(); });
  withstands([this, now] { expireOverdue(now); });
  withstands([this] { collectEnded(); });
  if (!events_.empty()) {
    wake();
  }
  if (!transfers_.empty()) {
    withstandsTwice([this] { armBeat(steady_clock::now()); });
  }
}

// Windows tells nobody of a connection that was refused before it was watched, as one to this machine is.
void CurlEventLoop::pollConnecting() {
  std::vector<curl_socket_t> connecting;
  for (const auto& [socket, watch] : watches_) {
    if (watch.writing && watch.writing->isEnabled()) {
      connecting.push_back(socket);
    }
  }
  for (const curl_socket_t socket : connecting) {
    if (watches_.contains(socket)) {
      act(socket, 0);  // libcurl looks for itself
    }
  }
}

// The program may have stored a large page, or libcurl waited inside itself for an FTP server. Answers that came
// meanwhile lie unread, and requests were not sent.
void CurlEventLoop::extendDeadlines() {
  const auto now = steady_clock::now();
  const auto away = std::chrono::duration_cast<milliseconds>(now - beatDue_);
  if (transfers_.empty() || away <= kUsualLateness) {
    return;
  }
  for (auto& [easy, transfer] : transfers_) {
    transfer.clock.extend(away, now);
    boundWaitsInside(easy, transfer.clock.allowed());
  }
  armBeat(now);
}

void CurlEventLoop::expireOverdue(steady_clock::time_point now) {
  for (auto& [easy, transfer] : transfers_) {
    // The answer may have arrived in this very round.
    transfer.expired = transfer.clock.overdueAt(now) && std::exchange(transfer.lastRound, true);
  }
  while (endNext(&Transfer::expired, CURLE_OPERATION_TIMEDOUT)) {
  }
}

// Towards the next time-out when that is nearer than a beat.
void CurlEventLoop::armBeat(steady_clock::time_point now) {
  beatDue_ = now + kBeat;
  for (const auto& [easy, transfer] : transfers_) {
    beatDue_ = std::min(beatDue_, transfer.clock.deadline());
  }
  beatDue_ = std::max(beatDue_, now);
  beat_.start(std::chrono::ceil<milliseconds>(beatDue_ - now));
}

void CurlEventLoop::wake() noexcept {
  const auto call = [this] {
    QMetaObject::invokeMethod(
        &context_, [this] { dispatch(); }, Qt::QueuedConnection);
  };
  // Where that cannot be, the next beat makes up for it.
  awake_ = awake_ || withstandsTwice(call);
}

// All that wait, since a round of the event loop for each of the ten states of a request cost more than the request;
// but none that these post, so that events that post each other let the others in.
void CurlEventLoop::dispatch() {
  awake_ = false;
  retired_.clear();
  const std::weak_ptr<char> alive = alive_;
  for (std::size_t waiting = events_.size(); waiting > 0 && !events_.empty(); --waiting) {
    std::list<Event> event;
    event.splice(event.end(), events_, events_.begin());
    if (!events_.empty()) {
      // Before the event, which may wait for the ones behind it, and may destroy us.
      wake();
    }
    withstands(event.front());
    if (alive.expired()) {
      return;
    }
  }
}

}  // namespace tarnwick
