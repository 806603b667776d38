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

/// Hands files and addresses to the desktop.
class DesktopOpener {
 public:
  virtual ~DesktopOpener() = default;

  /// Asks the desktop to open a file path or an address with the program that the user has for it.
  /// False when the desktop has none or refused.
  virtual bool open(const std::string& pathOrAddress) = 0;
};

}  // namespace tarnwick
