// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "platform/local_files.h"
#include "platform/services.h"
#include "platform/sqlite/sqlite_connection.h"
#include "simulation/agenda.h"
#include "simulation/chance.h"
#include "simulation/journal.h"
#include "simulation/simulated_desktop.h"
#include "simulation/simulated_disk.h"
#include "simulation/simulated_mail.h"
#include "simulation/simulated_time.h"
#include "simulation/simulated_web.h"
#include "simulation/system_time.h"
#include "support/recording_doors.h"

namespace tarnwick::simulation {

class Look;

struct ListCloser {
  void operator()(sqlite3* list) const { sqlite3_close(list); }
};
using ListHandle = std::unique_ptr<sqlite3, ListCloser>;

/// Which parts of the world draw their numbers apart from each other.
enum class Part : std::uint64_t { web = 1, mail, disk, user, neighbour, moods, clock, power, sqlite };

/// The machine and everything around it.
struct World {
  World(std::uint64_t seed, std::ostream* copy);
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  Chance chance(Part part) const { return Chance::of(seed, static_cast<std::uint64_t>(part)); }
  /// What a process on this machine asks of it.
  Services services(EventPump& pump) {
    return {.clock = clock,
            .files = files,
            .pump = pump,
            .timers = timers,
            .databases = databases,
            .transfers = web,
            .sockets = mail,
            .prompts = desktop,
            .sound = desktop,
            .programs = desktop,
            .opener = desktop,
            .runLocks = runLocks,
            .mails = mails,
            .secrets = secrets,
            .notifier = notifier,
            .runner = runner};
  }

  /// Every process ends at once, by a power cut or killed. What they still do while they unwind reaches nothing.
  void cutPower(Chance& chance);
  void killAll();
  bool isDead() const { return disk.isDead(); }
  /// REQUIRES: the processes have gone.
  void powerOn();

  const std::uint64_t seed;
  Agenda agenda;
  SimulatedClock clock;
  SystemTime system{agenda, clock};
  SimulatedDisk disk;
  Journal journal;
  SimulatedTimers timers;
  SimulatedWeb web;
  SimulatedMail mail;
  SimulatedDesktop desktop{journal};
  SimulatedRunLocks runLocks;
  testing::RecordingMails mails{timers};
  testing::RecordingSecrets secrets{timers};
  testing::RecordingNotifier notifier{timers};
  testing::RecordingRunner runner{timers};
  LocalFiles files;
  SqliteConnections databases{clock};
  /// Of the living processes.
  std::vector<SimulatedPump*> pumps;
  /// The one that is taken at the list just now, if any.
  Look* look = nullptr;

 private:
  void endAll(const char* how);
};

/// The loop of a process, known to the world for as long as that lives.
class LivingPump {
 public:
  explicit LivingPump(World& world) : world_(world), pump(world.agenda) { world_.pumps.push_back(&pump); }
  ~LivingPump() { std::erase(world_.pumps, &pump); }
  LivingPump(const LivingPump&) = delete;
  LivingPump& operator=(const LivingPump&) = delete;

 private:
  World& world_;

 public:
  SimulatedPump pump;
};

/// The text of the mails.
inline constexpr const char* kMailTemplate = "At ~date~ the site ~idsite~, ~url~, failed.\r\n";

/// Lays a fresh list and a mail template into the program folder; `original` without the recommended options.
void layFolder(World& world, bool original);

/// Runs one statement of SQLite's own SQL as another program would, and returns its rows, their fields joined with "|".
std::vector<std::string> askDatabase(World& world, const std::string& sql);

/// For its life `askDatabase` asks through one connection, opened by the first question: a look at the list has
/// several. No program runs meanwhile, and one at a time.
class Look {
 public:
  explicit Look(World& world) : world_(world) { world.look = this; }
  ~Look();
  Look(const Look&) = delete;
  Look& operator=(const Look&) = delete;

 private:
  friend std::vector<std::string> askDatabase(World& world, const std::string& sql);
  World& world_;
  ListHandle list_;
};

/// The number of the last row of the log. A compaction may number them anew, and so does a log that was cleared.
std::uint64_t lastLogRow(World& world);

}  // namespace tarnwick::simulation
