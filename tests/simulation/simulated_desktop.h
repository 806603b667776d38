// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/desktop.h"
#include "platform/prompts.h"
#include "platform/run_lock.h"
#include "simulation/journal.h"
#include "simulation/simulated_memory.h"

namespace tarnwick::simulation {

/// A desktop that writes down what it is asked for. Boxes are closed at once, questions answered with Yes.
class SimulatedDesktop final : public Prompts, public SoundPlayer, public ProgramStarter, public DesktopOpener {
 public:
  explicit SimulatedDesktop(Journal& journal) : journal_(journal) {}

  void inform(const Message& message, std::function<void()> closed = {}) override {
    note(message.text);
    if (closed) {
      closed();
    }
  }
  void confirm(const Message& message, std::function<void(bool yes)> answered) override {
    journal_.add("question", message.text);
    answered(true);
  }
  void chooseFile(const FileChoice&, std::function<void(const std::string& path)>) override {}

  long play(const std::string& fileName) override {
    const SimulatedMemory::OfWorld ours;
    ++sounds_;
    if (onSound) {
      onSound(fileName);
    }
    journal_.add("sound", fileName);
    return 1;
  }
  bool start(const std::vector<std::string>& arguments) override {
    const SimulatedMemory::OfWorld ours;
    std::string line;
    for (const std::string& argument : arguments) {
      line += "[" + argument + "]";
    }
    journal_.add(startsPrograms ? "program" : "no program", line);
    if (onStart) {
      onStart(arguments);
    }
    if (!startsPrograms) {
      if (onNoProgram) {
        onNoProgram(arguments);
      }
      return false;
    }
    if (onProgram) {
      onProgram(arguments);
    }
    return true;
  }
  bool openFile(const std::string&) override { return true; }
  bool openAddress(const std::string&) override { return true; }

  /// Whether a program can be started; a sound is always played, as far as anybody can tell.
  bool startsPrograms = true;
  std::function<void(const std::vector<std::string>&)> onProgram;
  std::function<void(const std::vector<std::string>&)> onNoProgram;
  std::function<void(const std::vector<std::string>&)> onStart;
  std::function<void(const std::string&)> onSound;
  std::function<void(const std::string&)> onBox;
  std::uint64_t sounds() const { return sounds_; }
  std::uint64_t boxes() const { return boxes_; }

 private:
  void note(const std::string& box) {
    const SimulatedMemory::OfWorld ours;
    ++boxes_;
    if (onBox) {
      onBox(box);
    }
    journal_.add("box", box);
  }

  Journal& journal_;
  std::uint64_t sounds_ = 0;
  std::uint64_t boxes_ = 0;
};

/// Who has a run on in which folder; a process that dies lets go.
class SimulatedRunLocks final : public RunLockMaker {
 public:
  std::unique_ptr<RunLock> makeRunLock(const std::string& programFolder) override {
    return std::make_unique<Lock>(taken_, programFolder);
  }

 private:
  class Lock final : public RunLock {
   public:
    Lock(std::set<std::string>& taken, std::string folder) : taken_(taken), folder_(std::move(folder)) {}
    ~Lock() override { release(); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;
    void take() override {
      if (!mine_ && !taken_.insert(folder_).second) {
        throw std::runtime_error("A run is on in this folder already.");
      }
      mine_ = true;
    }
    void release() noexcept override {
      if (mine_) {
        taken_.erase(folder_);
      }
      mine_ = false;
    }

   private:
    std::set<std::string>& taken_;
    std::string folder_;
    bool mine_ = false;
  };

  std::set<std::string> taken_;
};

}  // namespace tarnwick::simulation
