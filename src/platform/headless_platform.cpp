#include "platform/headless_platform.h"

#include <iostream>

#include "platform/curl_transfers.h"
#include "platform/detached_programs.h"
#include "platform/qt_event_loop.h"
#include "platform/qt_tcp_socket.h"
#include "platform/sqlite_connection.h"
#include "platform/terminal_sound.h"

namespace tarnwick {
namespace {

class StandardErrorPrompts final : public Prompts {
 public:
  void inform(const std::string& text, const std::string& title, PromptIcon) override {
    std::cerr << title << ": " << text << '\n';
  }
  bool confirm(const std::string& text, const std::string& title, PromptIcon) override {
    std::cerr << title << ": " << text << " No\n";
    return false;
  }
  std::optional<std::string> chooseFile(const std::string&, const std::string&) override { return std::nullopt; }
};

class NoOpener final : public DesktopOpener {
 public:
  bool open(const std::string&) override { return false; }
};

}  // namespace

struct HeadlessPlatform::Machine {
  SystemClock clock;
  QtEventPump pump;
  QtTimers timers;
  SqliteConnections databases{clock};
  CurlTransfers transfers;
  QtTcpSockets sockets;
  StandardErrorPrompts prompts;
  DetachedPrograms programs;
  std::unique_ptr<SoundPlayer> sound = makeTerminalSound(programs);
  NoOpener opener;
};

HeadlessPlatform::HeadlessPlatform() : machine_(std::make_unique<Machine>()) {}
HeadlessPlatform::~HeadlessPlatform() = default;

Services HeadlessPlatform::services() {
  Machine& machine = *machine_;
  return {machine.clock,   machine.pump,    machine.timers, machine.databases, machine.transfers,
          machine.sockets, machine.prompts, *machine.sound, machine.programs,  machine.opener};
}

}  // namespace tarnwick
