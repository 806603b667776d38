// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"
#include "platform/events/qt_event_loop.h"
#include "platform/events/qt_tcp_socket.h"
#include "platform/local_files.h"
#include "platform/process/file_run_lock.h"
#include "platform/services.h"
#include "platform/sqlite/sqlite_connection.h"
#include "platform/web/curl_transfers.h"
#include "support/hand_clock.h"
#include "support/hand_timers.h"
#include "support/recording_desktop.h"
#include "support/recording_doors.h"

namespace tarnwick::testing {

/// The machine as a test wants it: a real event loop, real SQLite files, real transfers and real sockets, under a
/// desktop that only records. Time is real or moved by hand.
struct TestServices {
  enum class Time {
    real,         ///< the machine's clock, timers of the event loop
    clockByHand,  ///< `handClock`, timers of the event loop
    byHand,       ///< `handClock` and `handTimers`, which move together
  };

  explicit TestServices(Time chosen = Time::real, const CurlTransfers::Options& web = {})
      : time(chosen), transfers(web) {}
  TestServices(const TestServices&) = delete;
  TestServices& operator=(const TestServices&) = delete;

  const Clock& clock() const {
    return time == Time::real ? static_cast<const Clock&>(systemClock) : static_cast<const Clock&>(handClock);
  }
  TimerMaker& timers() {
    return time == Time::byHand ? static_cast<TimerMaker&>(handTimers) : static_cast<TimerMaker&>(qtTimers);
  }

  Services services() {
    return {.clock = clock(),
            .files = files,
            .pump = pump,
            .timers = timers(),
            .databases = databases,
            .transfers = transfers,
            .sockets = sockets,
            .prompts = prompts,
            .sound = sound,
            .programs = programs,
            .opener = opener,
            .runLocks = runLocks,
            .mails = mails,
            .secrets = secrets,
            .notifier = notifier,
            .runner = runner};
  }

  const Time time;
  SystemClock systemClock;
  LocalFiles files;
  HandClock handClock;
  HandTimers handTimers{handClock};
  QtEventPump pump;
  QtTimers qtTimers;
  SqliteConnections databases{clock()};
  CurlTransfers transfers;
  QtTcpSockets sockets;
  RecordingPrompts prompts;
  RecordingSound sound;
  RecordingPrograms programs;
  RecordingOpener opener;
  FileRunLocks runLocks;
  RecordingMails mails{timers()};
  RecordingSecrets secrets{timers()};
  RecordingNotifier notifier{timers()};
  RecordingRunner runner{timers()};
};

}  // namespace tarnwick::testing
