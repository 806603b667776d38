// SPDX-License-Identifier: MIT
#include "app/headless_platform.h"

#include <iostream>
#include <QTimer>

#include "base/visible_text.h"
#include "platform/events/qt_event_loop.h"
#include "platform/events/qt_tcp_socket.h"
#include "platform/local_files.h"
#include "platform/process/detached_programs.h"
#include "platform/process/file_run_lock.h"
#include "platform/process/unwanted_signals.h"
#include "platform/process/waited_programs.h"
#include "platform/secrets/kept_secrets.h"
#include "platform/sound/sound_player.h"
#include "platform/sqlite/sqlite_connection.h"
#include "platform/web/curl_mails.h"
#include "platform/web/curl_transfers.h"

namespace tarnwick {
namespace {

class StandardErrorPrompts final : public Prompts {
 public:
  void inform(const Message& message, std::function<void()> closed) override {
    std::cerr << message.title << ": " << visibleText(message.text) << '\n';
    if (closed) {
      closed();
    }
  }
  void confirm(const Message& message, std::function<void(bool yes)> answered) override {
    std::cerr << message.title << ": " << visibleText(message.text) << " No\n";
    answered(false);
  }
  void chooseFile(const FileChoice&, std::function<void(const std::string& path)>) override {}
};

class NoOpener final : public DesktopOpener {
 public:
  bool openFile(const std::string&) override { return false; }
  bool openAddress(const std::string&) override { return false; }
};

/// Calls that from the event loop.
void postToLoop(std::function<void()> call) { QTimer::singleShot(0, std::move(call)); }

class NoNotifier final : public Notifier {
 public:
  void show(const Notice&, std::function<void(std::string)>, std::function<void(std::string)> done) override {
    if (done) {
      postToLoop([done = std::move(done)] { done("There is no desktop here that could show a notice."); });
    }
  }
  bool isThere() override { return false; }
};

}  // namespace

struct HeadlessPlatform::Machine {
  explicit Machine(std::chrono::milliseconds patience) : databases(clock, patience) {}

  SystemClock clock;
  LocalFiles files;
  QtEventPump pump;
  QtTimers timers;
  SqliteConnections databases;
  CurlTransfers transfers;
  QtTcpSockets sockets;
  StandardErrorPrompts prompts;
  DetachedPrograms programs;
  std::unique_ptr<SoundPlayer> sound = makeSoundPlayer(programs);
  NoOpener opener;
  FileRunLocks runLocks;
  CurlMails mails{transfers};
  KeptSecrets secrets{files};
  NoNotifier notifier;
  WaitedPrograms runner;
};

HeadlessPlatform::HeadlessPlatform(std::chrono::milliseconds patience) : machine_(std::make_unique<Machine>(patience)) {
  ignoreUnwantedSignals();
}
HeadlessPlatform::~HeadlessPlatform() = default;

Services HeadlessPlatform::services() {
  Machine& machine = *machine_;
  return {.clock = machine.clock,
          .files = machine.files,
          .pump = machine.pump,
          .timers = machine.timers,
          .databases = machine.databases,
          .transfers = machine.transfers,
          .sockets = machine.sockets,
          .prompts = machine.prompts,
          .sound = *machine.sound,
          .programs = machine.programs,
          .opener = machine.opener,
          .runLocks = machine.runLocks,
          .mails = machine.mails,
          .secrets = machine.secrets,
          .notifier = machine.notifier,
          .runner = machine.runner};
}

}  // namespace tarnwick
