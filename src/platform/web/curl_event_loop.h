// SPDX-License-Identifier: MIT
#pragma once

#include <curl/curl.h>

#include <chrono>
#include <cstddef>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <unordered_map>
#include <utility>
#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include "platform/web/transfer_clock.h"

namespace tarnwick {

/// Drives libcurl transfers by the Qt event loop: socket notifiers and timers, no polling, no thread of its own. The
/// time-out of a transfer is counted here and not by libcurl, which would take the time in which the program was busy
/// elsewhere for the server's.
class CurlEventLoop {
 public:
  CurlEventLoop();
  ~CurlEventLoop();
  CurlEventLoop(const CurlEventLoop&) = delete;
  CurlEventLoop& operator=(const CurlEventLoop&) = delete;

  /// Starts the transfer, which may take `timeout`. When it ends the handle is taken out and `done` is called with its
  /// result, from the event loop; with `kStarved` when this machine had no memory for it. `done` must not start or
  /// stop a transfer nor handle events, and raises nothing. False when libcurl did not take the handle.
  ///
  /// With `connected` it is a transfer that only connects (CURLOPT_CONNECT_ONLY): that is called when it has, in the
  /// same way, and the handle stays in until it is stopped, or `done` tells that the time is over.
  bool start(CURL* easy, std::chrono::milliseconds timeout, std::function<void(CURLcode)> done,
             std::function<void()> connected = {});
  /// Ends the transfer at once; its `done` is not called. Harmless when it is not under way.
  void stop(CURL* easy);

  /// None of libcurl's own results, by which it means other things as well.
  static constexpr CURLcode kStarved = CURL_LAST;

  using Event = std::function<void()>;
  /// Calls `event` from the event loop, after those posted before. Events may do anything: post, start and stop
  /// transfers, handle further events, and destroy this object.
  void post(Event event) { post(std::list<Event>{std::move(event)}); }
  /// The same for events that were prepared: needs no memory.
  void post(std::list<Event> events) noexcept;

  /// How long libcurl has been running without coming back to the event loop, seen from one of its callbacks.
  std::chrono::milliseconds timeInside() const;

 private:
  struct Watch {
    std::unique_ptr<QSocketNotifier> reading;
    std::unique_ptr<QSocketNotifier> writing;
  };

  struct Transfer {
    std::function<void(CURLcode)> done;
    std::function<void()> connected;
    TransferClock clock;
    /// It is overdue; what has arrived for it is still looked at once.
    bool lastRound = false;
    bool expired = false;
    /// Something of it could not be watched.
    bool starved = false;
  };

  template <class, auto, std::size_t, auto>
  friend struct CurlCallback;

  static int socketChanged(CURL* easy, curl_socket_t socket, int what, void* self, void* perSocket);
  static int timerChanged(CURLM* multi, long milliseconds, void* self);

  void watch(curl_socket_t socket, int what);
  void setWatching(std::unique_ptr<QSocketNotifier>& notifier, bool wanted, curl_socket_t socket,
                   QSocketNotifier::Type type);
  void unwatch(curl_socket_t socket);
  void ranOutOfMemory() noexcept;
  void act(curl_socket_t socket, int events);
  bool endNext(bool Transfer::*marked, CURLcode result);
  void collectEnded();
  bool staysConnected(const CURLMsg& message);
  void endWith(CURL* easy, CURLcode result);
  void beat();
  void pollConnecting();
  void extendDeadlines();
  void expireOverdue(std::chrono::steady_clock::time_point now);
  void armBeat(std::chrono::steady_clock::time_point now);
  void wake() noexcept;
  void dispatch();

  CURLM* multi_;
  using Watches = std::multimap<curl_socket_t, Watch>;
  Watches watches_;
  // Those no longer wanted: a notifier of them may be the one that is calling us.
  Watches retired_;
  std::unordered_map<CURL*, Transfer> transfers_;
  std::list<Event> events_;
  bool awake_ = false;
  // Tells whether an event has destroyed us.
  std::shared_ptr<char> alive_ = std::make_shared<char>();
  std::chrono::steady_clock::time_point enteredAt_;
  QTimer timer_;
  // Beats while a transfer is under way. One beat that comes late tells how long nobody served the sockets.
  QTimer beat_;
  std::chrono::steady_clock::time_point beatDue_;
  QObject context_;
};

}  // namespace tarnwick
