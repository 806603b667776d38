// SPDX-License-Identifier: MIT
#include <csignal>
#include <initializer_list>

#include "platform/process/unwanted_signals.h"

namespace tarnwick {
namespace {

void doNothing(int) {}

}  // namespace

void ignoreUnwantedSignals() {
  // Not SIG_IGN, which a program that is started would inherit.
  struct sigaction nothing {};
  nothing.sa_handler = doNothing;
  nothing.sa_flags = SA_RESTART;
  sigemptyset(&nothing.sa_mask);
  for (const int unwanted : {SIGPIPE, SIGXFSZ}) {
    ::sigaction(unwanted, &nothing, nullptr);
  }
}

}  // namespace tarnwick
