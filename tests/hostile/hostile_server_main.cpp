// SPDX-License-Identifier: MIT
// A server of bad behaviours: hostile_server [NAME CERTIFICATE KEY]...
//
// It prints each behaviour's name and address, then "ready", and serves until its standard input ends.
#include <unistd.h>

#include <csignal>
#include <exception>
#include <iostream>
#include <span>
#include <QCoreApplication>

#include "behaviours.h"
#include "support/hostile_server.h"

int main(int argc, char** argv) {
  using namespace tarnwick::testing;
  std::signal(SIGPIPE, SIG_IGN);
  const QCoreApplication application(argc, argv);
  const std::span arguments(argv, static_cast<std::size_t>(argc));
  std::map<std::string, TlsIdentity> identities;
  for (std::size_t i = 1; i + 2 < arguments.size(); i += 3) {
    identities[arguments[i]] = {.certificateFile = arguments[i + 1], .keyFile = arguments[i + 2]};
  }
  const HostileBehaviours behaviours = allBehaviours();
  try {
    HostileDoors doors(behaviours, identities);
    doors.serve();
  } catch (const std::exception& error) {
    std::cerr << error.what() << std::endl;
    _exit(1);
  }
  // Visits are still being paid on other threads, and some never end.
  _exit(0);
}
