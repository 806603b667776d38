// SPDX-License-Identifier: MIT
// Runs the simulation: scripts/simulate.sh tells how.
#include <sqlite3.h>
#include <unistd.h>

#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>
#include <QCoreApplication>

#include "simulation/power_cuts.h"
#include "simulation/shrink.h"
#include "simulation/simulation.h"

namespace {

using namespace tarnwick::simulation;

struct Wishes {
  Plan plan{};
  std::uint64_t seeds = 1;
  bool onceOnly = false;
  bool cutsEverywhere = false;
  bool firstOnly = false;
  bool shrinks = true;
  double hours = 0;
  std::string journal{};
};

std::uint64_t numberOf(const std::string& text) {
  std::uint64_t number = 0;
  const auto [rest, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (fault != std::errc() || rest != text.data() + text.size()) {
    throw std::invalid_argument(text + " is no number.");
  }
  return number;
}

std::uint64_t freshSeed() {
  return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch() / std::chrono::seconds(1));
}

std::vector<std::string> itemsOf(const std::string& list) {
  std::vector<std::string> items;
  std::size_t from = 0;
  for (std::size_t comma = list.find(','); comma != std::string::npos; comma = list.find(',', from)) {
    items.push_back(list.substr(from, comma - from));
    from = comma + 1;
  }
  items.push_back(list.substr(from));
  return items;
}

Trouble troubleOf(const std::string& name) {
  for (std::size_t i = 0; i < kTroubles; ++i) {
    if (kTroubleNames.at(i) == name) {
      return static_cast<Trouble>(i);
    }
  }
  throw std::invalid_argument(name + " is no class of troubles.");
}

Wishes wishesOf(const std::vector<std::string>& arguments) {
  Wishes wishes;
  double minutes = 1440;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& name = arguments[i];
    const auto value = [&]() -> const std::string& {
      if (++i >= arguments.size()) {
        throw std::invalid_argument(name + " needs a value.");
      }
      return arguments[i];
    };
    if (name == "--seed") {
      const std::string& seed = value();
      wishes.plan.seed = seed == "fresh" ? freshSeed() : numberOf(seed);
    } else if (name == "--seeds") {
      wishes.seeds = numberOf(value());
    } else if (name == "--years") {
      minutes = std::stod(value()) * 365 * 1440;
    } else if (name == "--days") {
      minutes = std::stod(value()) * 1440;
    } else if (name == "--minutes") {
      minutes = std::stod(value());
    } else if (name == "--sites") {
      wishes.plan.sites = static_cast<int>(numberOf(value()));
    } else if (name == "--hours") {
      wishes.hours = std::stod(value());
    } else if (name == "--without") {
      for (const std::string& item : itemsOf(value())) {
        wishes.plan.without.insert(troubleOf(item));
      }
    } else if (name == "--leave-out") {
      for (const std::string& item : itemsOf(value())) {
        wishes.plan.leftOut.insert(numberOf(item));
      }
    } else if (name == "--original") {
      wishes.plan.original = true;
    } else if (name == "--model") {
      wishes.plan.model = true;
      wishes.plan.without.insert({Trouble::locks, Trouble::disk, Trouble::memory});
    } else if (name == "--cut-everywhere") {
      wishes.cutsEverywhere = true;
    } else if (name == "--first") {
      wishes.firstOnly = true;
    } else if (name == "--once") {
      wishes.onceOnly = true;
    } else if (name == "--no-shrinking") {
      wishes.shrinks = false;
    } else if (name == "--journal") {
      wishes.journal = value();
    } else {
      throw std::invalid_argument(name + " is no option.");
    }
  }
  wishes.plan.length = Time(static_cast<std::int64_t>(minutes * 60'000));
  return wishes;
}

/// What a number of runs came to.
struct Tally {
  std::uint64_t runs = 0;
  std::uint64_t results = 0;
  std::uint64_t alerts = 0;
  std::uint64_t troubles = 0;
  std::uint64_t deaths = 0;
  /// The commands of those that have failed.
  std::vector<std::string> failed{};

  void tell(std::ostream& out) const {
    out << runs << " runs with " << results << " results, " << alerts << " alerts, " << troubles << " troubles and "
        << deaths << " ends without warning: " << failed.size() << " have failed\n";
    for (const std::string& command : failed) {
      out << "  " << command << '\n';
    }
  }
};

std::string underWay;  // the command of the run that is under way

// Whoever looks for faults at night wants to know in the morning which run has taken everything down with it.
void tellCrash(int signal) {
  constexpr std::string_view kText = "crashed; again by: ";
  if (write(STDERR_FILENO, kText.data(), kText.size()) < 0 ||
      write(STDERR_FILENO, underWay.data(), underWay.size()) < 0 || write(STDERR_FILENO, "\n", 1) < 0) {
    // There is nobody to tell it to.
  }
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

/// The same plan twice: whatever comes of it, it must be the same.
bool runTwice(const Wishes& wishes, const Plan& plan, Tally& tally) {
  std::ofstream journal;
  if (!wishes.journal.empty()) {
    journal.open(wishes.journal);
  }
  const Outcome outcome = Simulation(plan, journal.is_open() ? &journal : nullptr).run();
  std::cout << "seed " << plan.seed << " " << outcome.text() << std::endl;
  ++tally.runs;
  tally.results += outcome.results;
  tally.alerts += outcome.alerts;
  tally.troubles += outcome.happened;
  tally.deaths += outcome.deaths;
  if (!outcome.failure.empty()) {
    std::cout << outcome.lastLines << "again by: " << plan.command() << std::endl;
    if (wishes.shrinks) {
      const Plan shortest = shrink(plan, std::cout);
      std::cout << "shortest by: " << shortest.command() << std::endl;
    }
    return false;
  }
  if (!wishes.onceOnly && Simulation(plan).run().digest != outcome.digest) {
    std::cout << "seed " << plan.seed << " FAILED: a second run of it came out otherwise\nagain by: " << plan.command()
              << std::endl;
    return false;
  }
  return true;
}

int runAll(const Wishes& wishes) {
  if (wishes.cutsEverywhere) {
    return cutPowerEverywhere(wishes.plan.seed, std::cout) ? EXIT_SUCCESS : EXIT_FAILURE;
  }
  const auto realNow = [] { return std::chrono::system_clock::now(); };
  const auto end = realNow() + std::chrono::seconds(static_cast<std::int64_t>(wishes.hours * 3600));
  Tally tally;
  Plan plan = wishes.plan;
  for (std::uint64_t run = 0; wishes.hours > 0 ? realNow() < end : run < wishes.seeds; ++run, ++plan.seed) {
    underWay = plan.command();
    if (!runTwice(wishes, plan, tally)) {
      tally.failed.push_back(underWay);
      if (wishes.firstOnly) {
        break;
      }
    }
  }
  if (tally.runs > 1) {
    tally.tell(std::cout);
  }
  return tally.failed.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);  // what waits for signals wants one
  // All of it happens in one thread, and nobody asks how much memory the database takes: a year is shorter without
  // locks and counting. It takes this only before its first use.
  sqlite3_config(SQLITE_CONFIG_SINGLETHREAD);
  sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
  for (const int crash : {SIGSEGV, SIGABRT}) {
    if (const auto before = std::signal(crash, tellCrash); before != SIG_DFL) {
      std::signal(crash, before);  // a sanitizer tells more
    }
  }
  try {
    return runAll(wishesOf({argv + 1, argv + argc}));
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 2;
  }
}
