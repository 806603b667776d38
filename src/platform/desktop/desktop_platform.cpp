#include "platform/desktop/desktop_platform.h"

#include "platform/curl_transfers.h"
#include "platform/desktop/message_box_prompts.h"
#include "platform/desktop/qt_desktop_opener.h"
#include "platform/desktop/qt_sound_player.h"
#include "platform/qt_event_loop.h"
#include "platform/qt_program_starter.h"
#include "platform/qt_tcp_socket.h"
#include "platform/sqlite_connection.h"

namespace tarnwick {

struct DesktopPlatform::Machine {
  SystemClock clock;
  QtEventPump pump;
  QtTimers timers;
  SqliteConnections databases{clock};
  CurlTransfers transfers;
  QtTcpSockets sockets;
  MessageBoxPrompts prompts{pump};
  QtSoundPlayer sound;
  QtProgramStarter programs;
  QtDesktopOpener opener;
};

DesktopPlatform::DesktopPlatform() : machine_(std::make_unique<Machine>()) {}
DesktopPlatform::~DesktopPlatform() = default;

Services DesktopPlatform::services() {
  Machine& machine = *machine_;
  return {machine.clock,   machine.pump,    machine.timers, machine.databases, machine.transfers,
          machine.sockets, machine.prompts, machine.sound,  machine.programs,  machine.opener};
}

}  // namespace tarnwick
