// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <ostream>
#include <streambuf>
#include <string>

#include "cli/terminal/console.h"
#include "cli/verbs/run_terminal.h"
#include "program/program.h"
#include "simulation/simulated_memory.h"
#include "simulation/world.h"

namespace tarnwick::simulation {

/// A stream whose lines go into the journal.
class JournalStream final : public std::streambuf {
 public:
  JournalStream(Journal& journal, const char* kind) : journal_(journal), kind_(kind) {}

 protected:
  int_type overflow(int_type character) override;
  std::streamsize xsputn(const char* bytes, std::streamsize count) override;

 private:
  Journal& journal_;
  const char* kind_;
  std::string line_;
};

/// The run as the terminal shows it, and as whoever watches the watcher sees it.
class WatchedView final : public RunView {
 public:
  WatchedView(World& world, RunTerminal& terminal) : world_(world), terminal_(terminal) {}

  void setCaption(const std::string& caption) override { terminal_.setCaption(caption); }
  void fillGrid() override { terminal_.fillGrid(); }
  void showStatus(const std::string& text) override {
    {
      const SimulatedMemory::OfWorld ours;
      world_.journal.addTick("status", text);
      if (onSign) {
        onSign();
      }
      if (onStatus) {
        onStatus(text);
      }
    }
    terminal_.showStatus(text);
  }
  void indicators(RunState state) override {
    world_.journal.addTick("lamp", state == RunState::start ? "start" : state == RunState::pause ? "pause" : "stop");
    if (onLamp) {
      const SimulatedMemory::OfWorld ours;
      onLamp(state);
    }
    terminal_.indicators(state);
  }
  void blinkLamps() override { terminal_.blinkLamps(); }
  void showClock(const std::string& text) override { terminal_.showClock(text); }
  std::int64_t fullProgressWidth() override { return terminal_.fullProgressWidth(); }
  void setProgressWidth(std::int64_t width) override { terminal_.setProgressWidth(width); }
  void brighten(std::int16_t idSite, int amount) override { terminal_.brighten(idSite, amount); }
  void unbrighten(std::int16_t idSite) override { terminal_.unbrighten(idSite); }
  void updateGridRow(std::int16_t idSite, bool passed) override { terminal_.updateGridRow(idSite, passed); }
  void showResult(const CheckResult& result) override {
    if (!world_.isDead() && onResult) {
      const SimulatedMemory::OfWorld ours;
      onResult(result);
    }
    terminal_.showResult(result);
  }
  void showLostMail(const LostMail& mail) override {
    if (!world_.isDead() && onLostMail) {
      const SimulatedMemory::OfWorld ours;
      onLostMail(mail);
    }
    terminal_.showLostMail(mail);
  }
  void showDropped(std::int16_t idSite, const std::string& url) override {
    if (!world_.isDead() && onDropped) {
      const SimulatedMemory::OfWorld ours;
      onDropped(url);
    }
    terminal_.showDropped(idSite, url);
  }
  void setLastChecked(std::int16_t idSite, const std::string& dateTime) override {
    terminal_.setLastChecked(idSite, dateTime);
  }

  std::function<void(const CheckResult&)> onResult;
  std::function<void(const LostMail&)> onLostMail;
  std::function<void(const std::string& url)> onDropped;
  std::function<void()> onSign;
  std::function<void(RunState)> onLamp;
  std::function<void(const std::string&)> onStatus;

 private:
  World& world_;
  RunTerminal& terminal_;
};

/// The program that watches, in a process of its own: `tarnwickctl run`, and what a window beside it could do to it.
class Process {
 public:
  explicit Process(World& world);

  /// Starts the program and its run, and lives until it is closed or its process ends. False when it did not start.
  bool live();
  /// What it has died of when it did not live to its end.
  const std::string& why() const { return why_; }
  Program& program() { return program_; }
  WatchedView& view() { return view_; }
  SimulatedPump& pump() { return loop_.pump; }
  /// Called when the program has been started, before its run is.
  std::function<void()> onStarted;

 private:
  World& world_;
  std::string why_;
  LivingPump loop_;
  JournalStream out_;
  JournalStream err_;
  std::ostream outStream_{&out_};
  std::ostream errStream_{&err_};
  Console console_;
  RunTerminal terminal_;
  WatchedView view_;
  Program program_;
};

/// Runs a verb of the terminal tool in a process of its own; its exit status.
int runVerb(World& world, const std::vector<std::string>& arguments);

}  // namespace tarnwick::simulation
