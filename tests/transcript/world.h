// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "platform/events/qt_event_loop.h"
#include "platform/events/qt_tcp_socket.h"
#include "platform/local_files.h"
#include "platform/process/file_run_lock.h"
#include "platform/sqlite/sqlite_connection.h"
#include "platform/web/curl_transfers.h"
#include "program/program.h"
#include "support/hand_clock.h"
#include "support/hand_timers.h"
#include "support/program_folder.h"
#include "support/recording_doors.h"
#include "support/smtp_server.h"
#include "support/watched_sql.h"
#include "transcript/led_events.h"
#include "transcript/recorded_desktop.h"
#include "transcript/recorded_mail.h"
#include "transcript/recorded_sql.h"
#include "transcript/recorded_view.h"
#include "transcript/same_everywhere.h"
#include "transcript/scripted_web.h"
#include "transcript/transcript.h"

namespace tarnwick::testing {

/// The program on a machine of which everything is written down: a real database, real transfers and a real mail
/// socket, in a time that is cranked by hand.
struct World {
  World();

  /// Begins a scene: its title and the time are written down.
  void scene(const std::string& title);
  /// Lets time pass, with everything that falls due.
  void pass(std::chrono::seconds time) { timers.advance(time); }
  /// Does what a user asks for; an error is written down.
  void attempt(const std::string& what, const std::function<void()>& action);
  /// Writes down the bytes of a file in the program folder.
  void recordFile(const std::string& name);

  /// The program comes up, and goes.
  void start();
  void end();
  Program& program() { return *program_; }
  m& data() { return program_->data(); }

  HandClock clock{HandClock::at("2024-05-17 08:00:00")};
  SameEverywhere place{clock};
  HandTimers timers{clock};
  Transcript transcript;
  ProgramFolder folder;
  ScriptedWeb web{transcript};
  SmtpServer mailServer;

  SqliteConnections databases{clock};
  WatchedConnections watched{databases};
  RecordedConnections recordedDatabases{watched, transcript};
  LocalFiles files;
  FileRunLocks runLocks;
  RecordingMails mails{timers};
  RecordingSecrets secrets{timers};
  RecordingNotifier notifier{timers};
  RecordingRunner runner{timers};
  CurlTransfers transfers{{}};
  QtTcpSockets sockets;
  RecordedSockets recordedSockets{sockets, mailServer, transcript};
  RecordedDesktop desktop{transcript};
  RecordedView view{transcript};

 private:
  std::unique_ptr<QtEventPump> pump_;
  std::unique_ptr<LedEvents> events_;
  std::unique_ptr<Program> program_;
};

}  // namespace tarnwick::testing
