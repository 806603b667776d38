#pragma once

#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/event_pump.h"
#include "platform/prompts.h"
#include "platform/run_lock.h"
#include "platform/sql_connection.h"
#include "platform/tcp_socket.h"
#include "platform/timer.h"
#include "platform/transfer_control.h"

namespace tarnwick {

/// Everything the program asks of the machine. The referred objects outlive whoever holds this. Built by name:
///
///     return {.clock = clock, .pump = pump, ...};
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
  RunLockMaker& runLocks;

  /// The same machine with other boxes.
  Services withPrompts(Prompts& others) const {
    return {.clock = clock,
            .pump = pump,
            .timers = timers,
            .databases = databases,
            .transfers = transfers,
            .sockets = sockets,
            .prompts = others,
            .sound = sound,
            .programs = programs,
            .opener = opener,
            .runLocks = runLocks};
  }
};

}  // namespace tarnwick
