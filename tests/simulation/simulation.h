// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "simulation/ledger.h"
#include "simulation/neighbour.h"
#include "simulation/plan.h"
#include "simulation/process.h"
#include "simulation/shadow.h"
#include "simulation/user.h"
#include "simulation/world.h"

namespace tarnwick::simulation {

/// What a run came to.
struct Outcome {
  std::uint64_t digest = 0;
  std::uint64_t results = 0;
  std::uint64_t events = 0;
  std::uint64_t happened = 0;
  std::uint64_t comparisons = 0;
  std::uint64_t deaths = 0;
  std::uint64_t alerts = 0;
  /// What was contradicted; empty when nothing was.
  std::string failure{};
  std::string lastLines{};

  /// In one line.
  std::string text() const;
};

/// One run of a plan.
class Simulation {
 public:
  /// `copy` gets every line of the journal.
  explicit Simulation(const Plan& plan, std::ostream* copy = nullptr);
  Outcome run();

 private:
  void layOut();
  void mustRun(const std::vector<std::string>& arguments);
  void schedule();
  void begin(const Happening& happening);
  void actAsUser(Chance chance);
  void lockList(Chance chance);
  void watchAnswers();
  void changeSites(Chance chance);
  void changeMail(Chance chance);
  void setClock(Chance chance);
  void breakDisk(Chance chance);
  void cutPower(Chance chance);
  void kill(Chance chance);
  void restart(Chance chance);
  void breakPrograms(Chance chance);
  void sendToSleep(Chance chance);
  void takeMemory(Chance chance);
  void changeToSummerTime();
  void stepClock(std::chrono::milliseconds by);
  void lookNow();
  void clearCounters();
  void liveOnce();
  /// For so long the program may fail to start, or end, for a reason that it names.
  void mayEnd(Time time) { mayEndUntil_ = std::max(mayEndUntil_, world_.agenda.now() + time); }
  void stayOff();
  void bringInTheModel();
  bool isOver() const { return over_ || ledger_.hasFailed(); }

  Plan plan_;
  World world_;
  Ledger ledger_{world_};
  User user_{world_, ledger_};
  Neighbour neighbour_{world_};
  Appointment mailHeals_{world_.agenda};
  Appointment programsHeal_{world_.agenda};
  Appointment memoryHeals_{world_.agenda};
  Time mayEndUntil_{0};
  std::optional<Chance> actsAtRequest_;  ///< what the user does then
  std::optional<Chance> actsAtMail_;
  std::optional<Chance> locksAtRequest_;  ///< how another program locks the list then
  std::unique_ptr<Process> process_;
  std::unique_ptr<Shadow> shadow_;
  std::vector<std::string> urls_;
  /// How long the machine, or the program, stays away.
  Time off_{0};
  std::uint64_t offline_ = 0;  ///< what the user does meanwhile, drawn from this; 0 for nothing
  std::uint64_t happened_ = 0;
  std::uint64_t deaths_ = 0;
  bool over_ = false;
};

}  // namespace tarnwick::simulation
