// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <system_error>
#include <utility>
#include <QSocketNotifier>

#include "platform/interrupts.h"

namespace tarnwick {
namespace {

constexpr std::array kSignals = {SIGINT, SIGTERM, SIGHUP};

// A signal handler may do next to nothing: it writes a byte, and the event loop wakes up to read it.
volatile std::sig_atomic_t wakeUpEnd = -1;

void wakeUp(int) {
  const int before = errno;
  const char byte = 1;
  [[maybe_unused]] const ssize_t written = ::write(wakeUpEnd, &byte, 1);
  errno = before;
}

}  // namespace

struct Interrupts::Watch {
  explicit Watch(std::function<void()> action) : handler(std::move(action)) {
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
      throw std::system_error(errno, std::generic_category(), "No pipe for the signals could be made");
    }
    wakeUpEnd = ends[1];
    notifier = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), [this] { serve(); });
    struct sigaction action_of_signal {};
    action_of_signal.sa_handler = wakeUp;
    action_of_signal.sa_flags = SA_RESETHAND | SA_RESTART;
    sigemptyset(&action_of_signal.sa_mask);
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
      ::sigaction(kSignals.at(i), nullptr, &before.at(i));
      // Who ignores a signal (nohup does) wants that to stay so.
      if (before.at(i).sa_handler != SIG_IGN) {
        ::sigaction(kSignals.at(i), &action_of_signal, nullptr);
      }
    }
  }

  ~Watch() {
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
      ::sigaction(kSignals.at(i), &before.at(i), nullptr);
    }
    notifier.reset();
    wakeUpEnd = -1;
    ::close(ends[0]);
    ::close(ends[1]);
  }

  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;

  void serve() {
    std::array<char, 16> bytes{};
    while (::read(ends[0], bytes.data(), bytes.size()) > 0) {
    }
    handler();
  }

  std::function<void()> handler;
  std::array<int, 2> ends{-1, -1};
  std::array<struct sigaction, kSignals.size()> before{};
  std::unique_ptr<QSocketNotifier> notifier;
};

Interrupts::Interrupts(std::function<void()> handler) : watch_(std::make_unique<Watch>(std::move(handler))) {}
Interrupts::~Interrupts() = default;

}  // namespace tarnwick
