// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

/// Plays sound files.
class SoundPlayer {
 public:
  virtual ~SoundPlayer() = default;

  /// Starts to play a .wav file and returns at once. 1 when playing was started, 0 when the file is missing or is no
  /// sound, or the machine has nothing to play it with; nothing is shown then.
  virtual long play(const std::string& fileName) = 0;
};

/// Starts programs.
class ProgramStarter {
 public:
  virtual ~ProgramStarter() = default;

  /// Starts `arguments[0]` with the other elements as its arguments, without a shell, detached from this process, and
  /// returns at once. False when it could not be started.
  virtual bool start(const std::vector<std::string>& arguments) = 0;
};

/// How a program ended.
struct ProgramEnd {
  /// Whether it could be started.
  bool started = false;
  /// The exit status, from 0 to 255, or 128 and the number of the signal that has ended it. Nothing while it was still
  /// running when we stopped to wait for it, or when nobody could tell.
  std::optional<int> status{};
  /// The last line that is not empty of what it wrote to its standard error up to then, at most 500 bytes.
  std::string lastError{};
  /// What it wrote to its standard output up to then, at most 64 KiB of it.
  std::string output{};
};

/// Runs programs and tells how they end.
class ProgramRunner {
 public:
  virtual ~ProgramRunner() = default;

  /// Starts `arguments[0]` as ProgramStarter does, and calls `done` once, through the event loop: when the program has
  /// ended, after `limit` at the latest. It is waited for no longer then, but goes on; and it outlives this process.
  /// `done` may be called when whoever asked has gone, but not when this object has.
  virtual void run(const std::vector<std::string>& arguments, std::chrono::seconds limit,
                   std::function<void(ProgramEnd)> done) = 0;
};

/// Hands files and addresses to the desktop. What is typed or comes from a list goes through the door of addresses
/// alone: the other one lets a program start.
class DesktopOpener {
 public:
  virtual ~DesktopOpener() = default;

  /// Asks the desktop to open a file or a folder of the program's own, given by its whole path, with the program that
  /// the user has for it. False when it is not there, or the desktop has no such program or refused.
  virtual bool openFile(const std::string& path) = 0;

  /// The same for a page, given by the `url` of a parsed address. False also for any scheme but the fetched ones.
  virtual bool openAddress(const std::string& url) = 0;
};

}  // namespace tarnwick
