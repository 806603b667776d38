#pragma once

#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/event_pump.h"
#include "platform/prompts.h"
#include "platform/sql_connection.h"
#include "platform/tcp_socket.h"
#include "platform/timer.h"
#include "platform/transfer_control.h"

namespace tarnwick {

/// Everything the program asks of the machine. The referred objects outlive whoever holds this.
struct Services {
  const Clock& clock;
  EventPump& pump;
  TimerMaker& timers;
  SqlConnectionMaker& databases;
  TransferMaker& transfers;
  TcpSocketMaker& sockets;
  Prompts& prompts;
  SoundPlayer& sound;
  ProgramStarter& programs;
  DesktopOpener& opener;
};

}  // namespace tarnwick
