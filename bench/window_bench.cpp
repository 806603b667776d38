// SPDX-License-Identifier: MIT
// How the window fares with a long list: how soon it is ready, how smoothly its event loop runs while a pass goes on,
// and what it costs in memory and at rest.
//
//   window_bench FOLDER [IDLE-SECONDS]
//
// FOLDER is a program folder with its database, as scripts/bench.sh lays it. One run is started as by the Start button:
// its first pass tests every active site. Meanwhile a timer of 2 ms watches the event loop; how much later than that it
// fires is a stall. On a machine that does other work as well a stall may be the machine's: so its processor time is
// told beside it, which is the program's own doing.

#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <QApplication>
#include <QTimer>

#include "app/desktop_platform.h"
#include "ui/main_window/master.h"

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int kProbeMs = 2;

double processorMs() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double msSince(Clock::time_point begin) { return Milliseconds(Clock::now() - begin).count(); }

/// Not what getrusage tells: that begins with the peak of the process that started this one.
double peakMiB() {
  std::ifstream file("/proc/self/status");
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("VmHWM:")) {
      return std::stod(line.substr(line.find(':') + 1)) / 1024;
    }
  }
  return 0;
}

/// The time since this process was started, which includes loading its libraries.
double msSinceStart() {
  std::ifstream file("/proc/self/stat");
  std::string text;
  std::getline(file, text);
  std::size_t at = text.rfind(')') + 2;
  constexpr int kStartTime = 22;
  for (int field = 3; field < kStartTime; ++field) {
    at = text.find(' ', at) + 1;
  }
  timespec now{};
  clock_gettime(CLOCK_BOOTTIME, &now);
  const double started = std::stod(text.substr(at)) / static_cast<double>(sysconf(_SC_CLK_TCK)) * 1e3;
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6 - started;
}

/// Watches how long the event loop lets its timers wait.
class Probe {
 public:
  Probe() {
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { tick(); });
    seen_ = Clock::now();
    processor_ = processorMs();
    timer_.start(kProbeMs);
  }

  void tell(std::ostream& out) const {
    out << "longest stall of the event loop: " << worst_ << " ms; of the program's own doing: " << worstOwn_
        << " ms; stalls over 30 ms: " << over30_ << ", over 100 ms: " << over100_ << '\n';
  }

 private:
  void tick() {
    const double stall = msSince(seen_) - kProbeMs;
    const double own = processorMs() - processor_;
    seen_ = Clock::now();
    processor_ = processorMs();
    worst_ = std::max(worst_, stall);
    worstOwn_ = std::max(worstOwn_, std::min(own, stall));
    over30_ += stall > 30 ? 1 : 0;
    over100_ += stall > 100 ? 1 : 0;
  }

  QTimer timer_;
  Clock::time_point seen_;
  double processor_ = 0;
  double worst_ = 0;
  double worstOwn_ = 0;
  int over30_ = 0;
  int over100_ = 0;
};

void idle(std::chrono::seconds time) {
  QTimer::singleShot(time, qApp, [] { QApplication::exit(); });
  QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "Usage: window_bench FOLDER [IDLE-SECONDS]\n";
    return 2;
  }
  QApplication application(argc, argv);
  tarnwick::DesktopPlatform machine;
  tarnwick::Master window(argv[1], machine.services());
  if (!window.load()) {
    return EXIT_FAILURE;
  }
  std::cout << "ready " << msSinceStart() << " ms after its start, " << processorMs() << " ms of processor time\n";
  window.show();
  QApplication::processEvents();
  std::cout << "shown " << msSinceStart() << " ms after its start; peak memory " << peakMiB() << " MiB\n";

  const auto begin = Clock::now();
  const double processorBefore = processorMs();
  {
    const Probe probe;
    if (!window.program().startRun()) {
      return EXIT_FAILURE;
    }
    const double wall = msSince(begin);
    std::cout << "pass " << wall << " ms, " << processorMs() - processorBefore << " ms of processor time\n";
    probe.tell(std::cout);
  }
  std::cout << "peak memory " << peakMiB() << " MiB\n";

  const int seconds = argc > 2 ? std::atoi(argv[2]) : 0;
  if (seconds > 0) {
    const double before = processorMs();
    idle(std::chrono::seconds(seconds));
    std::cout << "at rest in a run: " << (processorMs() - before) / (seconds * 10.0) << " % of a core\n";
  }
  window.close();
  return EXIT_SUCCESS;
}
