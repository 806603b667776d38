// SPDX-License-Identifier: MIT
#pragma once

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
