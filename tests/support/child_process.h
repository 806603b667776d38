// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace tarnwick::testing {

/// A program that was started with a pipe at its standard input, which stays open, and one at its output. It is killed,
/// as by a power cut, at the end of this object's life at the latest.
class ChildProcess {
 public:
  ChildProcess(const std::string& program, const std::vector<std::string>& arguments);
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  /// Waits for a line; false when the program has ended without one.
  bool waitForLine();
  /// Returns when the program is gone. What it has written until then can still be read.
  void kill();

 private:
  /// The next byte of the output; false at its end.
  bool read(char& byte);

  struct System;
  std::unique_ptr<System> system_;
};

}  // namespace tarnwick::testing
