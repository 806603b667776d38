// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/event_pump.h"
#include "platform/file_system.h"
#include "platform/mail_transfer.h"
#include "platform/notifier.h"
#include "platform/prompts.h"
#include "platform/run_lock.h"
#include "platform/secret_store.h"
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
  FileSystem& files;
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
  MailTransferMaker& mails;
  SecretStoreMaker& secrets;
  Notifier& notifier;
  ProgramRunner& runner;

  /// What takes the place of a part; null leaves the part as it is.
  struct Exchanged {
    FileSystem* files = nullptr;
    SqlConnectionMaker* databases = nullptr;
    TransferMaker* transfers = nullptr;
    TcpSocketMaker* sockets = nullptr;
    Prompts* prompts = nullptr;
    SoundPlayer* sound = nullptr;
    ProgramStarter* programs = nullptr;
    DesktopOpener* opener = nullptr;
    MailTransferMaker* mails = nullptr;
    SecretStoreMaker* secrets = nullptr;
    Notifier* notifier = nullptr;
    ProgramRunner* runner = nullptr;
  };
  /// The same machine with some parts exchanged: `services.with({.prompts = &others})`.
  Services with(const Exchanged& other) const {
    return {.clock = clock,
            .files = other.files != nullptr ? *other.files : files,
            .pump = pump,
            .timers = timers,
            .databases = other.databases != nullptr ? *other.databases : databases,
            .transfers = other.transfers != nullptr ? *other.transfers : transfers,
            .sockets = other.sockets != nullptr ? *other.sockets : sockets,
            .prompts = other.prompts != nullptr ? *other.prompts : prompts,
            .sound = other.sound != nullptr ? *other.sound : sound,
            .programs = other.programs != nullptr ? *other.programs : programs,
            .opener = other.opener != nullptr ? *other.opener : opener,
            .runLocks = runLocks,
            .mails = other.mails != nullptr ? *other.mails : mails,
            .secrets = other.secrets != nullptr ? *other.secrets : secrets,
            .notifier = other.notifier != nullptr ? *other.notifier : notifier,
            .runner = other.runner != nullptr ? *other.runner : runner};
  }
};

}  // namespace tarnwick
