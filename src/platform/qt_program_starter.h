#pragma once

#include "platform/desktop.h"

namespace tarnwick {

/// Starts programs as processes of their own, which outlive this one: in the folder of this executable, without input,
/// and with their output thrown away.
class QtProgramStarter final : public ProgramStarter {
 public:
  /// A program named without a folder is looked up in the search path. False when `arguments` is empty, the program is
  /// missing or may not be run, or an argument holds a NUL byte, which no program can be given.
  bool start(const std::vector<std::string>& arguments) override;
};

}  // namespace tarnwick
