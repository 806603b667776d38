// SPDX-License-Identifier: MIT
#pragma once

#include "platform/desktop.h"

namespace tarnwick {

/// Starts programs as processes of their own, which outlive this one: in the folder of this executable, without input,
/// and with their output thrown away.
class DetachedPrograms final : public ProgramStarter {
 public:
  /// A program named without a folder is looked up in the search path. False when `arguments` is empty, the program is
  /// missing or may not be run, or an argument cannot be given to it: one with a NUL byte to none, one with a line end
  /// to no batch file. On Windows a batch file or a script is given to its interpreter, and a shortcut is what it leads
  /// to, with the shortcut's own arguments first; what is no program is opened with the program that the user has for
  /// it, and given no arguments.
  bool start(const std::vector<std::string>& arguments) override;
};

}  // namespace tarnwick
